#pragma once
// The consolidated reports of frmconfrelatorio2: the entries of a period whose centre (or
// supplier, client, payment form) is the chosen one, matched whole, with no order clause. The
// centre reports have their pages; the supplier, client and payment-form reports are reached
// from the window's own menu.

#include "analysis/period_summary.h"
#include "shell/ledger_statement.h"

#include <QDate>
#include <QString>

#include <optional>

namespace analysis {

enum class consolidado { centro_custo, centro_lucro, fornecedor, cliente, pagamento };

struct pedido_consolidado {
    consolidado tipo = consolidado::centro_custo;
    QDate data1, data2;
    bool data_cadastro = true; // "Data de Cadastro", else "Data de Vencimento"
    QString valor;             // the centre, supplier, client or payment form
    bool despesas = true;      // payment form: pagar, else receber
};

shell::ledger tabela_de(const pedido_consolidado& p);
QString consulta_consolidado(const pedido_consolidado& p);
QString tipo_consolidado(consolidado c); // LBLTIPO
QString msg_selecao(consolidado c);      // the combo left empty
inline const QString msg_datas_consolidado =
    QStringLiteral("As datas que deseja filtrar devem ser definidas!");
inline const QString msg_sem_resultado_consolidado = QStringLiteral("A pesquisa não retornou resultados!");

// Rows as the custom report writes them; the supplier, client and payment-form reports put the
// payment form after the description, "R$ " amounts and no origin.
lista_lida ler_consolidado(const pedido_consolidado& p, const QString& consulta,
                           const std::function<void(long)>& antes = {},
                           const std::function<void(long)>& a_cada = {});
// lblgeral: the profit centre keeps " - Total pago: R$ ".
QString geral_consolidado(const pedido_consolidado& p, const status_tally& t, const QString& d1,
                          const QString& d2);

} // namespace analysis
