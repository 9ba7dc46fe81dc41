#include "entries/entry_record.h"

#include "platform/sql/jet_dialect.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"

namespace entries {

namespace {

const QString dmy_format = QStringLiteral("dd/mm/yyyy");
const QString ymd_format = QStringLiteral("yyyy/mm/dd");

} // namespace

QString blank_fields_message(const entry_fields& f) {
    const struct {
        const QString& field;
        const char16_t* label;
    } required[] = {{f.descricao, u"Descrição"},
                    {f.nome, u"Forcenedor/cliente"},
                    {f.valor, u"Valor"},
                    {f.data, u"Data"},
                    {f.vencimento, u"Vencimento"}};
    QString faltando;
    for (const auto& r : required)
        if (trim_blanks(r.field).isEmpty()) faltando += QLatin1Char('\n') + QString::fromUtf16(r.label);
    if (faltando.isEmpty()) return {};
    return QStringLiteral("Os seguintes dados estão em branco: ") + QLatin1Char('\n') + faltando;
}

ledger kind_of_caption(const QString& caption, const QString& expense_caption) {
    return caption.toLower() == expense_caption ? ledger::pagar : ledger::receber;
}

QString with_trailing_blank(const QString& text) {
    return trim_blanks(text) + QLatin1Char(' ');
}

void write_row(sql::recordset& rs, ledger k, const entry_fields& f, const QString& informacoes_,
               const QString& valor_, const QString& vencimento_) {
    using namespace store::coluna;
    rs.set(estatus, f.estatus);
    rs.set(origem, f.origem);
    rs.set(shell::traits(k).contato, f.nome);
    rs.set(data, vb::format_date_text(f.data, ymd_format));
    rs.set(descricao, f.descricao);
    rs.set(documento, with_trailing_blank(f.documento));
    rs.set(informacoes, informacoes_);
    rs.set(valor, valor_);
    rs.set(vencimento, vencimento_);
    rs.set(moeda, f.moeda);
}

void write_columns(sql::recordset& rs, ledger k, const entry_fields& f) {
    write_row(rs, k, f, with_trailing_blank(f.informacoes), vb::reformat_money_checked(f.valor),
              vb::format_date_text(f.vencimento, ymd_format));
}

QString entry_statement(ledger k, const QString& codigo) {
    return QStringLiteral("SELECT * FROM ") + shell::traits(k).tabela +
           QStringLiteral(" where(código like '") + sql::value(codigo) + QStringLiteral("')");
}

entry_row read_columns(const sql::recordset& rs, ledger k) {
    using namespace store::coluna;
    const auto read = [&rs](const QString& column, auto shown) {
        read_field r;
        try {
            r.text = shown(rs.text(column));
            r.ok = true;
        } catch (const sql::error&) {
        } catch (const vb::overflow_error&) {
        }
        return r;
    };
    const auto as_is = [](const QString& t) { return t; };
    const auto as_date = [](const QString& t) { return vb::format_date_text(t, dmy_format); };
    const auto as_money = [](const QString& t) { return vb::reformat_money_checked(t); };
    entry_row row;
    row.estatus = read(estatus, as_is);
    row.origem = read(origem, as_is);
    row.nome = read(shell::traits(k).contato, as_is);
    row.data = read(data, as_date);
    row.descricao = read(descricao, as_is);
    row.documento = read(documento, as_is);
    row.informacoes = read(informacoes, as_is);
    row.valor = read(valor, as_money);
    row.vencimento = read(vencimento, as_date);
    row.moeda = read(moeda, as_is);
    return row;
}

list_source banks_for_adding() {
    return {QStringLiteral("select * from banco order by [banco]"), store::coluna::banco};
}

list_source banks_for_editing() {
    return {QStringLiteral("select * from banco order by banco"), store::coluna::banco};
}

list_source suppliers() {
    return {QStringLiteral("select * from fornecedor order by nome"), store::coluna::nome};
}

list_source clients() {
    return {QStringLiteral("select * from cliente order by nome"), store::coluna::nome};
}

list_source cost_centres() {
    return {QStringLiteral("Select * from pcontapagar order by descricao"), store::coluna::descricao};
}

list_source profit_centres() {
    return {QStringLiteral("Select * from pcontareceber order by descricao"), store::coluna::descricao};
}

QStringList read_names(const list_source& s) {
    store::conectarbanco();
    sql::recordset rs;
    rs.open(s.statement, store::conexao, sql::keyset, sql::read_only);
    const int col = rs.index_of(s.column);
    QStringList names;
    names.reserve(qsizetype(rs.record_count()));
    for (; !rs.eof(); rs.move_next())
        names << rs.text(col);
    return names;
}

dress dress_for_adding(ledger k) {
    if (k == ledger::pagar)
        return {QStringLiteral("Adicionar Contas a pagar - Despesa"), true,
                QStringLiteral("&Inserir despesa")};
    return {QStringLiteral("Adicionar Contas a receber - Receita"), false,
            QStringLiteral("&Inserir receita")};
}

dress dress_for_editing(ledger k) {
    // the title still reads "Adicionar": only the button tells editing from adding
    dress d = dress_for_adding(k);
    d.botao = k == ledger::pagar ? QStringLiteral("&Editar despesa") : QStringLiteral("&Editar receita");
    return d;
}

QString saved_message(ledger k) {
    return k == ledger::pagar ? QStringLiteral("Despesa cadastrada com sucesso!")
                              : QStringLiteral("Receita cadastrada com sucesso!");
}

} // namespace entries
