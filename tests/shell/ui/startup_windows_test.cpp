// The windows of the opening: the accounts due today, and the tip of the day.
#include "platform/random.h"
#include "platform/widgets/list_view.h"
#include "shell/tips.h"
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
    void add(const char* tabela, const QString& estatus, const QString& vencimento,
             const QString& descricao = u"Aluguel"_s) {
        exec(
            u"INSERT INTO %1 (estatus, origem, %2, data, descricao, Valor, vencimento) VALUES ('%3', 'Itaú', "
            u"'Sol', '2026/11/01', '%4', '1,00', '%5')"_s.arg(
                QLatin1String(tabela), QLatin1String(tabela) == u"pagar"_s ? u"fornecedor"_s : u"cliente"_s,
                estatus, descricao, vencimento));
    }
    void tips(const QByteArray& bytes) {
        QFile f(path(u"dicas.txt"_s));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(bytes);
    }
    static QString dica() { return store::setting(store::secao_configuracoes, chave, u"ausente"_s); }
    static int visible(const char* name) {
        int n = 0;
        for (QWidget* w : QApplication::topLevelWidgets())
            n += w->objectName() == QLatin1String(name) && w->isVisible();
        return n;
    }
};

} // namespace

TEST_F(startup_windows, accounts_due_today_are_listed_with_the_ledger_columns) {
    add("pagar", u"Pendente"_s, u"2026/11/23"_s);
    // no status filter: a settled row that still holds today in the stored form shows as well
    add("pagar", u"Concluído"_s, u"2026/11/23"_s, u"Energia"_s);
    // settled today: vencimento rewritten as dd/mm/yyyy, so not found; nor an earlier day
    add("pagar", u"Concluído"_s, u"23/11/2026"_s, u"Internet"_s);
    add("pagar", u"Pendente"_s, u"2026/11/22"_s, u"Água"_s);
    add("receber", u"Pendente"_s, u"2026/11/23"_s, u"Consultoria"_s);

    frmalerta* w = frmalerta::VerificarVencimentos_ao_iniciar();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(frmalerta::aberto(), w);
    EXPECT_TRUE(w->isVisible());
    EXPECT_TRUE(w->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(w->windowTitle(), u"Alerta sobre vencimento de contas"_s);
    EXPECT_EQ(w->XTab1->count(), 2);
    EXPECT_TRUE(w->lblaviso->text().startsWith(u"Existem contas que estão vencendo hoje"_s));
    ASSERT_EQ(w->lstpagar->column_count(), 10);
    ASSERT_EQ(w->lstpagar->row_count(), 2);
    EXPECT_EQ(w->lstpagar->text(0, 2), u"Aluguel"_s);
    EXPECT_EQ(w->lstpagar->text(1, 2), u"Energia"_s);
    EXPECT_EQ(w->lstpagar->text(0, 5), u"23/11/2026"_s);
    ASSERT_EQ(w->lstreceber->row_count(), 1);
    EXPECT_EQ(w->lstreceber->text(0, 2), u"Consultoria"_s);

    // looked at again when nothing is due any more, it unloads
    exec(u"UPDATE pagar SET estatus='Concluído', vencimento='23/11/2026'"_s);
    exec(u"DELETE FROM receber"_s);
    EXPECT_FALSE(w->VerificarVencimentos());
    EXPECT_EQ(frmalerta::aberto(), nullptr);
    EXPECT_FALSE(w->isVisible());
}

TEST_F(startup_windows, with_nothing_due_today_no_alert_window_appears) {
    add("pagar", u"Concluído"_s, u"23/11/2026"_s);
    add("receber", u"Pendente"_s, u"2026/11/20"_s);
    EXPECT_EQ(frmalerta::VerificarVencimentos_ao_iniciar(), nullptr);
    EXPECT_EQ(visible("frmalerta"), 0);
    // receivables alone show it
    add("receber", u"Pendente"_s, u"2026/11/23"_s);
    ASSERT_NE(frmalerta::VerificarVencimentos_ao_iniciar(), nullptr);
    EXPECT_EQ(frmalerta::aberto()->lstpagar->row_count(), 0);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(startup_windows, the_tip_window_shows_a_tip_and_the_next_one_by_the_random_source) {
    tips("primeira\nsegunda\nterceira\n");
    std::vector<double> sorteios = {0.0, 0.99, 0.5};
    std::size_t i = 0;
    platform::set_random_source([&] { return sorteios.at(i++); });
    frmdica* w = frmdica::mostrar(true);
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_TRUE(w->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(w->windowTitle(), u"Dica do Dia"_s);
    EXPECT_EQ(w->chkdicadia->text(), u"&Sempre exibir estas dicas ao iniciar"_s);
    EXPECT_TRUE(w->chkdicadia->isChecked());
    EXPECT_EQ(w->lblTipText->text(), u"primeira"_s);
    w->cmdNextTip->click();
    EXPECT_EQ(w->lblTipText->text(), u"terceira"_s);
    EXPECT_EQ(w->CurrentTip, 3);
    w->cmdNextTip->click();
    EXPECT_EQ(w->lblTipText->text(), u"segunda"_s);
    // opening the tip window writes nothing
    EXPECT_EQ(dica(), u"ausente"_s);
}

TEST_F(startup_windows, a_missing_tips_file_says_so_in_the_label) {
    ASSERT_TRUE(QFile::remove(path(u"dicas.txt"_s)));
    frmdica* w = frmdica::mostrar(true);
    ASSERT_NE(w, nullptr);
    const QString texto = shell::missing_tips_text(store::program_path(u"\\dicas.txt"_s));
    EXPECT_EQ(w->lblTipText->text(), texto);
    // with no tips the next one leaves the text in place
    w->cmdNextTip->click();
    EXPECT_EQ(w->lblTipText->text(), texto);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(startup_windows, at_start_a_setting_that_reads_as_zero_unloads_the_tip) {
    for (const auto& [valor, mostra] : {std::pair{"0", false},
                                        {"00", false},
                                        {"", false},
                                        {"não", false},
                                        {"1", true},
                                        {"2", true},
                                        {"1x", true}}) {
        store::save_setting(store::secao_configuracoes, chave, QString::fromUtf8(valor));
        frmdica* w = frmdica::mostrar(true);
        EXPECT_EQ(w != nullptr, mostra) << valor;
        EXPECT_EQ(visible("frmdica"), mostra ? 1 : 0) << valor;
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
    EXPECT_TRUE(w->chkdicadia->isChecked());
    EXPECT_EQ(dica(), u"1"_s);
    // a second request while it is open keeps the value from before the first
    EXPECT_EQ(frmdica::mostrar_por_pedido(), w);
    w->cmdok->click();
    EXPECT_EQ(dica(), u"0"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    // the former value comes back even over a click made while the window was open
    store::save_setting(store::secao_configuracoes, chave, u"1"_s);
    w = frmdica::mostrar_por_pedido();
    ASSERT_NE(w, nullptr);
    w->chkdicadia->click();
    EXPECT_EQ(dica(), u"0"_s);
    w->close();
    EXPECT_EQ(dica(), u"1"_s);
}
