#include "entries/ui/frmeditar.h"

#include "platform/errors.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/money_field.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"
#include "store/conexao.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace {
QPointer<frmeditar> the_window;
} // namespace

frmeditar* frmeditar::instance() {
    return single_window(the_window, [] { return new frmeditar; });
}

frmeditar* frmeditar::aberto() {
    return loaded_window(the_window);
}

frmeditar::frmeditar()
    : entry_form(QStringLiteral("frmeditar"), entries::banks_for_editing(),
                 QStringLiteral("&editar despesa")) {
    lblcodigo = new QLabel;
    lblcodigo->setObjectName(QStringLiteral("lblcodigo"));
    montar(lblcodigo);
    // E is the letter of the button's caption on this window
    atalho_extra(QLatin1Char('E'));
}

void frmeditar::abrir_entrada(shell::ledger k, const QString& codigo) {
    lblcodigo->setText(codigo);
    sql::recordset rs;
    // errors ignored: the fields keep what the boxes show
    platform::ignore_errors([&] {
        store::conectarbanco();
        rs.open(entries::entry_statement(k, codigo), store::conexao, sql::keyset, sql::read_only);
    });
    carregarbanco();
    carregar_contato_e_centro(k);
    const entries::entry_row row = entries::read_columns(rs, k);
    const auto put = [](const entries::read_field& r, auto&& set) {
        if (r.ok) set(r.text);
    };
    put(row.estatus, [this](const QString& t) { cboestatus->setEditText(t); });
    put(row.origem, [this](const QString& t) { cboorigem->setEditText(t); });
    put(row.nome, [this](const QString& t) { cbotipo->setEditText(t); });
    put(row.data, [this](const QString& t) { txtdata->set_text(t); });
    put(row.descricao, [this](const QString& t) { txtdescricao->setEditText(t); });
    put(row.documento, [this](const QString& t) { txtdocumento->setText(t); });
    put(row.informacoes, [this](const QString& t) { txtinfo->setPlainText(t); });
    put(row.valor, [this](const QString& t) { txtvalor->setText(t); });
    put(row.vencimento, [this](const QString& t) { txtvencimento->set_text(t); });
    put(row.moeda, [this](const QString& t) { cbomoeda->setEditText(t); });
    vestir(entries::dress_for_editing(k));
    rs.close();
}

void frmeditar::gravar(shell::ledger k, const entries::entry_fields& f) {
    sql::recordset rs;
    rs.open(entries::entry_statement(k, lblcodigo->text()), store::conexao, sql::keyset, sql::pessimistic);
    // a row that no longer exists fails at the first column
    entries::write_columns(rs, k, f);
    rs.update();
}

void frmeditar::depois_de_gravar(shell::ledger k) {
    hide();
    shell::recarregar_principal(k, true);
    descarregar();
}
