// Typing in a series of instalments: frmmultiplos as the main window opens it, and what one press
// writes. The due dates are the instalments' own tests.
#include "support/window_fixture.h"

#include "platform/widgets/frmcarregando.h"

#include <QProgressBar>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

class multiplos : public support::window_fixture {
protected:
    void TearDown() override {
        if (frmprincipal::exists())
            for (auto* c : p->findChildren<frmcarregando*>())
                delete c;
        window_fixture::TearDown();
    }
    frmmultiplos* abrir(bool despesa = true) {
        (despesa ? p->cmdmultiplosp : p->cmdmultiplosr)->click();
        frmmultiplos* m = frmmultiplos::aberto();
        EXPECT_TRUE(m && m->isVisible());
        return m;
    }
    void preencher(frmmultiplos* m, const QString& parcelas) {
        m->txtvalor->setText("99,90");
        m->cbotipo->setEditText("Fulano");
        m->txtdescricao->setEditText("Aluguel");
        m->txtnparcelas->setText(parcelas);
    }
    QStringList linhas(const char* tabela) {
        return rows(u"SELECT origem, Valor, vencimento FROM %1 ORDER BY \"código\""_s.arg(tabela));
    }
    frmcarregando* espera() const {
        const auto l = p->findChildren<frmcarregando*>();
        return l.isEmpty() ? nullptr : l.front();
    }
};

TEST_F(multiplos, the_buttons_open_it_dressed_with_its_boxes_filled) {
    conta("Caixa", "0,00");
    conta("Banco do Brasil", "0,00");
    nomes("fornecedor", "nome", {"Zeca", "Ana Peças"});
    nomes("pcontareceber", "descricao", {"Vendas", "Serviços"});
    frmmultiplos* m = abrir();
    EXPECT_EQ(m->windowTitle(), "Adicionar Contas a pagar / multiplas contas");
    EXPECT_EQ(m->campos(), (entries::entry_fields{"Pendente", "Banco do Brasil", "Ana Peças", "23/11/2026",
                                                  "", "", "", "", "", "R$"}));
    EXPECT_EQ(m->cboestatus->toolTip(), "Estatus da operação que será aplicado a todas as parcelas");
    EXPECT_EQ(m->findChild<QWidget*>("txtvencimento"), nullptr);
    EXPECT_EQ(m->findChild<QWidget*>("cmdbancoinc"), nullptr);
    // the schedule: by month, the days box idle until the period is chosen
    EXPECT_EQ(m->txtnparcelas->text(), "1");
    EXPECT_EQ(m->txtdiasparcelas->text(), "30");
    EXPECT_FALSE(m->txtdiasparcelas->isEnabled());
    EXPECT_FALSE(m->chkDataInicial->isChecked());
    m->optperiodo->click();
    EXPECT_TRUE(m->txtdiasparcelas->isEnabled());
    m->optdia->click();
    EXPECT_FALSE(m->txtdiasparcelas->isEnabled());
    m->cmdcancelar_click();
    settle();
    m = abrir(false);
    EXPECT_EQ(m->windowTitle(), "Adicionar Contas a receber / multiplas contas");
    EXPECT_EQ(m->txtdescricao->currentText(), "Serviços");
}

TEST_F(multiplos, blank_fields_and_refused_counts_write_nothing_and_keep_the_window) {
    frmmultiplos* m = abrir();
    m->cmdinserir->click();
    preencher(m, "0,5");
    m->cmdinserir->click();
    m->txtnparcelas->setText("3");
    m->optperiodo->click();
    m->txtdiasparcelas->setText("0,5");
    m->cmdinserir->click();
    EXPECT_EQ(
        boxes(),
        (QStringList{"Erro: Os seguintes dados estão em branco: \n\nDescrição\nForcenedor/cliente\nValor",
                     "Erro: O número de parcelas não pode ser menor que 1!",
                     "Erro: Os dias entre as parcelas não pode ser menor que 1!"}));
    EXPECT_TRUE(linhas("pagar").isEmpty());
    EXPECT_TRUE(m->isVisible());
    EXPECT_EQ(espera(), nullptr);
}

TEST_F(multiplos, a_series_is_written_at_one_press_and_shown) {
    frmmultiplos* m = abrir();
    preencher(m, "4 vezes");
    m->txtdata->set_text("31/01/2026");
    m->chkDataInicial->setChecked(true);
    p->xtab->setCurrentIndex(2);
    m->cmdinserir->click();
    EXPECT_TRUE(prompts_.boxes().empty());
    // the account left empty stays empty; the amount goes as typed
    EXPECT_EQ(linhas("pagar"), (QStringList{"|99,90|2026/01/31", "|99,90|2026/02/28", "|99,90|2026/03/28",
                                            "|99,90|2026/04/28"}));
    settle();
    EXPECT_EQ(frmmultiplos::aberto(), nullptr);
    EXPECT_EQ(espera(), nullptr);
    EXPECT_EQ(p->xtab->currentIndex(), 0);
    EXPECT_EQ(p->lstpagar->row_count(), 4);

    m = abrir(false);
    preencher(m, "2");
    m->cmdinserir->click();
    EXPECT_EQ(linhas("receber").size(), 2);
    EXPECT_EQ(p->xtab->currentIndex(), 1);
    EXPECT_EQ(p->lstreceber->row_count(), 2);
}

TEST_F(multiplos, with_the_lists_hidden_only_the_expense_tab_comes_forward) {
    store::save_setting(store::secao_config, "ExibirPrincipal", "0");
    for (const bool despesa : {true, false}) {
        frmmultiplos* m = abrir(despesa);
        preencher(m, "2");
        p->xtab->setCurrentIndex(2);
        m->cmdinserir->click();
        settle();
        EXPECT_EQ(frmmultiplos::aberto(), nullptr);
        EXPECT_EQ(p->xtab->currentIndex(), despesa ? 0 : 2);
    }
    EXPECT_EQ(linhas("pagar").size() + linhas("receber").size(), 4);
    EXPECT_EQ(p->lstpagar->row_count() + p->lstreceber->row_count(), 0);
}

TEST_F(multiplos, a_failure_half_way_keeps_the_rows_and_leaves_the_progress_on_screen) {
    exec("CREATE TRIGGER recusa BEFORE INSERT ON pagar WHEN (SELECT count(*) FROM pagar) >= 2 "
         "BEGIN SELECT RAISE(ABORT, 'disco cheio'); END");
    frmmultiplos* m = abrir();
    preencher(m, "600");
    m->cmdinserir->click();
    EXPECT_EQ(boxes(),
              QStringList{"Erro: Ocorreu o seguinte erro ao tentar cadastrar os dados: disco cheio"});
    EXPECT_EQ(linhas("pagar").size(), 2);
    settle();
    // this window hidden but loaded, the waiting window where the series stopped
    EXPECT_EQ(frmmultiplos::aberto(), m);
    EXPECT_FALSE(m->isVisible());
    frmcarregando* w = espera();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->lbltitulo->text(), "Adicionando parcelas ...");
    EXPECT_EQ(w->progressobarra->maximum(), 601);
    EXPECT_EQ(w->progressobarra->value(), 3);
    EXPECT_EQ(p->lstpagar->row_count(), 0);
}

} // namespace
