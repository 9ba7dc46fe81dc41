#include "registers/historico.h"

#include "platform/sql/jet_dialect.h"
#include "store/conexao.h"

namespace registers {

namespace {

QString s(const char* t) {
    return QString::fromUtf8(t);
}

historico_textos make(bool cli) {
    historico_textos t;
    t.janela = cli ? s("frmfincli") : s("frmfinforn");
    t.caption = cli ? s("Financeiro do cliente") : s("Financeiro com o fornecedor");
    t.statement_nomes =
        cli ? s("SELECT * FROM cliente order by nome") : s("SELECT * from fornecedor order by nome");
    t.prefixo = cli ? s("SELECT * FROM receber where (cliente like '")
                    : s("SELECT * FROM pagar where (fornecedor like '");
    t.lista = cli ? s("lstreceber") : s("lstpagar");
    t.rotulo = cli ? s("lblreceberest") : s("lblpagarest");
    t.total = cli ? s(" cadastrados  -  Total de lucros: R$ ") : s(" cadastrados  -  Total de despesas: R$ ");
    t.feito = cli ? s("  -  Total recebido: R$ ") : s("  -  Total pago: R$ ");
    t.nenhum = cli ? s("Nenhum cliente foi selecionado!") : s("Nenhum fornecedor foi selecionado!");
    t.carregando = cli ? s("Carregando financeiro do cliente") : s("Carregando financeiro do fornecedor");
    t.arquivo_nome = cli ? s("Cliente: ") : s("Fornecedor: ");
    t.pagina_nome = cli ? s("Cliente: ") : s("fornecedor: ");
    t.titulo_impressao = cli ? s("HISTÓRICO FINANCEIRO DE CLIENTE") : s("HISTÓRICO FINANCEIRO DE FORNECEDOR");
    t.dialogo_txt =
        cli ? s("Salvar financeiro de cliente em txt") : s("Salvar financeiro de fornecedor em txt");
    t.dialogo_html =
        cli ? s("Salvar financeiro de cliente em html") : s("Salvar financeiro de fornecedor em html");
    // the supplier twin still speaks of income here
    t.explicacao = s("A tabela abaixo mostra todas as receitas relativas ao ") +
                   (cli ? s("cliente") : s("fornecedor")) +
                   s(" selecionado, você pode salvar os dados ou imprimi-los clicando nos botões na parte "
                     "inferior.");
    return t;
}

} // namespace

const historico_textos& historico(contato c) {
    static const historico_textos cli = make(true), forn = make(false);
    return c == contato::cliente ? cli : forn;
}

QString statement_historico(contato c, const QString& nome, situacao sit) {
    QString st = historico(c).prefixo + sql::value(nome);
    switch (sit) {
    case situacao::tudo:
        st += s("')");
        break;
    case situacao::pendente:
        st += s("') AND (estatus like 'Pendente')");
        break;
    case situacao::concluido:
        st += s("') AND (estatus like 'Concluído')");
        break;
    }
    return st + s(" order by data asc");
}

QString statement_contato(contato c, const QString& nome) {
    return s("select * from ") + textos(c).tabela + s(" where (nome like '") + sql::value(nome) + s("')");
}

QString statement_bloco(contato c, const QString& codigo) {
    return s("SELECT [cpf],[tipo],[tel2],[cel],[nascimento],[insc] FROM [") + textos(c).tabela +
           s("] WHERE código like '") + sql::value(codigo) + s("'");
}

QString linha_situacao(situacao sit) {
    switch (sit) {
    case situacao::tudo:
        return s(" Estatus: Exibindo todos os dados");
    case situacao::pendente:
        return s(" Estatus: Exibindo apenas dados pendentes");
    case situacao::concluido:
        break;
    }
    return s(" Estatus: Exibindo apenas dados concluídos");
}

QStringList colunas_historico() {
    return {s("Data"),  s("Documento"), s("Centro de lucro"), s("Conta origem"),
            s("Valor"), s("Estatus"),   s("Informações")};
}

QStringList linha_historico(const sql::recordset& rs) {
    const QString blank = s(" ");
    return {vb::format_date_text(rs.text(store::coluna::data), s("dd/mm/yyyy")),
            rs.text(store::coluna::documento) + blank,
            rs.text(store::coluna::descricao),
            rs.text(store::coluna::origem) + blank,
            rs.text(store::coluna::moeda) + blank + vb::reformat_money_text(rs.text(store::coluna::valor)),
            rs.text(store::coluna::estatus),
            rs.text(store::coluna::informacoes) + blank};
}

void apuracao::somar(const QString& estatus, const QString& valor) {
    ++quantidade;
    const vb::currency v = vb::money_of(vb::reformat_money_text(valor));
    total += v;
    if (estatus == store::palavra::pendente)
        pendente += v;
    else
        feito += v;
}

QString linha_totais(contato c, const apuracao& a) {
    const historico_textos& t = historico(c);
    return QString::number(a.quantidade) + t.total + vb::format_money(a.total) + t.feito +
           vb::format_money(a.feito) + s("  -  Total pendente: R$ ") + vb::format_money(a.pendente);
}

QString totais_iniciais() {
    return s("Total de contas receber: 0 cadastros");
}

historico_carregado carregar_historico(const QString& statement) {
    store::conectarbanco();
    sql::recordset rs;
    rs.open(statement, store::conexao, sql::keyset, sql::read_only);
    historico_carregado out;
    out.linhas.reserve(std::size_t(rs.record_count()));
    for (; !rs.eof(); rs.move_next()) {
        out.linhas.push_back(linha_historico(rs));
        out.soma.somar(rs.text(store::coluna::estatus), rs.text(store::coluna::valor));
    }
    rs.close();
    return out;
}

bloco_contato ler_bloco(contato c, const QString& nome, const QString& codigo) {
    bloco_contato b;
    b.nome = nome;
    store::conectarbanco();
    sql::recordset rs;
    rs.open(statement_bloco(c, codigo), store::conexao, sql::keyset, sql::read_only);
    if (rs.eof()) return b;
    b.cpf = rs.text(s("cpf"));
    b.tipo = rs.text(s("tipo")) == QLatin1String("f") ? s("Pessoa Física") : s("Pessoa Jurídica");
    b.tel = rs.text(s("tel2"));
    b.cel = rs.text(s("cel"));
    b.nascimento = vb::format_date_text(rs.text(s("nascimento")), s("dd/mm/yyyy"));
    b.insc = rs.text(s("insc"));
    return b;
}

} // namespace registers
