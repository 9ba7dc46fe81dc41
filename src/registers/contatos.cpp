#include "registers/contatos.h"

#include "platform/sql/jet_dialect.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"

namespace registers {

namespace {

QString s(const char* t) {
    return QString::fromUtf8(t);
}

contato_textos make(bool cli) {
    contato_textos t;
    t.tabela = cli ? s("cliente") : s("fornecedor");
    t.janela_lista = cli ? s("frmcliente") : s("frmfornecedor");
    t.janela_ficha = cli ? s("frmcadcli") : s("frmcadforn");
    t.janela_historico = cli ? s("frmfincli") : s("frmfinforn");
    t.titulo_lista = cli ? s("LISTA DE CLIENTES") : s("LISTA DE FORNECEDORES");
    t.campo_nome = cli ? s("Nome do cliente") : s("Nome do fornecedor");
    t.campo_tipo = cli ? s("Tipo de cliente") : s("Tipo de fornecedor");
    t.topo_abertura = cli ? s("Exibindo todos os clientes") : s("Exibindo todos os fornecedores");
    // the supplier list says "clientes" after every full load
    t.topo_tudo = s("Exibindo todos os clientes");
    t.caption_novo = cli ? s("Cadastrar novo cliente") : s("Cadastrar novo fornecedor");
    t.botao_adicionar = cli ? s("Adicionar cliente") : s("Adicionar fornecedor");
    t.caption_editar = cli ? s("Editar cliente") : s("Editar fornecedor");
    t.obrigatorio = cli ? s("O nome do cliente é de preenchimento obrigatório!")
                        : s("O nome do fornecedor é de preenchimento obrigatório!");
    t.rotulo_nome = t.campo_nome + QLatin1Char(':');
    t.rotulo_tipo = t.campo_tipo + QLatin1Char(':');
    // the supplier files' heading is singular
    t.cabecalho_arquivo = cli ? s("LISTA DE CLIENTES") : s("LISTA DE FORNECEDOR");
    t.titulo_impressao = t.titulo_lista;
    t.dialogo_txt = cli ? s("Salvar lista de clientes em txt") : s("Salvar lista de fornecedores em txt");
    t.dialogo_html = cli ? s("Salvar lista de clientes em html") : s("Salvar lista de fornecedores em html");
    t.mnunovo = cli ? s("Novo cliente") : s("Novo fornecedor");
    t.mnueditar = t.caption_editar;
    t.mnuremover = cli ? s("Remover cliente") : s("Remover fornecedor");
    t.mnumaladireta = cli ? s("Mala Direta / Etiquetas") : s("Mala direta / Etiquetas");
    t.mnufin = cli ? s("Financeiro do cliente") : s("Financeiro do fornecedor");
    t.alarga_chave = !cli;
    return t;
}

} // namespace

const contato_textos& textos(contato c) {
    static const contato_textos cli = make(true), forn = make(false);
    return c == contato::cliente ? cli : forn;
}

QString coluna_busca(const QString& campo) {
    const QString l = campo.toLower();
    if (l == s("nome do cliente") || l == s("nome do fornecedor")) return s("nome");
    if (l == s("país")) return s("pais");
    if (l == s("estado") || l == s("cidade") || l == s("bairro")) return l;
    if (l == s("data de nascimento")) return s("nascimento");
    return {};
}

QString coluna_ordem(const QString& campo) {
    const QString l = campo.toLower();
    if (l == s("cep")) return s("tel");
    if (l == s("cpf/cnpj")) return s("cpf");
    if (l == s("telefone")) return s("tel2");
    if (l == s("data de nascimento")) return {};
    return coluna_busca(campo);
}

QStringList itens_busca(contato c) {
    return {textos(c).campo_nome, s("País"), s("Estado"), s("Cidade"), s("Bairro"), s("Data de nascimento")};
}

QStringList itens_ordem(contato c) {
    return {textos(c).campo_nome, s("País"), s("Estado"),   s("Cidade"),
            s("Bairro"),          s("CEP"),  s("CPF/CNPJ"), s("Telefone")};
}

QString statement_tudo(contato c, const QString& cbofiltro) {
    return s("SELECT * FROM [") + textos(c).tabela + s("] ORDER BY [") + coluna_ordem(cbofiltro) + s("] ASC");
}

QString statement_filtro(contato c, const QString& cbotipo, const QString& txtbusca, const QString& cbofiltro,
                         const QString& cboordem) {
    const QString ordem = cboordem.toLower() == s("decrescente") ? s("DESC") : s("ASC");
    return s("select * from [") + textos(c).tabela + s("] where (") + coluna_busca(cbotipo) + s(" like '%") +
           sql::value(txtbusca) + s("%') order by [") + coluna_ordem(cbofiltro) + s("] ") + ordem;
}

QString topo_filtro(const QString& cbotipo, const QString& txtbusca) {
    return s("Filtrando dados por ") + cbotipo + s(" - ") + txtbusca;
}

QString statement_registro(contato c, const QString& codigo) {
    return s("SELECT * FROM ") + textos(c).tabela + s(" where(código like '") + sql::value(codigo) + s("')");
}

QString statement_ficha(contato c, const QString& codigo) {
    return s("select * from ") + textos(c).tabela + s(" where (código like '") + sql::value(codigo) + s("')");
}

QString statement_remover(contato c, const QString& codigo) {
    return s("Delete FROM ") + textos(c).tabela + s(" where(código like '") + sql::value(codigo) + s("')");
}

std::vector<QString> statements_distintos(contato c) {
    std::vector<QString> out;
    for (const char* col : {"estado", "cidade", "bairro", "pais"})
        out.push_back(s("SELECT DISTINCT ") + s(col) + s(" from ") + textos(c).tabela);
    return out;
}

std::vector<coluna> colunas_lista(contato c) {
    const contato_textos& t = textos(c);
    return {{s("Código"), 0},
            {t.campo_nome, 2800},
            {t.campo_tipo, 1500},
            {s("CPF/CNPJ"), 1700},
            {s("Nascimento"), 1250},
            {s("País"), 1100},
            {s("Estado"), 800},
            {s("Cidade"), 1500},
            {s("Bairro"), 1500},
            {s("Endereço"), 2800},
            {s("CEP"), 1100},
            {s("Telefone"), 1400},
            {s("Celular/Nextel"), 1400},
            {s("E-mail"), 2200},
            {s("Site"), 2200}};
}

QStringList linha_contato(const sql::recordset& rs) {
    QStringList row;
    row.reserve(15);
    row << rs.text(store::coluna::codigo) << rs.text(s("nome"))
        << (rs.text(s("tipo")) == QLatin1String("f") ? s("Pessoa Física") : s("Pessoa Jurídica"))
        << rs.text(s("cpf")) << vb::format_date_text(rs.text(s("nascimento")), s("dd/mm/yyyy"));
    for (const char* col :
         {"pais", "estado", "cidade", "bairro", "endereco", "tel", "tel2", "cel", "email", "site"})
        row << rs.text(s(col));
    return row;
}

std::vector<QStringList> carregar_contatos(const QString& statement) {
    store::conectarbanco();
    sql::recordset rs;
    rs.open(statement, store::conexao, sql::keyset, sql::read_only);
    std::vector<QStringList> rows;
    rows.reserve(std::size_t(rs.record_count()));
    for (; !rs.eof(); rs.move_next())
        rows.push_back(linha_contato(rs));
    rs.close();
    return rows;
}

void gravar_ficha(sql::recordset& rs, const ficha& f, bool adicionando) {
    using vb::trim_blanks;
    rs.set(s("nome"), trim_blanks(f.nome));
    rs.set(s("cpf"), trim_blanks(f.cpf));
    // an empty date goes through the formatting as it is
    rs.set(s("nascimento"), vb::format_date_text(f.nascimento, s("yyyy/mm/dd")));
    rs.set(s("pais"), trim_blanks(f.pais));
    rs.set(s("estado"), trim_blanks(f.estado));
    rs.set(s("cidade"), trim_blanks(f.cidade));
    rs.set(s("bairro"), trim_blanks(f.bairro));
    rs.set(s("endereco"), trim_blanks(f.endereco));
    rs.set(s("tel"), trim_blanks(f.tel));
    rs.set(s("tel2"), trim_blanks(f.tel2));
    rs.set(s("cel"), trim_blanks(f.cel));
    rs.set(s("site"), trim_blanks(f.site));
    rs.set(s("email"), trim_blanks(f.email));
    rs.set(s("insc"), trim_blanks(f.insc));
    rs.set(s("local"), f.local);
    if (adicionando) rs.set(s("adicionais"), f.adicionais);
    rs.set(s("tipo"), f.pessoa_fisica ? s("f") : s("j"));
    if (!adicionando) rs.set(s("adicionais"), f.adicionais);
}

const QStringList& ordem_leitura() {
    static const QStringList ordem = {s("nome"),   s("cpf"),    s("data"),     s("pais"),       s("cidade"),
                                      s("estado"), s("bairro"), s("endereco"), s("tel"),        s("tel2"),
                                      s("cel"),    s("site"),   s("email"),    s("adicionais"), s("insc")};
    return ordem;
}

} // namespace registers
