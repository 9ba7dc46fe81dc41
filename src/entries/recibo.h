#pragma once
// The receipt of one entry: what its opener puts into the window (the names crosswise for the two
// ledgers) and the plain-text lines it prints. A receipt leaves no trace in the data file.

#include "shell/list_actions.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <optional>

namespace entries {

// "Recibo de contas a pagar" / "Recibo de contas a receber".
QString legenda_recibo(shell::ledger which);

// The fields the opener fills. Each step runs with errors ignored: a field that could not be read
// (no row of that code) is left unset and the window keeps what it holds.
struct recibo_campos {
    std::optional<QString> pagamento; // txtpagamento
    std::optional<QString> recibo;    // txtrecibo
    std::optional<QString> referente; // txtreferente
    QString data;                     // txtdata, dd/mm/yyyy
    std::optional<QString> valor;     // txtvalor
};
// Reads the entry of codigo from pagar or receber. Never throws.
recibo_campos ler_recibo(shell::ledger which, double codigo, const QDate& hoje);

// What the window holds when the receipt is printed.
struct recibo_texto {
    QString legenda;
    QString pagamento;
    QString recibo;
    QString referente;
    QString valor;
    QString data;
};
// The lines of the page, before the common foot: blank-exact, as the paper shows them.
QStringList linhas_recibo(const recibo_texto& r);

inline const QString erro_imprimir_recibo = QStringLiteral(
    "Ocorreu um erro ao tentar imprimir, verifique se a impressora está ligada e conectada ao computador");

} // namespace entries
