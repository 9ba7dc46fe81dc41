// The contact windows driven as a user would: the lists from the main menu, search and sort,
// add, edit and remove, the quick add from the entry windows, export and print, the history.

#include "entries/ui/frmmultiplos.h"
#include "platform/print/printer.h"
#include "registers/ui/frmcadcontato.h"
#include "registers/ui/frmcontatos.h"
#include "registers/ui/frmfincontato.h"
#include "shell/principal_api.h"
#include "support/golden.h"
#include "support/key_input.h"
#include "support/window_fixture.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QRadioButton>
#include <QToolBar>

using namespace Qt::Literals::StringLiterals;
using registers::contato;

namespace {

class contact_windows : public support::window_fixture {
protected:
    void SetUp() override {
        window_fixture::SetUp();
        platform::set_print_destination(&pdf_);
    }
    void TearDown() override {
        platform::set_print_destination(nullptr);
        for (contato c : {contato::cliente, contato::fornecedor}) {
            delete frmcontatos::aberto(c);
            delete frmcadcontato::aberto(c);
            delete frmfincontato::aberto(c);
        }
        delete frmmultiplos::aberto();
        window_fixture::TearDown();
    }
    void contato_(const QString& tabela, const QString& nome, const QString& cidade, const QString& cep,
                  const QString& nascimento = {}, const QString& local = {}) {
        exec(u"INSERT INTO %1 (nome, tipo, cpf, nascimento, pais, estado, cidade, bairro, tel, tel2, email, "
             u"site, local) VALUES ('%2', 'f', '1', '%3', 'Brasil', 'SP', '%4', 'Centro', '%5', '9', "
             u"'%2@x.com', "
             u"'www.%2.com', '%6')"_s.arg(tabela, nome, nascimento, cidade, cep, local));
    }
    frmcontatos* lista(contato c = contato::cliente) {
        p->findChild<QAction*>(c == contato::cliente ? u"mnuclientes"_s : u"mnufornecedores"_s)->trigger();
        frmcontatos* f = frmcontatos::aberto(c);
        EXPECT_TRUE(f && f->isVisible());
        return f;
    }
    static QStringList nomes(frmcontatos* f) {
        QStringList out;
        for (int r = 0; r < f->lstcontato->row_count(); ++r)
            out << f->lstcontato->text(r, 1);
        return out;
    }
    static QStringList file_lines(const QString& file) { return support::read_text(file).split(u"\r\n"_s); }
    platform::pdf_target pdf_{path(u"impresso.pdf"_s)};
};

TEST_F(contact_windows, search_by_each_field_and_order) {
    contato_(u"cliente"_s, u"Carla"_s, u"Campinas"_s, u"30000"_s, u"1990/05/01"_s);
    contato_(u"cliente"_s, u"Ana"_s, u"Santos"_s, u"20000"_s);
    contato_(u"cliente"_s, u"Bruno"_s, u"Campos"_s, u"10000"_s);
    frmcontatos* f = lista();
    EXPECT_EQ(f->windowTitle(), u"LISTA DE CLIENTES"_s);
    EXPECT_EQ(nomes(f), (QStringList{u"Ana"_s, u"Bruno"_s, u"Carla"_s}));
    EXPECT_EQ(f->lbltopo->text(), u"Exibindo todos os clientes"_s);
    EXPECT_EQ(f->lstcontato->column_width(0), 0.0);
    EXPECT_EQ(f->lstcontato->text(2, 4), u"01/05/1990"_s);

    // "CEP" sorts by tel; "Decrescente" without a search text changes nothing
    f->cbofiltro->setCurrentText(u"CEP"_s);
    f->cboordem->setCurrentText(u"Decrescente"_s);
    f->Carregartudo();
    EXPECT_EQ(nomes(f), (QStringList{u"Bruno"_s, u"Ana"_s, u"Carla"_s}));

    const struct {
        const char* campo;
        const char* texto;
        QStringList esperado;
    } casos[] = {
        {"Nome do cliente", "a", {u"Carla"_s, u"Ana"_s}}, // descending by CEP now
        {"Cidade", "camp", {u"Carla"_s, u"Bruno"_s}},
        {"Estado", "sp", {u"Carla"_s, u"Ana"_s, u"Bruno"_s}},
        {"Data de nascimento", "1990", {u"Carla"_s}},
        {"Bairro", "nada", {}},
    };
    for (const auto& c : casos) {
        f->cbotipo->setCurrentText(QString::fromUtf8(c.campo));
        f->txtbusca->setText(QString::fromUtf8(c.texto));
        EXPECT_EQ(nomes(f), c.esperado) << c.campo;
        EXPECT_EQ(f->lbltopo->text(), u"Filtrando dados por "_s + QString::fromUtf8(c.campo) + u" - "_s +
                                          QString::fromUtf8(c.texto));
    }
    f->cmdtudo->click();
    EXPECT_EQ(nomes(f).size(), 3);
    EXPECT_EQ(f->lbltopo->text(), u"Exibindo todos os clientes"_s);

    // an apostrophe: the loader's box and a cleared list
    prompts_.clear();
    f->txtbusca->setText(u"D'"_s);
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
    EXPECT_TRUE(prompts_.boxes()[0].text.startsWith(u"Ocorreu o seguinte erro: "_s));
    EXPECT_EQ(f->lstcontato->row_count(), 0);
}

TEST_F(contact_windows, add_edit_and_remove) {
    frmcontatos* f = lista();
    keys::alt(f->lstcontato, 'A');
    frmcadcontato* c = frmcadcontato::aberto(contato::cliente);
    ASSERT_TRUE(c && c->isVisible());
    EXPECT_EQ(c->windowTitle(), u"Cadastrar novo cliente"_s);
    EXPECT_EQ(c->cmdok->text(), u"Adicionar cliente"_s);
    EXPECT_EQ(c->XTab1->currentIndex(), 0);

    c->txtnome->setText(u"   "_s);
    c->cmdok->click();
    EXPECT_EQ(boxes(), QStringList{u"Erro: O nome do cliente é de preenchimento obrigatório!"_s});
    EXPECT_EQ(prompts_.boxes()[0].style, platform::critical);

    prompts_.clear();
    c->txtnome->setText(u" Davi "_s);
    c->cbonascimento->set_text(u"02/03/2001"_s);
    c->txttel->setText(u"01000-000"_s);
    c->txtendereco->setText(QString(3000, u'x'));
    c->optcnpj->setChecked(true);
    prompts_.answer_text(path(u"nao-existe.jpg"_s));
    c->img1_click();
    EXPECT_EQ(c->lbllocal->text(), path(u"nao-existe.jpg"_s));
    c->cmdok->click();
    EXPECT_TRUE(prompts_.boxes().empty()); // no success message
    settle();
    EXPECT_EQ(frmcadcontato::aberto(contato::cliente), nullptr);
    EXPECT_EQ(rows(u"SELECT nome, nascimento, tel, tipo, local, length(endereco) FROM cliente"_s),
              QStringList{u"Davi|2001/03/02|01000-000|j|"_s + path(u"nao-existe.jpg"_s) + u"|3000"_s});
    EXPECT_EQ(nomes(f), QStringList{u"Davi"_s});

    // edit: the birth date is read from a column that does not exist and is written back empty
    f->lstcontato->select_row(0);
    f->mnupopup->findChild<QAction*>(u"mnueditar"_s)->trigger();
    c = frmcadcontato::aberto(contato::cliente);
    ASSERT_TRUE(c);
    EXPECT_EQ(c->windowTitle(), u"Editar cliente"_s);
    EXPECT_EQ(c->txtnome->text(), u"Davi"_s);
    EXPECT_TRUE(c->optcnpj->isChecked());
    EXPECT_TRUE(c->cbonascimento->text().isEmpty());
    EXPECT_EQ(c->lbllocal->text(), path(u"nao-existe.jpg"_s)); // a missing picture shows none
    c->txtcidade->setEditText(u"Recife"_s);
    c->cmdok->click();
    settle();
    EXPECT_EQ(rows(u"SELECT count(*), cidade, nascimento FROM cliente"_s), QStringList{u"1|Recife|"_s});

    // the same name again is stored again
    f->adicionar();
    c = frmcadcontato::aberto(contato::cliente);
    EXPECT_EQ(c->txtcidade->count(), 1); // the value lists offer what is stored
    c->txtnome->setText(u"Davi"_s);
    c->cmdok->click();
    settle();
    EXPECT_EQ(nomes(f), (QStringList{u"Davi"_s, u"Davi"_s}));

    prompts_.answer(platform::answer_no);
    keys::alt(f->lstcontato, 'R');
    EXPECT_EQ(
        boxes(),
        QStringList{u"Remover: Tem certeza que deseja remover o item selecionado do banco de dados?"_s});
    EXPECT_EQ(nomes(f).size(), 2);
    prompts_.answer(platform::answer_yes);
    f->remover();
    EXPECT_EQ(nomes(f).size(), 1);
    EXPECT_EQ(rows(u"SELECT count(*) FROM cliente"_s), QStringList{u"1"_s});
}

TEST_F(contact_windows, quick_add_from_the_entry_windows) {
    p->adicionarpagar();
    frmadicionar* a = frmadicionar::aberto();
    ASSERT_TRUE(a);
    EXPECT_TRUE(a->cmdforncliinc->isEnabled());
    a->cmdforncliinc->click();
    frmcadcontato* c = frmcadcontato::aberto(contato::fornecedor);
    ASSERT_TRUE(c && c->isVisible());
    EXPECT_EQ(c->windowTitle(), u"Adicionar fornecedor"_s);
    EXPECT_EQ(c->cmdok->text(), u"Adicionar fornecedor"_s);

    p->multiplospagar();
    frmmultiplos* m = frmmultiplos::aberto();
    ASSERT_TRUE(m);
    m->cbotipo->setEditText(u"digitado"_s);
    contato_(u"fornecedor"_s, u"Alfa"_s, u"X"_s, u"1"_s);
    c->txtnome->setText(u"Zeta Ltda"_s);
    c->cmdok->click();
    EXPECT_EQ(items(a->cbotipo), (QStringList{u"Alfa"_s, u"Zeta Ltda"_s}));
    EXPECT_EQ(a->cbotipo->currentText(), u"Zeta Ltda"_s);
    // the series window refills its box but does not take the new name
    EXPECT_EQ(items(m->cbotipo), (QStringList{u"Alfa"_s, u"Zeta Ltda"_s}));
    EXPECT_NE(m->cbotipo->currentText(), u"Zeta Ltda"_s);
}

TEST_F(contact_windows, export_print_and_the_shell) {
    contato_(u"fornecedor"_s, u"Acme"_s, u"Rio"_s, u"1"_s);
    contato_(u"fornecedor"_s, u"Beta"_s, u"Rio"_s, u"2"_s);
    frmcontatos* f = lista(contato::fornecedor);
    EXPECT_EQ(f->mnupopup->actions().size(), 10);
    EXPECT_EQ(f->tbrbarra->actions().size(), 8);
    EXPECT_TRUE(f->tbrbarra->findChild<QAction*>(u"mala"_s)->isEnabled());
    EXPECT_EQ(f->mnupopup->findChild<QAction*>(u"mnumaladireta"_s)->text(), u"Mala direta / Etiquetas"_s);

    prompts_.answer_text(path(u"f.txt"_s));
    prompts_.answer(platform::answer_yes);
    f->tbrbarra->findChild<QAction*>(u"txt"_s)->trigger();
    EXPECT_EQ(prompts_.records()[0].title, u"Salvar lista de fornecedores em txt"_s);
    EXPECT_EQ(prompts_.records()[0].filter, u"Arquivos de Texto(*.txt)|*.txt"_s);
    EXPECT_EQ(boxes().value(0),
              u"Visualizar: Os dados foram salvos com sucesso para arquivo, deseja abrir o arquivo agora?"_s);
    EXPECT_EQ(shell_.opened.value(0), path(u"f.txt"_s));
    EXPECT_EQ(f->lstcontato->column_width(0), 0.0); // widened for the export, set back
    const QStringList linhas = file_lines(path(u"f.txt"_s));
    EXPECT_EQ(linhas.mid(0, 4),
              (QStringList{u"LISTA DE FORNECEDOR"_s, {}, u"Exibindo todos os clientes"_s, {}}));
    EXPECT_EQ(linhas[4], u"Quintara organizando a sua vida financeira!"_s);
    EXPECT_TRUE(linhas[6].contains(u"Nome do fornecedor"_s));
    EXPECT_TRUE(linhas[8].contains(u"Acme"_s));

    prompts_.clear();
    prompts_.answer_text(path(u"f.html"_s));
    prompts_.answer(platform::answer_no);
    keys::alt(f->lstcontato, 'S');
    EXPECT_EQ(prompts_.records()[0].title, u"Salvar lista de fornecedores em html"_s);
    const QString html = file_lines(path(u"f.html"_s)).join(u'\n');
    EXPECT_TRUE(html.contains(u"<center><b>LISTA DE FORNECEDOR</b>"_s));
    EXPECT_TRUE(html.contains(u"<td nowrap>Beta&nbsp;</td>"_s));

    keys::alt(f->lstcontato, 'I');
    const QString impresso = support::pdf_lines(pdf_.path()).join(u' ');
    EXPECT_TRUE(impresso.contains(u"LISTA DE FORNECEDORES"_s)) << impresso.toStdString();
    EXPECT_TRUE(impresso.contains(u"Filtrados por: Exibindo todos os clientes"_s));
    EXPECT_TRUE(impresso.contains(u"Total de cadastros: 2"_s));
    EXPECT_TRUE(impresso.contains(u"Beta"_s));

    shell_.opened.clear();
    f->lstcontato->select_row(1);
    f->mnupopup->findChild<QAction*>(u"mnuemail"_s)->trigger();
    f->mnupopup->findChild<QAction*>(u"mnusite"_s)->trigger();
    EXPECT_EQ(shell_.opened, (QStringList{u"mailto:Beta@x.com"_s, u"www.Beta.com"_s}));
}

TEST_F(contact_windows, history_of_a_client) {
    const QString foto = path(u"fundo.gif"_s);
    contato_(u"cliente"_s, u"Ana"_s, u"Rio"_s, u"1"_s, u"1980/01/02"_s, foto);
    contato_(u"cliente"_s, u"Bia"_s, u"Rio"_s, u"2"_s);
    for (const auto& [nome, valor, estatus] :
         {std::tuple{"Ana", "10,50", "Pendente"}, {"Ana", "20", "Concluído"}, {"Bia", "5", "Pendente"}})
        exec(u"INSERT INTO receber (cliente, data, documento, descricao, origem, moeda, Valor, estatus, "
             u"informacoes) "
             u"VALUES ('%1', '2026/01/01', 'D', 'Vendas', 'Caixa', 'R$', '%2', '%3', 'i')"_s.arg(
                 QString::fromUtf8(nome), QString::fromUtf8(valor), QString::fromUtf8(estatus)));
    frmcontatos* l = lista();
    keys::alt(l->lstcontato, 'F');
    frmfincontato* h = frmfincontato::aberto(contato::cliente);
    ASSERT_TRUE(h && h->isVisible());
    EXPECT_EQ(h->windowTitle(), u"Financeiro do cliente"_s);
    EXPECT_EQ(items(h->cbonome), (QStringList{u"Ana"_s, u"Bia"_s}));
    EXPECT_EQ(h->rotulo->objectName(), u"lblreceberest"_s);

    prompts_.clear();
    h->cmdverificar->click();
    EXPECT_EQ(boxes(), QStringList{u"Erro: Nenhum cliente foi selecionado!"_s});

    h->cbonome->setCurrentIndex(0);
    h->cbonome_click(0);
    EXPECT_EQ(h->cboid->currentIndex(), 0);
    EXPECT_FALSE(h->img1->pixmap().isNull());
    h->optpendente->click();
    EXPECT_EQ(h->lista->row_count(), 1);
    h->opttudo->click();
    EXPECT_EQ(h->lista->row_count(), 2);
    EXPECT_EQ(h->rotulo->text(),
              u"2 cadastrados  -  Total de lucros: R$ 30,50  -  Total recebido: R$ 20,00  -  "
              u"Total pendente: R$ 10,50"_s);

    prompts_.clear();
    prompts_.answer_text(path(u"h.txt"_s));
    prompts_.answer(platform::answer_no);
    h->cmdtxt->click();
    EXPECT_EQ(prompts_.records()[0].title, u"Salvar financeiro de cliente em txt"_s);
    const QStringList linhas = file_lines(path(u"h.txt"_s));
    EXPECT_EQ(linhas.mid(0, 4), (QStringList{u"Financeiro do cliente"_s, {}, u"Cliente: Ana"_s, {}}));
    EXPECT_TRUE(linhas.contains(h->rotulo->text()));

    h->cmdimprimir->click();
    const QString impresso = support::pdf_lines(pdf_.path()).join(u' ');
    EXPECT_TRUE(impresso.contains(u"HISTÓRICO FINANCEIRO DE CLIENTE"_s)) << impresso.toStdString();
    EXPECT_TRUE(impresso.contains(u"Estatus: Exibindo todos os dados"_s));
    EXPECT_TRUE(impresso.contains(u"Data de nascimento: 02/01/1980"_s));
    EXPECT_TRUE(impresso.contains(u"Tipo de cliente: Pessoa Física"_s));

    // an apostrophe in a typed name: a box, no rows, no crash
    prompts_.clear();
    h->cbonome->setEditText(u"D'Ávila"_s);
    h->cmdverificar->click();
    EXPECT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(h->lista->row_count(), 0);
}

TEST_F(contact_windows, the_supplier_history_keeps_its_slips) {
    p->findChild<QAction*>(u"mnufinforn"_s)->trigger();
    frmfincontato* h = frmfincontato::aberto(contato::fornecedor);
    ASSERT_TRUE(h);
    EXPECT_EQ(h->windowTitle(), u"Financeiro com o fornecedor"_s);
    EXPECT_EQ(h->rotulo->text(), u"Total de contas receber: 0 cadastros"_s);
    EXPECT_TRUE(h->lblcliente->text().contains(u"todas as receitas relativas ao fornecedor selecionado"_s));
    EXPECT_EQ(h->lista->objectName(), u"lstpagar"_s);
    EXPECT_EQ(h->lista->column_text(2), u"Centro de lucro"_s);
    EXPECT_EQ(h->optconcluido->text(), u"Exbir apenas concluídas"_s);
    h->cbonome->setEditText(u"Ninguém"_s);
    h->cmdverificar->click();
    EXPECT_EQ(
        h->rotulo->text(),
        u"0 cadastrados  -  Total de despesas: R$ 0,00  -  Total pago: R$ 0,00  -  Total pendente: R$ 0,00"_s);
    prompts_.answer_text(path(u"h.html"_s));
    prompts_.answer(platform::answer_no);
    h->cmdhtml->click();
    EXPECT_TRUE(file_lines(path(u"h.html"_s)).contains(u"fornecedor: Ninguém"_s));
}

} // namespace
