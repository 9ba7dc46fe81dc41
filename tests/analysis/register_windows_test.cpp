// The statistics by centre, client and supplier (frmestforncli) with their files and print, the
// client and supplier list reports, and the installation facts of frmestsoftware.

#include "analysis/software_info.h"
#include "analysis/ui/frmestforncli.h"
#include "analysis/ui/frmestsoftware.h"
#include "analysis_fixture.h"
#include "output/ui/frmrelatorio.h"
#include "platform/print/printer.h"
#include "platform/widgets/list_view.h"
#include "store/config.h"
#include "support/golden.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

class register_windows : public testing_analysis::analysis_fixture {
protected:
    void SetUp() override {
        analysis_fixture::SetUp();
        platform::set_print_destination(&pdf_);
    }
    void TearDown() override {
        platform::set_print_destination(nullptr);
        analysis_fixture::TearDown();
    }
    platform::pdf_target pdf_{path(u"estatisticas.pdf"_s)};
};

} // namespace

TEST_F(register_windows, suppliers_get_one_row_each_with_counts_and_sums) {
    exec(u"INSERT INTO fornecedor (nome) VALUES ('Fornecedor A'), ('Fornecedor B'), ('D''Ávila')"_s);
    pagar("2026/11/01", "Pendente", "100,00");
    pagar("2026/10/01", "Concluído", "50,505");
    pagar("2026/09/01", "pendente", "1,00");
    pagar("2026/09/01", "Pendente", "9,00", "fornecedor a");
    shell::run_action(u"mnuestforn"_s);
    auto* w = janela<frmestforncli>("frmestforncli");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), u"Estatística de fornecedor"_s);
    EXPECT_EQ(w->lista_visivel(), w->lstfornecedor);
    ASSERT_EQ(w->lstfornecedor->row_count(), 3);
    // like without a wildcard folds case; "pendente" in lower case is paid here
    EXPECT_EQ((QStringList{w->lstfornecedor->text(0, 0), w->lstfornecedor->text(0, 1),
                           w->lstfornecedor->text(0, 2), w->lstfornecedor->text(0, 3)}),
              (QStringList{u"Fornecedor A"_s, u"2 (R$ 109,00)"_s, u"2 (R$ 51,51)"_s, u"4 (R$ 160,51)"_s}));
    EXPECT_EQ(w->lstfornecedor->text(1, 3), u"0 (R$ 0,00)"_s);
    // the apostrophe breaks that name's statement: its row stays at zero
    EXPECT_EQ(w->lstfornecedor->text(2, 3), u"0 (R$ 0,00)"_s);
    EXPECT_EQ(w->lblgeral->text(),
              u"Total de despesas: R$ 160,51 - Total pago: R$ 51,51 - Total pendente: R$ 109,00"_s);

    prompts_.answer_text(path(u"forn.txt"_s));
    prompts_.answer(platform::answer_no);
    w->cmdtxt->click();
    ASSERT_GE(prompts_.records().size(), 1u);
    EXPECT_EQ(prompts_.records()[0].title, u"Salvar estatísticas em txt"_s);
    EXPECT_EQ(prompts_.records()[0].filter, u"Arquivos de texto (*.txt)|*.txt"_s);
    EXPECT_TRUE(support::file_matches_golden(u"analysis/estatistica_fornecedor.txt"_s, path(u"forn.txt"_s)));

    w->cmdimprimir->click();
    const QString texto = support::pdf_pages(pdf_.path()).join(QString());
    EXPECT_TRUE(texto.contains(u"ESTATÍSTICAS DE FORNECEDORES"_s)) << qPrintable(texto);
    EXPECT_TRUE(texto.contains(u"Filtrado por: Todos os dados"_s));
    EXPECT_TRUE(texto.contains(u"Total de despesas: R$ 160,51"_s));
}

TEST_F(register_windows, centres_speak_of_income_and_an_empty_master_says_plano_de_conta) {
    shell::run_action(u"mnuestcli"_s);
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Plano de conta"_s);
    EXPECT_TRUE(prompts_.boxes()[0].text.startsWith(u"Não há nenhum centro de custo cadastrado"_s));
    EXPECT_FALSE(janela<frmestforncli>("frmestforncli"));

    exec(u"INSERT INTO pcontareceber (descricao) VALUES ('Vendas')"_s);
    receber("2026/11/01", "Pendente", "10,00");
    shell::run_action(u"mnuestplanoreceber"_s);
    auto* w = janela<frmestforncli>("frmestforncli");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->lista_visivel(), w->lstplanos);
    EXPECT_EQ(w->titulo_impressao(), u"ESTATÍSTICAS DE CENTRO DE LUCROS/CUSTOS"_s);
    EXPECT_EQ(w->lblgeral->text(),
              u"Total de receitas: R$ 10,00 - Total pago: R$ 0,00 - Total pendente: R$ 10,00"_s);
}

TEST_F(register_windows, client_list_carries_fifteen_fields_in_fourteen_columns) {
    shell::run_action(u"mnuretfornecedor"_s);
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].text, u"Nenhum cliente cadastrado!"_s);
    exec(u"INSERT INTO cliente (nome, tipo, cpf, nascimento, cep, tel, tel2, cel, email, site) VALUES ('Zé', "
         u"'f', "
         "'1', '1990/05/04', '', '01000-000', '3333-0000', '9999-0000', 'ze@x.com', 'ze.com'), ('Ana', 'j', "
         "'2', "
         "'', '', '', '', '', '', '')"_s);
    shell::run_action(u"mnuretcliente"_s);
    auto* w = janela<frmrelatorio>("frmrelatorio");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), u"Relatório de clientes"_s);
    EXPECT_EQ(w->LBLTIPO->text(), u"CLIENTES"_s);
    EXPECT_EQ(w->lblsubtitulo->text(), u"........................."_s);
    EXPECT_EQ(w->lblgeral->text(), u"Total de clientes cadastrados: 2"_s);
    ASSERT_EQ(w->lstclientes->row_count(), 2);
    EXPECT_EQ(w->lstclientes->text(0, 0), u"Ana"_s);
    EXPECT_EQ(w->lstclientes->text(0, 1), u"Pessoa Jurídica"_s);
    EXPECT_EQ(w->lstclientes->text(1, 1), u"Pessoa Física"_s);
    EXPECT_EQ(w->lstclientes->text(1, 3), u"04/05/1990"_s);
    // under "Telefone" the postal code column tel, under "E-mail" the mobile, under "Site" the e-mail
    EXPECT_EQ(w->lstclientes->text(1, 10), u"01000-000"_s);
    EXPECT_EQ(w->lstclientes->text(1, 12), u"9999-0000"_s);
    EXPECT_EQ(w->lstclientes->text(1, 13), u"ze@x.com"_s);
}

TEST_F(register_windows, the_software_window_tells_version_place_size_and_network) {
    EXPECT_EQ(analysis::tamanho_em_megabytes(1572864), u"1,50 MegaBytes"_s);
    EXPECT_EQ(analysis::tamanho_em_megabytes(0), u"0,00 MegaBytes"_s);
    shell::run_action(u"mnuestsoftware"_s);
    auto* w = janela<frmestsoftware>("frmestsoftware");
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), u"Estatísticas do software"_s);
    EXPECT_TRUE(QRegularExpression(u"^\\d+\\.\\d+\\.\\d+$"_s).match(w->lblversao->text()).hasMatch());
    EXPECT_EQ(w->lblnomesoft->text(), u"Quintara "_s + w->lblversao->text());
    EXPECT_EQ(w->txtbd->text(), path(u"dados.qntbd"_s));
    EXPECT_EQ(w->lbllocal->text(), path(QString()).chopped(1));
    EXPECT_EQ(w->lblultimobk->text(), u"Nunca foi realizado"_s);
    EXPECT_EQ(w->lblultimamanu->text(), u"Nunca foi realizado"_s);
    EXPECT_EQ(w->lblrede->text(), u"Não"_s);
    store::save_setting(store::secao_config, u"RedeLocal"_s, u"/srv/rede/dados.qntbd"_s);
    store::save_setting(store::secao_config, u"BackupData"_s, u"20/11/2026"_s);
    w->carregar();
    EXPECT_EQ(w->lblrede->text(), u"Sim"_s);
    EXPECT_EQ(w->lbllocal->text(), u"/srv/rede"_s);
    EXPECT_EQ(w->lblultimobk->text(), u"20/11/2026"_s);
    EXPECT_EQ(w->txtbd->text(), path(u"dados.qntbd"_s));
}
