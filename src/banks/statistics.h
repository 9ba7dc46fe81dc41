#pragma once
// The statistics of the accounts: each account's balance over a period (or up to a day) worked out
// from its opening balance and the settled rows dated in it, the sums by kind over all accounts,
// and the written summaries beside the list, plain and with HTML marks. Writes nothing.

#include "banks/balance.h"

#include <QIODevice>
#include <QString>
#include <QStringList>

#include <array>
#include <vector>

namespace banks {

// The statistics run the transfers in before the transfers out, unlike the accounts list.
inline constexpr std::array<int, 5> ordem_das_estatisticas = {
    consulta_despesas, consulta_receitas, consulta_movimentos, consulta_entrada, consulta_saida};

// The day the balances "up to a day" start from: older rows count in no day's balance.
inline const QString inicio_do_dia = QStringLiteral("2000/01/01");

// One account over a period. Sums are doubles of the amounts as read, not rounded to the cent.
struct conta_no_periodo {
    double inicial = 0;
    double saldo = 0;
    double despesas = 0, receitas = 0, depositos = 0, retiradas = 0;
    int falhas = 0;
};

// The five statements in the order above; each amount that cannot be read adds nothing, and an
// opening balance that cannot be read starts at zero.
conta_no_periodo saldo_no_periodo(const sql::connection_ptr& conn, const QString& nome, const QString& saldo,
                                  const period& periodo);

struct estatisticas {
    std::vector<QStringList> linhas; // Banco/Caixa, Saldo(no período), Informações, Saldo(Inicial)
    QString resumo, resumo_html;     // txtresucaixa, txtresumohtml
    QString est, est_html;           // txtest, txtesthtml
    double despesas = 0, receitas = 0, depositos = 0, retiradas = 0;
    double soma_periodo = 0, soma_inicial = 0;
};

// geral: between two days; nodia: from inicio_do_dia up to a day. Days as "yyyy/mm/dd". Connects
// first; hooks as the accounts list's (the waiting window). With no account only the heading of
// the statistics is written.
estatisticas geral(const QString& data1, const QString& data2, const account_rows_hooks& hooks = {});
estatisticas nodia(const QString& data, const account_rows_hooks& hooks = {});

// The file exports of the statistics: the text with CR LF line ends, the HTML with a byte-order mark.
void write_estatisticas_txt(QIODevice& out, const QString& resumo, const QString& est);
void write_estatisticas_html(QIODevice& out, const QString& resumo_html, const QString& est_html);

// Dialog titles and filters of the two exports (the text one in the singular).
inline const QString titulo_txt_estatisticas = QStringLiteral("Salvar estatística em txt");
inline const QString filtro_txt_estatisticas = QStringLiteral("Arquivos de Texto(*.txt)|*.txt");
inline const QString titulo_html_estatisticas = QStringLiteral("Salvar estatísticas em html");
inline const QString filtro_html_estatisticas = QStringLiteral("Arquivos HTML(*.html)|*.html");

} // namespace banks
