// The dues of the month and of the day: the window as the main menu and the pop-ups fill it.

#include "analysis/ui/frmvencimento.h"
#include "analysis/vencimentos.h"
#include "platform/clock.h"
#include "platform/widgets/list_view.h"
#include "shell/principal_api.h"
#include "store/conexao.h"
#include "support/fixture.h"

#include <QCoreApplication>
#include <QLabel>
#include <QTabWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using shell::ledger;

namespace {

class vencimento : public support::fixture {
protected:
    void TearDown() override {
        delete frmvencimento::carregada();
        support::fixture::TearDown();
    }
    void add(const char* tabela, const QString& descricao, const QString& vencimento,
             const QString& estatus = u"Pendente"_s) {
        const QString contato =
            QLatin1String(tabela) == QLatin1String("pagar") ? u"fornecedor"_s : u"cliente"_s;
        exec(u"INSERT INTO %1 (estatus, origem, %2, data, descricao, documento, informacoes, Valor, "
             u"vencimento, "
             u"moeda) VALUES ('%3', 'Caixa', 'Sol Ltda', '2026/10/30', '%4', ' ', ' ', '99,9', '%5', 'R$')"_s
                 .arg(QLatin1String(tabela), contato, estatus, descricao, vencimento));
    }
    static QStringList coluna(list_view* l, int c) {
        QStringList out;
        for (int r = 0; r < l->row_count(); ++r)
            out << l->text(r, c);
        return out;
    }
};

TEST_F(vencimento, the_month_and_the_day_from_the_menu_whatever_the_status) {
    add("pagar", u"Aluguel"_s, u"2026/11/23"_s);
    add("pagar", u"Energia"_s, u"2026/11/05"_s, u"Concluído"_s);  // marked settled by an editor: stays
    add("pagar", u"Internet"_s, u"23/11/2026"_s, u"Concluído"_s); // settled from the list: left out
    add("pagar", u"Água"_s, u"2026/12/01"_s);                     // next month: neither list
    add("pagar", u"Gás"_s, u"2025/11/23"_s);                      // a year ago today: neither list
    add("receber", u"Consultoria"_s, u"2026/11/30"_s);
    store::conectarbanco();
    EXPECT_EQ(analysis::comando_vencimento(ledger::pagar, platform::today()),
              u"SELECT * FROM pagar where(vencimento like '%2026/11/%')"_s);
    ASSERT_TRUE(shell::run_action(u"mnuvencpagar"_s));
    frmvencimento* w = frmvencimento::carregada();
    ASSERT_TRUE(w);
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->windowTitle(), u"Vencimento do mês - Contas a pagar"_s);
    EXPECT_EQ(w->lblmes->text(), u"Vencimento do mês - Contas a pagar"_s);
    EXPECT_EQ(w->lbldia->text(), u"Vencimento do dia - Contas a pagar"_s);
    EXPECT_EQ(w->XTab1->count(), 2);
    EXPECT_EQ(w->lstmes->column_count(), 10);
    EXPECT_EQ(w->lstmes->column_text(4), u"Fornecedor"_s);
    EXPECT_EQ(coluna(w->lstmes, 2), (QStringList{u"Aluguel"_s, u"Energia"_s}));
    EXPECT_EQ(coluna(w->lstdia, 2), QStringList{u"Aluguel"_s});
    const QStringList linha = {u"1"_s,          u"30/10/2026"_s, u"Aluguel"_s,  u"  "_s,    u"Sol Ltda"_s,
                               u"23/11/2026"_s, u"R$ 99,90"_s,   u"Pendente"_s, u"Caixa"_s, u"  "_s};
    for (int c = 0; c < 10; ++c) {
        EXPECT_EQ(w->lstmes->text(0, c), linha[c]) << c;
        EXPECT_EQ(w->lstdia->text(0, c), linha[c]) << c;
    }

    ASSERT_TRUE(shell::run_action(u"mnuvencreceber"_s));
    EXPECT_EQ(frmvencimento::carregada(), w);
    EXPECT_EQ(w->windowTitle(), u"Vencimento do mês - Contas a receber"_s);
    EXPECT_EQ(w->lbldia->text(), u"Vencimento do dia - Contas a receber"_s);
    EXPECT_EQ(w->lstmes->column_text(4), u"Cliente"_s);
    EXPECT_EQ(coluna(w->lstmes, 2), QStringList{u"Consultoria"_s});
    EXPECT_EQ(w->lstdia->row_count(), 0);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(vencimento, nothing_due_or_no_connection_leaves_an_open_window_with_empty_lists) {
    EXPECT_EQ(analysis::comando_vencimento(ledger::receber, QDate(2026, 1, 5)),
              u"SELECT * FROM receber where(vencimento like '%2026/01/%')"_s);
    add("pagar", u"Aluguel"_s, u"2026/11/23"_s);
    store::conectarbanco();
    frmvencimento* w = frmvencimento::instance();
    w->vencimentoreceber();
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->lstmes->row_count(), 0);
    EXPECT_EQ(w->lstdia->row_count(), 0);
    // the connection is used as it stands: none, and nothing is read
    w->vencimentopagar();
    EXPECT_EQ(w->lstmes->row_count(), 1);
    store::fecharconexao();
    w->vencimentopagar();
    EXPECT_FALSE(store::conexao);
    EXPECT_EQ(w->lstmes->row_count(), 0);
    EXPECT_EQ(w->lstdia->row_count(), 0);
    EXPECT_TRUE(prompts_.boxes().empty());
    // the dormant routine dresses the window and fills nothing; no item leads to it
    store::conectarbanco();
    w->vencimentopagar();
    w->vencimentocompromisso();
    EXPECT_EQ(w->windowTitle(), u"Vencimento do mês - Compromissos"_s);
    EXPECT_EQ(w->lblmes->text(), u"Vencimento do mês - Compromissos"_s);
    EXPECT_EQ(w->lbldia->text(), u"Vencimento do dia - Compromissos"_s);
    EXPECT_EQ(w->lstmes->row_count(), 1);
}

} // namespace
