#include "banks/movimento_bancario.h"

#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"
#include "store/names.h"

#include <exception>

namespace banks {

namespace {

movement_twin make_adicionar() {
    movement_twin t;
    t.window = QStringLiteral("frmmovimentobanc");
    t.title = QStringLiteral("Adicionar Movimento Bancário");
    t.store_button = QStringLiteral("cmdadicionar");
    t.store_caption = QStringLiteral("&Adicionar");
    t.store_key = QLatin1Char('A');
    t.info_tooltip = QStringLiteral("Informações adicionais sobre a transação");
    t.valor_vazio = QStringLiteral("O campo valor deve preenchido!");
    t.data_vazio = QStringLiteral("O campo data deve preenchido!");
    t.accounts_statement = QStringLiteral("select * from banco");
    t.accounts_as_text = true;
    t.starts_today = true;
    t.adds_row = true;
    t.origem_mark_first = true;
    return t;
}

movement_twin make_editar() {
    movement_twin t;
    t.window = QStringLiteral("frmeditarbancario");
    t.title = QStringLiteral("Editar Movimento bancário");
    t.store_button = QStringLiteral("cmdeditar");
    t.store_caption = QStringLiteral("&Editar");
    t.store_key = QLatin1Char('E');
    t.info_tooltip = QStringLiteral("Informações adicionais");
    t.valor_vazio = QStringLiteral("O campo valor deve ser preenchido!");
    t.data_vazio = QStringLiteral("O campo data deve ser preenchido!");
    t.accounts_statement = QStringLiteral("select * from banco order by banco");
    t.accounts_as_text = false;
    t.starts_today = false;
    t.adds_row = false;
    t.origem_mark_first = false;
    return t;
}

// The date as the rows keep it; a text that is no date cannot be written.
QString data_to_write(const QString& data) {
    const QDate d = vb::cdate(trim_blanks(data));
    if (!d.isValid()) throw vb::type_mismatch();
    return vb::ymd(d);
}

} // namespace

const movement_twin& twin_adicionar() {
    static const movement_twin t = make_adicionar();
    return t;
}

const movement_twin& twin_editar() {
    static const movement_twin t = make_editar();
    return t;
}

QString blank_field_message(const movement_twin& twin, const QString& valor, const QString& data) {
    if (trim_blanks(valor).isEmpty()) return twin.valor_vazio;
    if (trim_blanks(data).isEmpty()) return twin.data_vazio;
    return {};
}

bool shows_destino(const QString& movimento) {
    return movimento.toLower() == store::palavra::transferencia.toLower();
}

QString origem_to_write(const QString& origem) {
    return origem.isEmpty() ? store::palavra::sem_origem : origem;
}

QString destino_to_write(const QString& movimento, const QString& destino) {
    return movimento == store::palavra::transferencia ? destino : store::palavra::sem_destino;
}

std::vector<std::pair<QString, QString>> movement_columns(const movement_fields& f) {
    namespace col = store::coluna;
    return {
        {col::estatus, f.estatus},
        {col::origem, origem_to_write(f.origem)},
        {col::destino, destino_to_write(f.movimento, f.destino)},
        {col::data, data_to_write(f.data)},
        {col::movimento, f.movimento},
        {col::informacoes, trim_blanks(f.informacoes) + QLatin1Char(' ')},
        {col::valor, vb::format_money(vb::ccur_or_throw(trim_blanks(f.valor)))},
    };
}

void add_movement_row(sql::recordset& rs, const movement_fields& f, const QString& id_extrato) {
    const auto columns = movement_columns(f);
    rs.add_new();
    for (const auto& [name, text] : columns)
        rs.set(name, text);
    if (!id_extrato.isEmpty()) rs.set(store::coluna::id_extrato, id_extrato);
    rs.update();
}

QString movement_by_code(double codigo) {
    return QStringLiteral("SELECT * FROM bancario where(código like '") + sql::value(vb::cstr(codigo)) +
           QStringLiteral("')");
}

save_outcome save_movement(const movement_twin& twin, double codigo, const movement_fields& f) {
    save_outcome out;
    try {
        store::conectarbanco();
        sql::recordset rs;
        if (twin.adds_row) {
            rs.open(store::tabela::bancario, store::conexao, sql::keyset, sql::pessimistic);
            out.row_opened = true;
            add_movement_row(rs, f);
        } else {
            rs.open(movement_by_code(codigo), store::conexao, sql::keyset, sql::pessimistic);
            out.row_opened = true;
            const auto columns = movement_columns(f);
            for (const auto& [name, text] : columns)
                rs.set(name, text);
            rs.update();
        }
        rs.close();
        out.ok = true;
    } catch (const std::exception& e) {
        out.error = platform::error_text(e);
    }
    return out;
}

QStringList account_names(const movement_twin& twin) {
    QStringList names;
    // errors ignored: the boxes offer what was read
    platform::ignore_errors([&] {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(twin.accounts_statement, store::conexao, sql::keyset, sql::read_only);
        const int col = rs.index_of(store::coluna::banco);
        for (; !rs.eof(); rs.move_next())
            names << rs.text(col);
    });
    return names;
}

std::optional<shown_movement> read_movement(double codigo) {
    try {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(movement_by_code(codigo), store::conexao, sql::keyset, sql::read_only);
        if (rs.eof()) return std::nullopt;
        namespace col = store::coluna;
        shown_movement m;
        m.data = vb::format_date_text(rs.text(col::data), QStringLiteral("dd/mm/yyyy"));
        m.movimento = rs.text(col::movimento);
        m.origem = rs.text(col::origem);
        m.destino = rs.text(col::destino);
        m.valor = QStringLiteral("R$ ") + vb::reformat_money_text(rs.text(col::valor));
        m.estatus = rs.text(col::estatus);
        m.informacoes = rs.text(col::informacoes);
        return m;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace banks
