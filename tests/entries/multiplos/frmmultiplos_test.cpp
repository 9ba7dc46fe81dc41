#include "entries/ui/frmmultiplos.h"
#include "entries/window_fixture.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/frmcarregando.h"

#include <QProgressBar>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

class multiplos : public support::window_fixture {
protected:
    void TearDown() override {
        delete frmmultiplos::aberto();
        if (frmprincipal::exists())
            for (auto* c : p->findChildren<frmcarregando*>())
                delete c;
        window_fixture::TearDown();
    }
    frmmultiplos* abrir(bool despesa = true) {
        despesa ? p->multiplospagar() : p->multiplosreceber();
        frmmultiplos* m = frmmultiplos::aberto();
        EXPECT_TRUE(m && m->isVisible());
        return m;
    }
    void preencher(QWidget* m, const QString& parcelas) {
        edit(m, "txtvalor")->setText(u"99,90"_s);
        combo(m, "cbotipo")->setEditText(u"Fulano"_s);
        combo(m, "txtdescricao")->setEditText(u"Aluguel"_s);
        edit(m, "txtnparcelas")->setText(parcelas);
    }
    QStringList pagar() {
        return rows(u"SELECT origem, fornecedor, data, informacoes, Valor, vencimento FROM pagar "
                    u"ORDER BY \"código\""_s);
    }
    QStringList receber() {
        return rows(u"SELECT origem, cliente, data, informacoes, Valor, vencimento FROM receber "
                    u"ORDER BY \"código\""_s);
    }
    frmcarregando* espera() const {
        const auto l = p->findChildren<frmcarregando*>();
        return l.isEmpty() ? nullptr : l.front();
    }
};

TEST_F(multiplos, the_openers_dress_the_window_and_fill_its_boxes) {
    conta(u"Caixa"_s, u"0,00"_s);
    conta(u"Banco do Brasil"_s, u"0,00"_s);
    nomes(u"fornecedor"_s, u"nome"_s, {u"Zeca"_s, u"Ana Peças"_s});
    nomes(u"cliente"_s, u"nome"_s, {u"Cliente B"_s, u"Cliente A"_s});
    nomes(u"pcontapagar"_s, u"descricao"_s, {u"Energia"_s, u"Aluguel"_s});
    nomes(u"pcontareceber"_s, u"descricao"_s, {u"Vendas"_s, u"Serviços"_s});

    frmmultiplos* m = abrir();
    EXPECT_EQ(m->windowTitle(), u"Adicionar Contas a pagar / multiplas contas"_s);
    EXPECT_EQ(child<QPushButton>(m, "cmdinserir")->text(), u"&Inserir despesa"_s);
    EXPECT_TRUE(child<QLabel>(m, "PIC1")->isVisibleTo(m));
    EXPECT_FALSE(child<QLabel>(m, "PIC2")->isVisibleTo(m));
    EXPECT_EQ(combo(m, "cboorigem")->currentText(), u"Banco do Brasil"_s);
    EXPECT_EQ(combo(m, "cbotipo")->currentText(), u"Ana Peças"_s);
    EXPECT_EQ(combo(m, "txtdescricao")->currentText(), u"Aluguel"_s);
    EXPECT_EQ(items(combo(m, "cbomoeda")), (QStringList{u"R$"_s, u"$"_s, u"€"_s, u"¥"_s, u"£"_s}));
    EXPECT_EQ(date(m, "txtdata")->text(), u"23/11/2026"_s);
    EXPECT_EQ(combo(m, "cboestatus")->toolTip(),
              u"Estatus da operação que será aplicado a todas as parcelas"_s);
    EXPECT_EQ(m->findChild<QWidget*>(u"txtvencimento"_s), nullptr);
    EXPECT_EQ(m->findChild<QWidget*>(u"cmdbancoinc"_s), nullptr);

    // the schedule: by month with the days box idle until the period is chosen
    QLineEdit* dias = edit(m, "txtdiasparcelas");
    EXPECT_EQ(edit(m, "txtnparcelas")->text(), u"1"_s);
    EXPECT_EQ(dias->text(), u"30"_s);
    EXPECT_FALSE(dias->isEnabled());
    EXPECT_TRUE(child<QRadioButton>(m, "optdia")->isChecked());
    EXPECT_FALSE(child<QCheckBox>(m, "chkDataInicial")->isChecked());
    child<QRadioButton>(m, "optperiodo")->click();
    EXPECT_TRUE(dias->isEnabled());
    child<QRadioButton>(m, "optdia")->click();
    EXPECT_FALSE(dias->isEnabled());
    m->cmdcancelar_click();
    settle();

    m = abrir(false);
    EXPECT_EQ(m->windowTitle(), u"Adicionar Contas a receber / multiplas contas"_s);
    EXPECT_EQ(child<QPushButton>(m, "cmdinserir")->text(), u"&Inserir receita"_s);
    EXPECT_TRUE(child<QLabel>(m, "PIC2")->isVisibleTo(m));
    EXPECT_EQ(combo(m, "cbotipo")->currentText(), u"Cliente A"_s);
    EXPECT_EQ(combo(m, "txtdescricao")->currentText(), u"Serviços"_s);
}

TEST_F(multiplos, the_main_window_reaches_the_series_from_its_buttons) {
    EXPECT_TRUE(p->cmdmultiplosp->isEnabled());
    EXPECT_TRUE(p->cmdmultiplosr->isEnabled());
    p->cmdmultiplosr->click();
    ASSERT_NE(frmmultiplos::aberto(), nullptr);
    EXPECT_EQ(frmmultiplos::aberto()->windowTitle(), u"Adicionar Contas a receber / multiplas contas"_s);
}

TEST_F(multiplos, blank_fields_and_refused_counts_write_nothing_and_keep_the_window) {
    frmmultiplos* m = abrir();
    combo(m, "cbotipo")->setEditText(u"  "_s);
    combo(m, "txtdescricao")->setEditText(QString());
    date(m, "txtdata")->clear();
    click(m, "cmdinserir");
    const struct {
        const char* parcelas;
        const char* dias;
        bool periodo;
        const char* texto;
    } casos[] = {
        {"0,5", "30", false, "O número de parcelas não pode ser menor que 1!"},
        {"x", "30", false, "O número de parcelas não pode ser menor que 1!"},
        {"3", "0", false, "Os dias entre as parcelas não pode ser menor que 1!"},
        {"3", "0,5", true, "Os dias entre as parcelas não pode ser menor que 1!"},
    };
    preencher(m, u"1"_s);
    date(m, "txtdata")->set_text(u"23/11/2026"_s);
    for (const auto& c : casos) {
        edit(m, "txtnparcelas")->setText(QString::fromUtf8(c.parcelas));
        edit(m, "txtdiasparcelas")->setText(QString::fromUtf8(c.dias));
        child<QRadioButton>(m, c.periodo ? "optperiodo" : "optdia")->click();
        click(m, "cmdinserir");
    }
    const QStringList esperado{
        u"Erro: Os seguintes dados estão em branco: \n\nDescrição\nForcenedor/cliente\nValor\nData"_s,
        u"Erro: O número de parcelas não pode ser menor que 1!"_s,
        u"Erro: O número de parcelas não pode ser menor que 1!"_s,
        u"Erro: Os dias entre as parcelas não pode ser menor que 1!"_s,
        u"Erro: Os dias entre as parcelas não pode ser menor que 1!"_s};
    EXPECT_EQ(boxes(), esperado);
    for (const auto& b : prompts_.boxes())
        EXPECT_EQ(b.style, platform::exclamation);
    EXPECT_TRUE(pagar().isEmpty());
    EXPECT_TRUE(m->isVisible());
    EXPECT_EQ(espera(), nullptr);
}

TEST_F(multiplos, an_expense_series_from_31_january_is_written_and_shown) {
    frmmultiplos* m = abrir();
    EXPECT_EQ(combo(m, "cboorigem")->currentText(), QString());
    preencher(m, u"4 vezes"_s);
    date(m, "txtdata")->set_text(u"31/01/2026"_s);
    child<QCheckBox>(m, "chkDataInicial")->setChecked(true);
    p->xtab->setCurrentIndex(2);
    click(m, "cmdinserir");
    EXPECT_TRUE(prompts_.boxes().empty());
    // the account left empty stays empty; the amount goes as typed
    EXPECT_EQ(pagar(), (QStringList{u"|Fulano|2026/01/31|  - Parcela 1 de 4|99,90|2026/01/31"_s,
                                    u"|Fulano|2026/01/31|  - Parcela 2 de 4|99,90|2026/02/28"_s,
                                    u"|Fulano|2026/01/31|  - Parcela 3 de 4|99,90|2026/03/28"_s,
                                    u"|Fulano|2026/01/31|  - Parcela 4 de 4|99,90|2026/04/28"_s}));
    settle();
    EXPECT_EQ(frmmultiplos::aberto(), nullptr);
    EXPECT_EQ(espera(), nullptr);
    EXPECT_EQ(p->xtab->currentIndex(), 0);
    EXPECT_EQ(p->lstpagar->row_count(), 4);
}

TEST_F(multiplos, an_income_series_by_period_with_fractional_counts) {
    frmmultiplos* m = abrir(false);
    preencher(m, u"2.5"_s);
    child<QRadioButton>(m, "optperiodo")->click();
    edit(m, "txtdiasparcelas")->setText(u"1.5"_s);
    child<QPlainTextEdit>(m, "txtinfo")->setPlainText(u"  Obs "_s);
    click(m, "cmdinserir");
    EXPECT_EQ(receber(), (QStringList{u"|Fulano|2026/11/23|Obs  - Parcela 1 de 2,5|99,90|2026/11/24"_s,
                                      u"|Fulano|2026/11/23|Obs  - Parcela 2 de 2,5|99,90|2026/11/26"_s}));
    EXPECT_EQ(p->xtab->currentIndex(), 1);
    EXPECT_EQ(p->lstreceber->row_count(), 2);
}

TEST_F(multiplos, with_the_lists_hidden_only_the_expense_tab_comes_forward) {
    store::save_setting(store::secao_config, u"ExibirPrincipal"_s, u"0"_s);
    for (const bool despesa : {true, false}) {
        frmmultiplos* m = abrir(despesa);
        preencher(m, u"2"_s);
        p->xtab->setCurrentIndex(2);
        click(m, "cmdinserir");
        settle();
        EXPECT_EQ(frmmultiplos::aberto(), nullptr);
        EXPECT_EQ(p->xtab->currentIndex(), despesa ? 0 : 2);
    }
    EXPECT_EQ(pagar().size(), 2);
    EXPECT_EQ(receber().size(), 2);
    EXPECT_EQ(p->lstpagar->row_count(), 0);
    EXPECT_EQ(p->lstreceber->row_count(), 0);
}

TEST_F(multiplos, a_failure_half_way_keeps_the_rows_and_leaves_the_progress_on_screen) {
    exec(u"CREATE TRIGGER recusa BEFORE INSERT ON pagar WHEN (SELECT count(*) FROM pagar) >= 2 "
         u"BEGIN SELECT RAISE(ABORT, 'disco cheio'); END"_s);
    frmmultiplos* m = abrir();
    preencher(m, u"600"_s);
    click(m, "cmdinserir");
    EXPECT_EQ(boxes(),
              QStringList{u"Erro: Ocorreu o seguinte erro ao tentar cadastrar os dados: disco cheio"_s});
    EXPECT_EQ(pagar().size(), 2);
    settle();
    // this window hidden but loaded, the waiting window where the series stopped
    EXPECT_EQ(frmmultiplos::aberto(), m);
    EXPECT_FALSE(m->isVisible());
    frmcarregando* w = espera();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->lbltitulo->text(), u"Adicionando parcelas ..."_s);
    EXPECT_EQ(w->progressobarra->minimum(), 0);
    EXPECT_EQ(w->progressobarra->maximum(), 601);
    EXPECT_EQ(w->progressobarra->value(), 3);
    EXPECT_EQ(p->lstpagar->row_count(), 0);
}

} // namespace
