#pragma once
// What each bank account spent and took in over everything, a period, a day, a month or a year:
// settled entries only, an entry belonging to the account its `origem` names exactly. A screen view:
// one row per account and a line of totals read back from the rows.

#include <QDate>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace analysis {

// The two statement heads of a tab. The general one ends in "AND " and takes the account's test
// with no joiner of its own.
struct relacao_cabecas {
    QString despesas;
    QString receitas;
    bool geral = false;
    // Two days in reverse order: the period holds no day and nothing is asked for.
    bool nenhum_dia = false;
};

relacao_cabecas cabecas_geral();
// Days as "yyyy/mm/dd".
relacao_cabecas cabecas_entre_datas(const QString& data1, const QString& data2);
relacao_cabecas cabecas_diario(const QDate& dia);
relacao_cabecas cabecas_mensal(const QString& ano, int mes);
relacao_cabecas cabecas_anual(const QString& ano);

// A head with the account's test.
QString relacao_statement(const QString& cabeca, bool geral, const QString& banco);

// The years of the year boxes.
inline constexpr int primeiro_ano = 2000;
inline constexpr int ultimo_ano = 2500;

struct relacao_hooks {
    std::function<void(int bancos)> before_walk;
    std::function<void(int feito)> progress;
};

struct relacao_resultado {
    std::vector<QStringList> linhas; // Banco, Despesas, Lucros, Saldo
    bool sem_banco = false;          // the accounts were read and there is none
};

// Connects, reads the accounts and sums each one's settled expenses and income, every amount
// rounded to the cent as it enters. A statement that fails counts as no rows.
relacao_resultado relacao(const relacao_cabecas& c, const relacao_hooks& hooks = {});

// The totals line, from the Despesas and Lucros texts of the rows as they stand.
QString relacao_total(const std::vector<QStringList>& linhas);

inline const QString sem_banco_texto = QStringLiteral("Não há nenhum banco cadastrado!");
inline const QString datas_vazias_texto =
    QStringLiteral("As data inicial e a data final devem ser preenchidas!");

} // namespace analysis
