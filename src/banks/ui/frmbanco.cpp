#include "banks/ui/frmbanco.h"

#include "banks/account_record.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/money_field.h"
#include "platform/widgets/single_window.h"
#include "shell/principal_api.h"
#include "store/conexao.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace {
QPointer<frmbanco> the_window;
} // namespace

frmbanco* frmbanco::instance() {
    return single_window(the_window, [] { return new frmbanco; });
}

frmbanco* frmbanco::aberto() {
    return loaded_window(the_window);
}

frmbanco::frmbanco() : account_form(QStringLiteral("frmbanco"), QStringLiteral("Cadastrar Banco/Caixa")) {
    cmdinserir->setText(QStringLiteral("&Inserir"));
    montar(nullptr, QStringLiteral("Saldo inicial:"), QStringLiteral("I"));
}

void frmbanco::gravar() {
    sql::recordset rs;
    rs.open(store::tabela::banco, store::conexao, sql::keyset, sql::pessimistic);
    rs.add_new();
    // the name is the account's identity: kept as typed; no check for one already stored
    rs.set(store::coluna::banco, txtnome->text());
    rs.set(store::coluna::informacoes, banks::info_column(txtinfo->text()));
    rs.set(store::coluna::saldo, vb::reformat_money_checked(txtvalor->text()));
    rs.update();
    rs.close();
}

void frmbanco::depois_de_gravar() {
    Q_EMIT shell::avisos::instance().cadastrado(shell::cadastro::banco, txtnome->text());
}
