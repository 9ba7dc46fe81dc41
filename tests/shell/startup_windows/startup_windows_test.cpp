#include "platform/random.h"
#include "platform/widgets/list_view.h"
#include "shell/ui/frmalerta.h"
#include "shell/ui/frmdica.h"
#include "store/config.h"
#include "store/program_dir.h"
#include "support/fixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString chave = u"Exibir dica do dia"_s;

class startup_windows : public support::fixture {
protected:
    void TearDown() override {
        delete frmalerta::aberto();
        delete frmdica::aberto();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        support::fixture::TearDown();
    }
    void add(const char* tabela, const char* contato, const QString& estatus, const QString& vencimento,
             const QString& descricao = u"Aluguel"_s) {
        exec(u"INSERT INTO %1 (estatus, origem, %2, data, descricao, documento, informacoes, Valor, "
             u"vencimento, moeda) VALUES ('%3', 'Itaú', 'Imobiliária Sol', '2026/11/01', '%4', 'NF 7', "
             u"'obs', '1.500,5', '%5', 'R$')"_s.arg(QLatin1String(tabela), QLatin1String(contato), estatus,
                                                    descricao, vencimento));
    }
    void tips(const QByteArray& bytes) {
        QFile f(path(u"dicas.txt"_s));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(bytes);
    }
    static QString dica() { return store::setting(store::secao_configuracoes, chave, u"ausente"_s); }
    static int visible_windows(const char* name) {
        int n = 0;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == QLatin1String(name) && w->isVisible()) ++n;
        return n;
    }
};

} // namespace

TEST_F(startup_windows, accounts_due_today_are_listed_with_the_ledger_columns) {
    add("pagar", "fornecedor", u"Pendente"_s, u"2026/11/23"_s);
    // no status filter: a settled row that still holds today in the stored form shows as well
    add("pagar", "fornecedor", u"Concluído"_s, u"2026/11/23"_s, u"Energia"_s);
    // settled today: vencimento rewritten as dd/mm/yyyy, so not found
    add("pagar", "fornecedor", u"Concluído"_s, u"23/11/2026"_s, u"Internet"_s);
    // overdue from an earlier day, and due tomorrow
    add("pagar", "fornecedor", u"Pendente"_s, u"2026/11/22"_s, u"Água"_s);
    add("receber", "cliente", u"Pendente"_s, u"2026/11/24"_s);
    add("receber", "cliente", u"Pendente"_s, u"2026/11/23"_s, u"Consultoria"_s);

    frmalerta* w = frmalerta::VerificarVencimentos_ao_iniciar();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(frmalerta::aberto(), w);
    EXPECT_TRUE(w->isVisible());
    EXPECT_TRUE(w->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(w->windowTitle(), u"Alerta sobre vencimento de contas"_s);
    EXPECT_EQ(w->findChild<QTabWidget*>(u"XTab1"_s), w->XTab1);
    EXPECT_EQ(w->XTab1->count(), 2);
    EXPECT_EQ(
        w->lblaviso->text(),
        u"Existem contas que estão vencendo hoje, verifique abaixo para saber quais contas, para "
        u"desativar este aviso va ate o menu exibir e desmarque a opção alertas de vencimentos de contas"_s);

    auto* p = w->findChild<list_view*>(u"lstpagar"_s);
    auto* r = w->findChild<list_view*>(u"lstreceber"_s);
    ASSERT_TRUE(p && r);
    ASSERT_EQ(p->column_count(), 10);
    EXPECT_EQ(r->column_count(), 10);
    ASSERT_EQ(p->row_count(), 2);
    const QStringList esperado = {
        u"1"_s,          u"01/11/2026"_s,  u"Aluguel"_s,  u"NF 7 "_s, u"Imobiliária Sol"_s,
        u"23/11/2026"_s, u"R$ 1.500,50"_s, u"Pendente"_s, u"Itaú"_s,  u"obs "_s};
    for (int c = 0; c < 10; ++c)
        EXPECT_EQ(p->text(0, c), esperado[c]) << c;
    EXPECT_EQ(p->text(1, 2), u"Energia"_s);
    EXPECT_EQ(p->text(1, 7), u"Concluído"_s);
    ASSERT_EQ(r->row_count(), 1);
    EXPECT_EQ(r->text(0, 2), u"Consultoria"_s);
    EXPECT_EQ(r->text(0, 4), u"Imobiliária Sol"_s);
}

TEST_F(startup_windows, only_receivables_due_still_show_the_window) {
    add("receber", "cliente", u"Pendente"_s, u"2026/11/23"_s);
    frmalerta* w = frmalerta::VerificarVencimentos_ao_iniciar();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->lstpagar->row_count(), 0);
    EXPECT_EQ(w->lstreceber->row_count(), 1);
}

TEST_F(startup_windows, with_nothing_due_today_no_alert_window_appears) {
    add("pagar", "fornecedor", u"Concluído"_s, u"23/11/2026"_s);
    add("receber", "cliente", u"Concluído"_s, u"23/11/2026"_s);
    add("pagar", "fornecedor", u"Pendente"_s, u"2026/11/20"_s);
    EXPECT_EQ(frmalerta::VerificarVencimentos_ao_iniciar(), nullptr);
    EXPECT_EQ(frmalerta::aberto(), nullptr);
    EXPECT_EQ(visible_windows("frmalerta"), 0);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(startup_windows, a_loaded_alert_window_that_finds_nothing_any_more_unloads) {
    add("pagar", "fornecedor", u"Pendente"_s, u"2026/11/23"_s);
    frmalerta* w = frmalerta::VerificarVencimentos_ao_iniciar();
    ASSERT_NE(w, nullptr);
    exec(u"UPDATE pagar SET estatus='Concluído', vencimento='23/11/2026'"_s);
    EXPECT_FALSE(w->VerificarVencimentos());
    EXPECT_EQ(w->lstpagar->row_count(), 0);
    EXPECT_EQ(frmalerta::aberto(), nullptr);
    EXPECT_FALSE(w->isVisible());
}

TEST_F(startup_windows, a_tips_file_of_one_line_always_shows_that_line) {
    tips("Faça backup toda semana.\r\n");
    frmdica* w = frmdica::mostrar(true);
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_TRUE(w->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(w->windowTitle(), u"Dica do Dia"_s);
    EXPECT_EQ(w->lbltitulo->text(), u"Dica do dia"_s);
    EXPECT_EQ(w->chkdicadia->text(), u"&Sempre exibir estas dicas ao iniciar"_s);
    EXPECT_TRUE(w->chkdicadia->isChecked());
    auto* next = w->findChild<QPushButton*>(u"cmdNextTip"_s);
    ASSERT_NE(next, nullptr);
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(w->findChild<QLabel*>(u"lblTipText"_s)->text(), u"Faça backup toda semana."_s);
        EXPECT_EQ(w->CurrentTip, 1);
        next->click();
    }
    // opening the tip window writes nothing
    EXPECT_EQ(dica(), u"ausente"_s);
}

TEST_F(startup_windows, next_tip_picks_by_the_random_source) {
    tips("primeira\nsegunda\nterceira\n");
    std::vector<double> sorteios = {0.0, 0.99, 0.5, 0.4};
    std::size_t i = 0;
    platform::set_random_source([&] { return sorteios.at(i++); });
    frmdica* w = frmdica::mostrar(true);
    ASSERT_NE(w, nullptr);
    ASSERT_EQ(w->dicas.size(), 3);
    EXPECT_EQ(w->lblTipText->text(), u"primeira"_s);
    w->cmdNextTip->click();
    EXPECT_EQ(w->lblTipText->text(), u"terceira"_s);
    EXPECT_EQ(w->CurrentTip, 3);
    w->cmdNextTip->click();
    EXPECT_EQ(w->lblTipText->text(), u"segunda"_s);
    // the same tip can come twice in a row
    w->cmdNextTip->click();
    EXPECT_EQ(w->lblTipText->text(), u"segunda"_s);
}

TEST_F(startup_windows, a_missing_tips_file_says_so_in_the_label) {
    ASSERT_TRUE(QFile::remove(path(u"dicas.txt"_s)));
    frmdica* w = frmdica::mostrar(true);
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    const QString texto = u"não foi possível encontrar o arquivo de dicas "_s +
                          store::program_path(u"\\dicas.txt"_s) +
                          u"\na reinstalação do software pode corrigir o problema. "_s;
    EXPECT_EQ(w->lblTipText->text(), texto);
    EXPECT_TRUE(w->dicas.isEmpty());
    // with no tips the next one leaves the text in place
    w->cmdNextTip->click();
    EXPECT_EQ(w->lblTipText->text(), texto);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(startup_windows, at_start_a_setting_that_reads_as_zero_unloads_the_tip) {
    const struct {
        const char* valor;
        bool mostra;
    } cases[] = {{"0", false}, {"00", false}, {"", false}, {"não", false},
                 {"1", true},  {"2", true},   {"1x", true}};
    for (const auto& c : cases) {
        store::save_setting(store::secao_configuracoes, chave, QString::fromUtf8(c.valor));
        frmdica* w = frmdica::mostrar(true);
        EXPECT_EQ(w != nullptr, c.mostra) << c.valor;
        EXPECT_EQ(visible_windows("frmdica"), c.mostra ? 1 : 0) << c.valor;
        delete w;
    }
    // opened otherwise than at start, it shows whatever the setting
    store::save_setting(store::secao_configuracoes, chave, u"0"_s);
    EXPECT_NE(frmdica::mostrar(false), nullptr);
}

TEST_F(startup_windows, chkdicadia_writes_each_click_to_the_lower_case_section) {
    frmdica* w = frmdica::mostrar(true);
    ASSERT_NE(w, nullptr);
    w->chkdicadia->click();
    EXPECT_EQ(dica(), u"0"_s);
    w->chkdicadia->click();
    EXPECT_EQ(dica(), u"1"_s);
    w->chkdicadia->click();
    EXPECT_EQ(dica(), u"0"_s);
    EXPECT_EQ(store::setting(store::secao_config, chave, u"ausente"_s), u"ausente"_s);
    // the next start honours the click
    w->cmdok->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(frmdica::aberto(), nullptr);
    EXPECT_EQ(frmdica::mostrar(true), nullptr);
}

TEST_F(startup_windows, shown_on_request_the_tip_opens_with_the_option_off_and_restores_it) {
    store::save_setting(store::secao_configuracoes, chave, u"0"_s);
    frmdica* w = frmdica::mostrar_por_pedido();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_TRUE(w->chkdicadia->isChecked());
    EXPECT_EQ(dica(), u"1"_s);
    // a second request while it is open keeps the value from before the first
    EXPECT_EQ(frmdica::mostrar_por_pedido(), w);
    EXPECT_EQ(dica(), u"1"_s);
    w->cmdok->click();
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(dica(), u"0"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(frmdica::aberto(), nullptr);
    EXPECT_EQ(dica(), u"0"_s);

    // the former value comes back even over a click made while the window was open
    store::save_setting(store::secao_configuracoes, chave, u"1"_s);
    w = frmdica::mostrar_por_pedido();
    ASSERT_NE(w, nullptr);
    w->chkdicadia->click();
    EXPECT_EQ(dica(), u"0"_s);
    w->close();
    EXPECT_EQ(dica(), u"1"_s);
}
