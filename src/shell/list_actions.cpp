#include "shell/list_actions.h"

#include "platform/sql/jet_dialect.h"
#include "platform/sql/recordset.h"
#include "platform/text/vb_text.h"
#include "store/conexao.h"
#include "store/names.h"

#include <exception>

namespace shell {

namespace {

QString table_of(ledger which) {
    switch (which) {
    case ledger::pagar:
        return store::tabela::pagar;
    case ledger::receber:
        return store::tabela::receber;
    default:
        return store::tabela::bancario;
    }
}

QString code_text(double codigo) {
    return sql::value(vb::cstr(codigo));
}

// The amount as the receipt shows it; a text that is no amount stays as it is.
QString receipt_amount(const QString& stored, bool prefixed) {
    try {
        if (const auto c = vb::ccur(stored))
            return prefixed ? vb::format_money_prefixed(*c) : vb::format_money(*c);
    } catch (const vb::overflow_error&) {
    }
    return stored;
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
    return QStringLiteral("Delete FROM ") + table_of(which) + QStringLiteral(" where(código like '") +
           code_text(codigo) + QStringLiteral("')");
}

QString delete_bank_statement(const QString& banco) {
    return QStringLiteral("Delete FROM banco where (banco like '") + sql::value(banco) + QStringLiteral("')");
}

QString entry_by_code(ledger which, double codigo) {
    return QStringLiteral("SELECT * FROM ") + table_of(which) + QStringLiteral(" where(código like '") +
           code_text(codigo) + QStringLiteral("')");
}

void run_removal(const QString& statement) {
    store::conectarbanco();
    try {
        if (store::conexao) store::conexao->execute(statement);
    } catch (const std::exception&) {
    }
    store::fecharconexao();
}

QString settle_question(ledger which) {
    return which == ledger::receber ? QStringLiteral("Deseja efetuar uma baixa para está receita?")
                                    : QStringLiteral("Deseja efetuar uma baixa para está despesa?");
}

bool settle_entry(ledger which, double codigo, const QDate& hoje, const std::function<bool()>& confirmar) {
    sql::recordset rs;
    try {
        rs.open(entry_by_code(which, codigo), store::conexao, sql::keyset, sql::optimistic);
    } catch (const std::exception&) {
    }
    if (!confirmar()) return false;
    try {
        rs.set(store::coluna::estatus, store::palavra::concluido);
        rs.set(store::coluna::vencimento, vb::dmy(hoje));
        rs.update();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

receipt read_receipt(ledger which, double codigo, const QDate& hoje) {
    const bool pagar = which == ledger::pagar;
    const QString seu_nome = QStringLiteral("Seu nome e ou empresa");
    receipt r;
    r.caption =
        pagar ? QStringLiteral("Recibo de contas a pagar") : QStringLiteral("Recibo de contas a receber");
    // the owner's side is a fixed text, the other side comes from the row
    (pagar ? r.recibo : r.pagamento) = seu_nome;
    r.data = vb::dmy(hoje);
    try {
        store::conectarbanco();
        sql::recordset rs;
        rs.open(entry_by_code(which, codigo), store::conexao, sql::keyset, sql::read_only);
        if (rs.eof()) return r;
        (pagar ? r.pagamento : r.recibo) =
            rs.text(pagar ? store::coluna::fornecedor : store::coluna::cliente);
        r.referente = rs.text(store::coluna::descricao);
        // the income receipt shows its amount with the prefix, the expense receipt without
        r.valor = receipt_amount(rs.text(store::coluna::valor), !pagar);
        rs.close();
    } catch (const std::exception&) {
    }
    return r;
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
