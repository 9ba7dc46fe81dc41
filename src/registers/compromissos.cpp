#include "registers/compromissos.h"

#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/text/vb_text.h"
#include "shell/ledger_load.h"
#include "store/conexao.h"

namespace registers {

namespace coluna = store::coluna;
using store::conexao;

namespace {
QString entre_aspas(const QString& antes, const QString& valor, const QString& depois) {
    return antes + sql::value(valor) + depois;
}
} // namespace

QString comando_todos() {
    return QStringLiteral("select * from compromisso order by data asc");
}

QString comando_filtro(const QDate& de, const QDate& ate) {
    return QStringLiteral("select * from compromisso where data between '") + sql::value(vb::ymd(de)) +
           QStringLiteral("' and '") + sql::value(vb::ymd(ate)) + QStringLiteral("' order by data asc");
}

QString comando_editar_lista(const QString& titulo) {
    return entre_aspas(QStringLiteral("SELECT * FROM compromisso where(titulo like '"), titulo,
                       QStringLiteral("')"));
}

QString comando_editar_cadastro(const QString& titulo) {
    return entre_aspas(QStringLiteral("select * from compromisso where(titulo like '"), titulo,
                       QStringLiteral("')"));
}

QString comando_remover(const QString& titulo) {
    return entre_aspas(QStringLiteral("Delete FROM compromisso where(titulo like '"), titulo,
                       QStringLiteral("')"));
}

QString comando_relatorio(relatorio_compromissos r, const QDate& hoje) {
    switch (r) {
    case relatorio_compromissos::dia:
        return entre_aspas(QStringLiteral("select * from compromisso where (data like '"), vb::ymd(hoje),
                           QStringLiteral("')"));
    case relatorio_compromissos::geral:
        break;
    case relatorio_compromissos::mes:
        // year last, the reverse of how dates are stored: this finds nothing the program wrote
        return entre_aspas(QStringLiteral("select * from compromisso where (data like '%"),
                           vb::format_date(hoje, QStringLiteral("/mm/yyyy")), QStringLiteral("%')"));
    }
    return QStringLiteral("select * from compromisso");
}

QString topo_relatorio(relatorio_compromissos r, const QDate& hoje) {
    switch (r) {
    case relatorio_compromissos::dia:
        return QStringLiteral("Mostrando todos os compromissos de hoje - ") + vb::long_date(hoje);
    case relatorio_compromissos::geral:
        break;
    case relatorio_compromissos::mes:
        return QStringLiteral("Mostrando todos os compromissos do mês - ") +
               vb::format_date(hoje, QStringLiteral("mmmm"));
    }
    return QStringLiteral("Mostrando todos os compromissos ");
}

QString total_compromissos(int linhas) {
    return QStringLiteral("Total de compromissos: ") + QString::number(linhas);
}

QString topo_filtro(const QString& de, const QString& ate, const QDate& data_de, const QDate& data_ate) {
    return QStringLiteral("Filtrando dados entre as datas de ") + de + QStringLiteral(" e ") + ate +
           QStringLiteral(" - ") + QString::number(data_de.daysTo(data_ate)) + QStringLiteral(" dias");
}

QString dias_restantes(const QString& data, const QDate& hoje) {
    // the stored text read as a date, as its dd/mm/yyyy form would read
    const QDate d = vb::cdate(data);
    if (!d.isValid()) return {};
    return QString::number(hoje.daysTo(d)) + QStringLiteral(" dias");
}

std::vector<QStringList> carregar(const QString& comando, const QDate& hoje) {
    std::vector<QStringList> linhas;
    // errors are ignored: the list shows what was read
    platform::ignore_errors([&] {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(comando, conexao, sql::keyset, sql::read_only);
        linhas.reserve(std::size_t(rs.record_count()));
        const int i_data = rs.index_of(coluna::data);
        const int i_hora = rs.index_of(coluna::hora);
        const int i_titulo = rs.index_of(coluna::titulo);
        const int i_local = rs.index_of(coluna::local);
        const auto campo = [&rs](int i) { return i < 0 ? QString() : rs.text(i); };
        for (; !rs.eof(); rs.move_next()) {
            const QString data = campo(i_data);
            linhas.push_back({shell::display_date(data), campo(i_hora), campo(i_titulo), campo(i_local),
                              dias_restantes(data, hoje)});
        }
    });
    return linhas;
}

namespace {

// The columns in the order the row is written; an edit leaves the title as it was.
void gravar(sql::recordset& rs, const compromisso& c, bool com_titulo) {
    rs.set(coluna::data, c.data.isValid() ? vb::ymd(c.data) : QString());
    rs.set(coluna::hora, vb::trim_blanks(c.hora));
    if (com_titulo) rs.set(coluna::titulo, vb::trim_blanks(c.titulo));
    rs.set(coluna::local, vb::trim_blanks(c.local));
    rs.set(coluna::descricao, c.descricao);
}

} // namespace

bool ler(const QString& titulo, compromisso& c) {
    sql::recordset rs;
    rs.open(comando_editar_lista(titulo), conexao, sql::keyset, sql::read_only);
    if (rs.eof()) return false;
    c.descricao = rs.text(coluna::descricao);
    c.hora = rs.text(coluna::hora);
    c.local = rs.text(coluna::local);
    c.data = vb::cdate(rs.text(coluna::data));
    c.titulo = rs.text(coluna::titulo);
    return true;
}

void adicionar(const compromisso& c) {
    sql::recordset rs;
    rs.open(store::tabela::compromisso, conexao, sql::keyset, sql::optimistic);
    rs.add_new();
    gravar(rs, c, true);
    rs.update();
    rs.close();
}

int editar(const QString& titulo, const compromisso& c) {
    sql::recordset rs;
    rs.open(comando_editar_cadastro(titulo), conexao, sql::keyset, sql::optimistic);
    int n = 0;
    for (; !rs.eof(); rs.move_next()) {
        gravar(rs, c, false);
        rs.update();
        ++n;
    }
    rs.close();
    return n;
}

void remover(const QString& titulo) {
    if (!conexao) throw sql::error(QStringLiteral("Não há conexão com o banco de dados."));
    conexao->execute(comando_remover(titulo));
}

QString titulo_salvar(output::formato_relatorio f) {
    return f == output::formato_relatorio::txt ? QStringLiteral("Salvar lista de compromissos em txt")
                                               : QStringLiteral("Salvar lista de compromissos em html");
}

QString filtro_salvar(output::formato_relatorio f) {
    return f == output::formato_relatorio::txt ? QStringLiteral("Arquivos de Texto(*.txt)|*.txt")
                                               : QStringLiteral("Arquivos HTML(*.html)|*.html");
}

output::list_frame moldura(const QString& topo, const QString& total) {
    output::list_frame f;
    f.titulo = titulo_lista;
    f.fechamento = {QStringLiteral("Filtrado por: ") + topo, total};
    return f;
}

} // namespace registers
