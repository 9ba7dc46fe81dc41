// The cost and profit centre windows: adding, renaming into the entries, removing, the summary
// with its files and print, and what closing refreshes; the chooser of the report filters.

#include "platform/print/printer.h"
#include "registers/centres.h"
#include "registers/ui/frmcentro.h"
#include "registers/ui/frmgeradorad.h"
#include "support/golden.h"
#include "support/window_fixture.h"

#include <QDir>
#include <QFile>
#include <QTabWidget>

using namespace Qt::StringLiterals;
using registers::centro;

namespace {

class centres : public support::window_fixture {
protected:
    void SetUp() override {
        window_fixture::SetUp();
        platform::set_print_destination(&pdf_);
    }
    void TearDown() override {
        delete frmcentrocusto::aberto();
        delete frmcentrolucro::aberto();
        delete frmgeradorad::aberto();
        platform::set_print_destination(nullptr);
        window_fixture::TearDown();
    }
    centre_window* abrir(centro c) {
        p->findChild<QAction*>(c == centro::custo ? u"mnucentrocusto"_s : u"mnucentrolucro"_s)->trigger();
        centre_window* w = c == centro::custo ? static_cast<centre_window*>(frmcentrocusto::aberto())
                                              : static_cast<centre_window*>(frmcentrolucro::aberto());
        EXPECT_TRUE(w && w->isVisible());
        return w;
    }
    void entrada(const char* tabela, const char* descricao, const char* estatus, const char* valor,
                 const char* data = "2026/11/01") {
        const QString t = QString::fromUtf8(tabela);
        exec(u"INSERT INTO %1 (estatus, origem, %2, data, descricao, Valor, vencimento, moeda) "
             u"VALUES ('%3', 'Caixa', 'Fulano', '%4', '%5', '%6', '2026/12/01', 'R$')"_s.arg(
                 t, t == u"pagar"_s ? u"fornecedor"_s : u"cliente"_s, QString::fromUtf8(estatus),
                 QString::fromUtf8(data), QString::fromUtf8(descricao), QString::fromUtf8(valor)));
    }
    static QStringList centros(const centre_window* w) {
        QStringList out;
        for (const QStringList& r : list_rows(w->lista))
            out << r[0];
        return out;
    }
    static void cadastrar(centre_window* w, std::initializer_list<const char*> nomes) {
        for (const char* n : nomes) {
            w->txtnome->setText(QString::fromUtf8(n));
            w->cmdcad->click();
        }
    }
    void selecionar(centre_window* w, const QString& nome) {
        w->lista->select_row(int(centros(w).indexOf(nome)));
    }
    QStringList descricoes(const char* tabela) {
        return rows(u"SELECT descricao FROM %1 ORDER BY \"código\""_s.arg(QString::fromUtf8(tabela)));
    }
    platform::pdf_target pdf_{path(u"centros.pdf"_s)};
};

TEST_F(centres, twins_add_with_their_own_messages_and_orders) {
    const struct {
        centro c;
        const char* vazio;
        const char* duplicado;
        QStringList ordem;
    } cases[] = {
        {centro::custo,
         "O nome do centro de custo não pode estar vazio!",
         "Já existe um centro de custo com o nome cadastrado, por favor selecione outro nome!",
         {u"Aluguel"_s, u"D'Ávila"_s, u"Luz"_s}},
        // the profit twin lists in the table's order and ends its message otherwise
        {centro::lucro,
         "O nome do centro de lucro não pode estar vazio!",
         "Já existe um centro de lucro com o nome cadastrado, por favor digite outro nome!",
         {u"Luz"_s, u"Aluguel"_s, u"D'Ávila"_s}},
    };
    for (const auto& k : cases) {
        centre_window* w = abrir(k.c);
        EXPECT_EQ(w->windowTitle(), registers::gemeo(k.c).caption);
        EXPECT_EQ(w->XTab1->currentIndex(), 0);
        EXPECT_EQ(w->lista->objectName(), k.c == centro::custo ? u"lstcentrocusto"_s : u"lstcentrolucro"_s);
        cadastrar(w, {" Luz ", "Aluguel", "D'Ávila"});
        // the name is trimmed; an apostrophe is no trouble for a new row
        EXPECT_EQ(centros(w), k.ordem);
        EXPECT_TRUE(w->txtnome->text().isEmpty());
        for (const char* n : {"   ", "luz"}) {
            prompts_.clear();
            w->txtnome->setText(QString::fromUtf8(n));
            w->cmdcad->click();
            ASSERT_EQ(prompts_.boxes().size(), 1u);
            EXPECT_EQ(prompts_.boxes()[0].title, u"Erro"_s);
            EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
            EXPECT_EQ(prompts_.boxes()[0].text, QString::fromUtf8(*n == ' ' ? k.vazio : k.duplicado));
        }
        EXPECT_EQ(centros(w).size(), 3);
        w->close();
        prompts_.clear();
    }
}

TEST_F(centres, renaming_carries_the_name_into_the_entries_and_nothing_else_changes) {
    centre_window* w = abrir(centro::custo);
    cadastrar(w, {"Aluguel", "Luz", "D'Ávila"});
    entrada("pagar", "Aluguel", "Pendente", "10,00");
    entrada("pagar", "aluguel", "Concluído", "10,00");
    entrada("pagar", "Luz", "Pendente", "10,00");
    entrada("pagar", "Imóvel", "Pendente", "10,00"); // on entries, not a centre
    entrada("receber", "Aluguel", "Pendente", "10,00");
    const QStringList antes = descricoes("pagar");

    // refused: a name that exists, an apostrophe in the new or the old name, nothing typed
    const struct {
        const char* antigo;
        const char* novo;
        bool mensagem;
    } recusas[] = {{"Aluguel", "LUZ", true},
                   {"Aluguel", "O'Hara", true},
                   {"D'Ávila", "Ávila", true},
                   {"Aluguel", "   ", false},
                   {"Aluguel", "", false}};
    for (const auto& r : recusas) {
        prompts_.clear();
        selecionar(w, QString::fromUtf8(r.antigo));
        prompts_.answer_text(QString::fromUtf8(r.novo));
        w->cmdeditar->click();
        ASSERT_GE(prompts_.records().size(), 1u);
        EXPECT_EQ(prompts_.records()[0].kind, u"inputbox"_s);
        EXPECT_EQ(prompts_.records()[0].title, u"Editar centro de custo"_s);
        EXPECT_EQ(prompts_.records()[0].text, u"Digite o novo nome para este centro de custo"_s);
        EXPECT_EQ(boxes(), r.mensagem
                               ? QStringList{u"Erro: Já existe um centro de custo com o nome cadastrado, "
                                             u"por favor digite outro nome!"_s}
                               : QStringList{})
            << r.novo;
        EXPECT_EQ(descricoes("pagar"), antes) << r.novo;
    }
    EXPECT_EQ(centros(w), (QStringList{u"Aluguel"_s, u"D'Ávila"_s, u"Luz"_s}));

    // a name already on entries: they merge under it; the other ledger is not touched
    selecionar(w, u"Aluguel"_s);
    prompts_.answer_text(u" Imóvel "_s);
    w->cmdeditar->click();
    EXPECT_EQ(descricoes("pagar"), (QStringList{u"Imóvel"_s, u"Imóvel"_s, u"Luz"_s, u"Imóvel"_s}));
    EXPECT_EQ(descricoes("receber"), QStringList{u"Aluguel"_s});
    EXPECT_EQ(centros(w), (QStringList{u"D'Ávila"_s, u"Imóvel"_s, u"Luz"_s}));

    // nothing selected: nothing asked
    prompts_.clear();
    w->lista->select_row(-1);
    w->cmdeditar->click();
    w->cmdremover->click();
    EXPECT_TRUE(prompts_.records().empty());
}

TEST_F(centres, removing_keeps_the_entries_and_their_names) {
    centre_window* w = abrir(centro::lucro);
    cadastrar(w, {"Vendas", "D'Ávila"});
    entrada("receber", "Vendas", "Pendente", "10,00");
    prompts_.clear();
    selecionar(w, u"Vendas"_s);
    prompts_.answer(platform::answer_no);
    w->cmdremover->click();
    EXPECT_EQ(boxes(),
              QStringList{u"Remover: Tem certeza que deseja remover o centro de lucro Vendas do banco de "
                          u"dados?"_s});
    EXPECT_EQ(prompts_.boxes()[0].style, platform::yes_no | platform::question);
    EXPECT_EQ(centros(w).size(), 2);
    w->cmdremover->click(); // Yes
    EXPECT_EQ(centros(w), QStringList{u"D'Ávila"_s});
    EXPECT_EQ(descricoes("receber"), QStringList{u"Vendas"_s});
    // the apostrophe breaks the statement: silently nothing
    prompts_.clear();
    selecionar(w, u"D'Ávila"_s);
    w->cmdremover->click();
    EXPECT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(centros(w), QStringList{u"D'Ávila"_s});
}

TEST_F(centres, summary_counts_pending_against_every_other_status) {
    centre_window* w = abrir(centro::custo);
    w->XTab1->setCurrentIndex(1); // the tab runs the summary: no centre yet
    EXPECT_EQ(boxes(),
              QStringList{u"Plano de conta: Não há nenhum centro de custo, cadastrado no banco de dados! "
                          u"para cadastrar um centro de custo clique no menu principal e depois em centro "
                          u"de custo."_s});
    w->XTab1->setCurrentIndex(0);
    cadastrar(w, {"Energia", "Aluguel", "Material"});
    entrada("pagar", "Aluguel", "Pendente", "1.000,00", "2026/10/05");
    entrada("pagar", "ALUGUEL", "Concluído", "1000", "2026/09/05");
    entrada("pagar", "Energia", "Pendente", "150,555", "2026/11/01");
    entrada("pagar", "Energia", "pendente", "49,444", "2026/11/02");
    entrada("pagar", "Energia", "Cancelado", "10,00", "2026/08/01");
    entrada("pagar", "Outros", "Pendente", "99,00", "2026/11/01");
    const struct {
        const char* de;
        const char* ate;
        std::vector<QStringList> linhas;
        const char* geral;
    } cases[] = {
        {"",
         "30/11/2026",
         {{u"1"_s, u"Aluguel"_s, u"1 (R$ 1.000,00)"_s, u"1 (R$ 1.000,00)"_s, u"2 (R$ 2.000,00)"_s},
          {u"2"_s, u"Energia"_s, u"1 (R$ 150,56)"_s, u"2 (R$ 59,44)"_s, u"3 (R$ 210,00)"_s},
          {u"3"_s, u"Material"_s, u"0 (R$ 0,00)"_s, u"0 (R$ 0,00)"_s, u"0 (R$ 0,00)"_s}},
         "Total de despesas: R$ 2.210,00 - Total pago: R$ 1.059,44 - Total pendente: R$ 1.150,56"},
        {"01/10/2026",
         "30/11/2026",
         {{u"1"_s, u"Aluguel"_s, u"1 (R$ 1.000,00)"_s, u"0 (R$ 0,00)"_s, u"1 (R$ 1.000,00)"_s},
          {u"2"_s, u"Energia"_s, u"1 (R$ 150,56)"_s, u"1 (R$ 49,44)"_s, u"2 (R$ 200,00)"_s},
          {u"3"_s, u"Material"_s, u"0 (R$ 0,00)"_s, u"0 (R$ 0,00)"_s, u"0 (R$ 0,00)"_s}},
         "Total de despesas: R$ 1.200,00 - Total pago: R$ 49,44 - Total pendente: R$ 1.150,56"},
    };
    for (const auto& c : cases) {
        w->cbodata1->set_text(QString::fromUtf8(c.de));
        w->cbodata2->set_text(QString::fromUtf8(c.ate));
        w->cmdver->click();
        EXPECT_EQ(list_rows(w->lstplanos), c.linhas) << c.de;
        EXPECT_EQ(w->lblgeral->text(), QString::fromUtf8(c.geral));
    }

    // the files, byte for byte, and the printed page
    EXPECT_TRUE(saves([&] { w->cmdtxt->click(); }, u"Salvar resumo em txt"_s,
                      u"Arquivos de texto (*.txt)|*.txt"_s, u"registers/resumo_centro_custo.txt"_s));
    EXPECT_TRUE(saves([&] { w->cmdhtml->click(); }, u"Salvar resumo em html"_s,
                      u"Arquivos HTML (*.html)|*.html"_s, u"registers/resumo_centro_custo.html"_s));
    w->cmdimprimir->click();
    QStringList impresso = support::pdf_lines(pdf_.path());
    for (QString& l : impresso)
        if (l.startsWith(u"-----"_s)) l = u"-"_s;
    EXPECT_TRUE(
        support::matches_golden(u"registers/resumo_centro_custo_impresso.txt"_s, impresso.join(u'\n')));
}

TEST_F(centres, entry_windows_open_the_twin_of_their_kind_and_follow_its_changes) {
    nomes(u"pcontapagar"_s, u"descricao"_s, {u"Aluguel"_s});
    nomes(u"pcontareceber"_s, u"descricao"_s, {u"Vendas"_s});
    p->adicionarreceber();
    frmadicionar* a = frmadicionar::aberto();
    ASSERT_TRUE(a);
    EXPECT_EQ(combo(a, "txtdescricao")->currentText(), u"Vendas"_s);
    ASSERT_TRUE(child<QPushButton>(a, "cmddescinc")->isEnabled());
    click(a, "cmddescinc");
    EXPECT_FALSE(a->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    centre_window* w = frmcentrolucro::aberto();
    ASSERT_TRUE(w && w->isVisible());
    EXPECT_EQ(frmcentrocusto::aberto(), nullptr);
    w->txtnome->setText(u" Serviços"_s);
    w->cmdcad->click();
    EXPECT_EQ(items(combo(a, "txtdescricao")), (QStringList{u"Serviços"_s, u"Vendas"_s}));
    EXPECT_EQ(combo(a, "txtdescricao")->currentText(), u" Serviços"_s);
    selecionar(w, u"Serviços"_s);
    prompts_.answer_text(u"Consultoria"_s);
    w->cmdeditar->click();
    EXPECT_EQ(combo(a, "txtdescricao")->currentText(), u"Consultoria"_s);
    // closing refills the open editor's box; with none open, the main list and its boxes
    exec(u"INSERT INTO pcontareceber (descricao) VALUES ('Aluguéis')"_s);
    w->close();
    EXPECT_EQ(items(combo(a, "txtdescricao")), (QStringList{u"Aluguéis"_s, u"Consultoria"_s, u"Vendas"_s}));
    a->close();
    settle();
    entrada("receber", "Consultoria", "Pendente", "5,00");
    ASSERT_EQ(p->lstreceber->row_count(), 0);
    abrir(centro::lucro)->close();
    EXPECT_EQ(p->lstreceber->row_count(), 1);
    EXPECT_TRUE(items(combo(p, "cbocentrolucro")).contains(u"Consultoria"_s));
}

TEST_F(centres, the_chooser_fills_its_box_and_hands_the_text_to_the_caller) {
    QStringList recebidos;
    registers::pedido_lista pedido{u"Adicionado centro de custo"_s,
                                   u"Adicionando um novo centro de custo a lista"_s,
                                   u"select [descricao] from [pcontapagar]"_s,
                                   u"descricao"_s,
                                   u"custo"_s,
                                   [&](const QString& t, const QString& x) { recebidos << t + u":"_s + x; }};
    ASSERT_TRUE(registers::abrir_lista(pedido)); // an empty table: an empty box, an empty line
    frmgeradorad* g = frmgeradorad::aberto();
    ASSERT_TRUE(g && g->isVisible());
    EXPECT_TRUE(g->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(g->windowTitle(), pedido.caption);
    EXPECT_EQ(g->lbltitulo->text(), pedido.titulo);
    EXPECT_EQ(g->cbolista->count(), 0);
    g->cmdadicionar->click();
    EXPECT_EQ(recebidos, QStringList{u"custo:"_s});
    EXPECT_EQ(frmgeradorad::aberto(), nullptr);
    nomes(u"pcontapagar"_s, u"descricao"_s, {u"Luz"_s, u"Água"_s});
    registers::abrir_lista(pedido);
    g = frmgeradorad::aberto();
    EXPECT_EQ(items(g->cbolista), (QStringList{u"Luz"_s, u"Água"_s}));
    EXPECT_EQ(g->cbolista->currentText(), u"Luz"_s);
    g->cbolista->setEditText(u"Água"_s);
    g->cmdadicionar->click();
    EXPECT_EQ(recebidos.last(), u"custo:Água"_s);
    pedido.consulta = u"select [descricao] from [semtabela]"_s;
    EXPECT_THROW(registers::abrir_lista(pedido), sql::error);
}

} // namespace
