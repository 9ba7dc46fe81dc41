// Contacts and their history without windows: the misnamed columns, the statements, what the
// form writes and the list shows, the history's tally.

#include "registers/contatos.h"
#include "registers/historico.h"
#include "store/conexao.h"
#include "support/fixture.h"

using namespace Qt::Literals::StringLiterals;
using namespace registers;

namespace {

class contatos_test : public support::fixture {
protected:
    void gravar(const ficha& f) {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(u"cliente"_s, store::conexao, sql::keyset, sql::pessimistic);
        rs.add_new();
        gravar_ficha(rs, f, true);
        rs.update();
    }
    void entrada(const QString& nome, const QString& data, const QString& valor, const QString& estatus) {
        exec(u"INSERT INTO receber (cliente, data, documento, descricao, origem, moeda, Valor, estatus, "
             u"informacoes) VALUES ('%1', '%2', 'D1', 'Vendas', 'Caixa', 'R$', '%3', '%4', 'nota')"_s.arg(
                 nome, data, valor, estatus));
    }
};

TEST(contatos, fields_map_to_their_misnamed_columns) {
    const struct {
        const char* campo;
        const char* busca;
        const char* ordem;
    } casos[] = {
        {"Nome do cliente", "nome", "nome"},
        {"Nome do fornecedor", "nome", "nome"},
        {"País", "pais", "pais"},
        {"ESTADO", "estado", "estado"},
        {"Cidade", "cidade", "cidade"},
        {"Bairro", "bairro", "bairro"},
        {"Data de nascimento", "nascimento", ""},
        {"CEP", "", "tel"},
        {"CPF/CNPJ", "", "cpf"},
        {"Telefone", "", "tel2"},
    };
    for (const auto& c : casos) {
        EXPECT_EQ(coluna_busca(QString::fromUtf8(c.campo)), QString::fromUtf8(c.busca)) << c.campo;
        EXPECT_EQ(coluna_ordem(QString::fromUtf8(c.campo)), QString::fromUtf8(c.ordem)) << c.campo;
    }
}

TEST(contatos, statements_and_the_supplier_slips) {
    // the full list ignores the order box; the search uses it
    EXPECT_EQ(statement_tudo(contato::cliente, u"CEP"_s), u"SELECT * FROM [cliente] ORDER BY [tel] ASC"_s);
    EXPECT_EQ(statement_filtro(contato::fornecedor, u"Cidade"_s, u"Rio"_s, u"Telefone"_s, u"Decrescente"_s),
              u"select * from [fornecedor] where (cidade like '%Rio%') order by [tel2] DESC"_s);
    EXPECT_EQ(statement_filtro(contato::cliente, u"País"_s, u"a"_s, u"Bairro"_s, u"Crescente"_s),
              u"select * from [cliente] where (pais like '%a%') order by [bairro] ASC"_s);
    EXPECT_EQ(topo_filtro(u"Estado"_s, u"SP"_s), u"Filtrando dados por Estado - SP"_s);
    EXPECT_EQ(statement_remover(contato::fornecedor, u"7"_s),
              u"Delete FROM fornecedor where(código like '7')"_s);

    const contato_textos& f = textos(contato::fornecedor);
    EXPECT_EQ(f.topo_abertura, u"Exibindo todos os fornecedores"_s);
    EXPECT_EQ(f.topo_tudo, u"Exibindo todos os clientes"_s);
    EXPECT_EQ(f.cabecalho_arquivo, u"LISTA DE FORNECEDOR"_s);
    EXPECT_EQ(f.titulo_impressao, u"LISTA DE FORNECEDORES"_s);
    EXPECT_EQ(f.mnumaladireta, u"Mala direta / Etiquetas"_s);
    EXPECT_EQ(textos(contato::cliente).mnumaladireta, u"Mala Direta / Etiquetas"_s);
    EXPECT_TRUE(f.alarga_chave);
    EXPECT_FALSE(textos(contato::cliente).alarga_chave);
}

TEST_F(contatos_test, the_form_writes_what_the_list_shows) {
    ficha f;
    f.nome = u"  Ana Souza "_s;
    f.cpf = u" 123.456.789-00 "_s;
    f.nascimento = u"05/03/1980"_s;
    f.pais = u"Brasil"_s, f.estado = u"SP"_s, f.cidade = u"Campinas"_s, f.bairro = u"Centro"_s;
    f.endereco = u"Rua A, 1"_s, f.tel = u"13010-000"_s, f.tel2 = u"(19) 3232-0000"_s, f.cel = u"9999"_s;
    f.site = u"ana.com.br"_s, f.email = u"ana@x.com"_s, f.insc = u"ISENTO"_s, f.local = u" /img/ana.jpg"_s;
    f.adicionais = u" cliente antiga "_s;
    f.pessoa_fisica = false;
    gravar(f);
    EXPECT_EQ(rows(u"SELECT nome, cpf, nascimento, tipo, local, adicionais, cep FROM cliente"_s),
              QStringList{u"Ana Souza|123.456.789-00|1980/03/05|j| /img/ana.jpg| cliente antiga |"_s});
    const auto lista = carregar_contatos(statement_tudo(contato::cliente, u"Nome do cliente"_s));
    ASSERT_EQ(lista.size(), 1u);
    EXPECT_EQ(lista[0].mid(1),
              (QStringList{u"Ana Souza"_s, u"Pessoa Jurídica"_s, u"123.456.789-00"_s, u"05/03/1980"_s,
                           u"Brasil"_s, u"SP"_s, u"Campinas"_s, u"Centro"_s, u"Rua A, 1"_s, u"13010-000"_s,
                           u"(19) 3232-0000"_s, u"9999"_s, u"ana@x.com"_s, u"ana.com.br"_s}));
    // the edit reads a birth date column the table does not have
    EXPECT_TRUE(ordem_leitura().contains(u"data"_s));
    EXPECT_FALSE(ordem_leitura().contains(u"nascimento"_s));
}

TEST_F(contatos_test, an_apostrophe_in_the_search_fails_the_statement) {
    ficha f;
    f.nome = u"D'Ávila"_s;
    gravar(f);
    EXPECT_THROW(carregar_contatos(statement_filtro(contato::cliente, u"Nome do cliente"_s, u"D'"_s,
                                                    u"Nome do cliente"_s, u"Crescente"_s)),
                 sql::error);
    EXPECT_EQ(carregar_contatos(statement_tudo(contato::cliente, u"Nome do cliente"_s)).size(), 1u);
}

TEST_F(contatos_test, history_statements_rows_and_totals) {
    EXPECT_EQ(
        statement_historico(contato::fornecedor, u"Acme"_s, situacao::pendente),
        u"SELECT * FROM pagar where (fornecedor like 'Acme') AND (estatus like 'Pendente') order by data asc"_s);
    EXPECT_EQ(
        statement_historico(contato::cliente, u"Ana"_s, situacao::concluido),
        u"SELECT * FROM receber where (cliente like 'Ana') AND (estatus like 'Concluído') order by data asc"_s);
    EXPECT_EQ(linha_situacao(situacao::concluido), u" Estatus: Exibindo apenas dados concluídos"_s);

    entrada(u"Ana"_s, u"2026/02/10"_s, u"1.234,567"_s, u"Pendente"_s);
    entrada(u"Ana"_s, u"2025/12/01"_s, u"100,004"_s, u"Concluído"_s);
    entrada(u"Ana"_s, u"2026/01/05"_s, u"0,5"_s, u"pendente"_s); // not "Pendente" as written: received
    entrada(u"Bia"_s, u"2026/01/05"_s, u"99"_s, u"Pendente"_s);
    const historico_carregado h =
        carregar_historico(statement_historico(contato::cliente, u"ana"_s, situacao::tudo));
    ASSERT_EQ(h.linhas.size(), 3u);
    EXPECT_EQ(h.linhas[0], (QStringList{u"01/12/2025"_s, u"D1 "_s, u"Vendas"_s, u"Caixa "_s, u"R$ 100,00"_s,
                                        u"Concluído"_s, u"nota "_s}));
    EXPECT_EQ(h.linhas[2][0], u"10/02/2026"_s);
    // each amount rounded to cents before it is added: 1.234,57 + 100,00 + 0,50
    EXPECT_EQ(linha_totais(contato::cliente, h.soma),
              u"3 cadastrados  -  Total de lucros: R$ 1.335,07  -  Total recebido: R$ 100,50  -  Total "
              u"pendente: R$ 1.234,57"_s);
    EXPECT_EQ(
        linha_totais(contato::fornecedor, {}),
        u"0 cadastrados  -  Total de despesas: R$ 0,00  -  Total pago: R$ 0,00  -  Total pendente: R$ 0,00"_s);
    // a "%" in the name is a pattern
    EXPECT_EQ(
        carregar_historico(statement_historico(contato::cliente, u"%"_s, situacao::pendente)).linhas.size(),
        3u);
}

TEST_F(contatos_test, the_printed_contact_block) {
    ficha f;
    f.nome = u"Ana"_s, f.cpf = u"1"_s, f.tel = u"cep"_s, f.tel2 = u"fone"_s, f.cel = u"cel"_s;
    f.insc = u"ie"_s, f.nascimento = u"01/02/1990"_s;
    gravar(f);
    const QString codigo = rows(u"SELECT código FROM cliente"_s).value(0);
    const bloco_contato b = ler_bloco(contato::cliente, u"Ana"_s, codigo);
    EXPECT_EQ(
        QStringList({b.nome, b.tipo, b.cpf, b.tel, b.cel, b.insc, b.nascimento}),
        QStringList({u"Ana"_s, u"Pessoa Física"_s, u"1"_s, u"fone"_s, u"cel"_s, u"ie"_s, u"01/02/1990"_s}));
    EXPECT_TRUE(ler_bloco(contato::cliente, u"X"_s, u"999"_s).cpf.isEmpty());
}

} // namespace
