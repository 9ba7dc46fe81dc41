#include "shell/list_actions.h"

#include "platform/errors.h"
#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"
#include "store/names.h"

#include <exception>

namespace shell {

namespace {

QString code_text(double codigo) {
    return sql::value(vb::cstr(codigo));
}

QString ordem_bancario_atual;

const QString view_notice_tail = QStringLiteral(
    " para visulizar todos os dados novamente basta selecionar a opção 'Todos os dados (Padrão)'");

} // namespace

QString remove_question(ledger which) {
    return which == ledger::bancario
               ? QStringLiteral("Tem certeza que deseja remover o item selecionados do banco de dados?")
               : QStringLiteral("Tem certeza que deseja remover o item selecionado do banco de dados?");
}

QString remove_bank_question(const QString& banco, const QString& saldo) {
    return QStringLiteral("Tem certeza que deseja remover ") + banco + QStringLiteral(" (") + saldo +
           QStringLiteral(") do banco de dados?");
}

QString delete_statement(ledger which, double codigo) {
    return QStringLiteral("Delete FROM ") + traits(which).tabela + QStringLiteral(" where(código like '") +
           code_text(codigo) + QStringLiteral("')");
}

QString delete_bank_statement(const QString& banco) {
    return QStringLiteral("Delete FROM banco where (banco like '") + sql::value(banco) + QStringLiteral("')");
}

QString entry_by_code(ledger which, double codigo) {
    return QStringLiteral("SELECT * FROM ") + traits(which).tabela + QStringLiteral(" where(código like '") +
           code_text(codigo) + QStringLiteral("')");
}

void run_removal(const QString& statement) {
    store::conectarbanco();
    platform::ignore_errors([&] {
        if (store::conexao) store::conexao->execute(statement);
    });
    store::fecharconexao();
}

QString settle_question(ledger which) {
    return QStringLiteral("Deseja efetuar uma baixa para está ") + traits(which).palavra + QLatin1Char('?');
}

bool settle_entry(ledger which, double codigo, const QDate& hoje, const std::function<bool()>& confirmar) {
    sql::recordset rs;
    platform::ignore_errors(
        [&] { rs.open(entry_by_code(which, codigo), store::conexao, sql::keyset, sql::optimistic); });
    if (!confirmar()) return false;
    bool escrito = false;
    platform::ignore_errors([&] {
        rs.set(store::coluna::estatus, store::palavra::concluido);
        rs.set(store::coluna::vencimento, vb::dmy(hoje));
        rs.update();
        escrito = true;
    });
    return escrito;
}

QString ordem_bancario() {
    return ordem_bancario_atual;
}

void set_ordem_bancario(const QString& clause) {
    ordem_bancario_atual = clause;
}

QString view_notice_year(const QDate& hoje) {
    return QStringLiteral(
               "Ao selecionar está opção o software ira mostrar apenas os dados referente ao ano de ") +
           QString::number(hoje.year()) + view_notice_tail;
}

QString view_notice_month(const QDate& hoje) {
    return QStringLiteral(
               "Ao selecionar está opção o software ira mostrar apenas os dados referente ao mês de ") +
           vb::month_name(hoje.month()) + QStringLiteral(" do ano de ") + QString::number(hoje.year()) +
           view_notice_tail;
}

} // namespace shell
