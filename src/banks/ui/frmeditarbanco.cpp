#include "banks/ui/frmeditarbanco.h"

#include "banks/account_record.h"
#include "platform/errors.h"
#include "platform/widgets/money_field.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"
#include "store/conexao.h"

#include <QLineEdit>
#include <QPushButton>

namespace {
QPointer<frmeditarbanco> the_window;
} // namespace

frmeditarbanco* frmeditarbanco::instance() {
    return single_window(the_window, [] { return new frmeditarbanco; });
}

frmeditarbanco* frmeditarbanco::aberto() {
    return loaded_window(the_window);
}

frmeditarbanco::frmeditarbanco()
    : account_form(QStringLiteral("frmeditarbanco"), QStringLiteral("Editar Banco/Caixa")) {
    txtvalorini = new QLineEdit;
    txtvalorini->setObjectName(QStringLiteral("txtvalorini"));
    txtvalorini->setEnabled(false);
    txtnome->setEnabled(false);
    cmdinserir->setText(QStringLiteral("&Editar"));
    // I as on the adding twin, E as the caption's own letter
    montar(txtvalorini, QStringLiteral("Saldo atual:"), QStringLiteral("IE"));
}

void frmeditarbanco::abrir_conta(const QString& nome, const QString& saldo_na_lista) {
    sql::recordset rs;
    // errors ignored: a name the statement cannot hold leaves the fields of the row empty
    platform::ignore_errors([&] {
        store::conectarbanco();
        rs.open(banks::account_statement(nome), store::conexao, sql::keyset, sql::read_only);
    });
    const auto field = [&rs](const QString& column, QLineEdit* to, auto shown) {
        platform::ignore_errors([&] { to->setText(shown(rs.text(column))); });
    };
    const auto as_is = [](const QString& t) { return t; };
    field(store::coluna::banco, txtnome, as_is);
    txtvalor->setText(saldo_na_lista);
    field(store::coluna::informacoes, txtinfo, as_is);
    field(store::coluna::saldo, txtvalorini, banks::opening_balance_text);
}

void frmeditarbanco::gravar() {
    const shell::principal_api* p = shell::principal();
    sql::recordset rs;
    rs.open(banks::account_statement(p->bancoselecionado), store::conexao, sql::keyset, sql::pessimistic);
    rs.set(store::coluna::informacoes, banks::info_column(txtinfo->text()));
    rs.set(store::coluna::saldo,
           banks::saldo_to_write(p->saldoselecionado, txtvalor->text(), txtvalorini->text()));
    rs.update();
    rs.close();
}
