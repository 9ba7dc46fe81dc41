#pragma once
// The two interest calculators. Their number fields are read by their leading number with a
// decimal point ("1.234,56" reads 1.234, "100,50" reads 100), and neither touches the data file.

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

namespace entries {

// frmjurosdesconto. The texts of txtresultado and txtnovovalor ("R$ 1.100,00"); each is set only
// when its step went through: an amount out of the currency's range stops the steps there and sets
// erro (the "Valores muito altos..." box).
struct juros_desconto {
    std::optional<QString> resultado;
    std::optional<QString> novovalor;
    bool erro = false;
};
juros_desconto calcular_juros_desconto(const QString& total, const QString& porcentagem, bool juros);
inline const QString erro_valores_altos = QStringLiteral("Valores muito altos para serem calculados!");

// frmjurosparcelado. The rows of lstmeses and the two result fields.
struct parcela {
    QString numero;     // "1ª"
    QString vencimento; // the date as text
    QString valor;      // "R$ 433,3333"
};
struct parcelamento {
    bool limpa = false;                // lstmeses was cleared (the date was read)
    std::vector<parcela> parcelas;     // the rows added, also those before a failure
    std::optional<QString> valorjuros; // txtvalorjuros, plain currency text ("300")
    std::optional<QString> totaljuros; // txttotaljuros
    bool erro = false;                 // any failure: "A data digitada é invalida!"
};
// data: the date of txtdata (invalid when it holds none). fixo: optfixo is chosen, else optmes.
parcelamento calcular_parcelas(const QString& valor, const QString& parcelas, const QString& dias,
                               const QDate& data, const QString& juros, bool fixo);
inline const QString erro_data_invalida = QStringLiteral("A data digitada é invalida!");

} // namespace entries
