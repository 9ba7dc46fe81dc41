#pragma once
// The statement of one account over a period: its settled expenses, income and bank movements
// dated in the period, each list with its total, and the HTML file made of them. Reads only.

#include "output/c_relatorios.h"
#include "platform/table_source.h"
#include "platform/text/vb_text.h"

#include <QDate>
#include <QIODevice>
#include <QString>
#include <QStringList>

#include <array>
#include <vector>

namespace banks {

// pagar, receber, bancario; the days as "yyyy/mm/dd". With destino the movements that name the
// account as their target are asked for too.
std::array<QString, 3> extrato_statements(const QString& conta, const QString& data1, const QString& data2,
                                          bool destino);

struct extrato {
    // lstpagar, lstreceber (9 cells each) and lstmovimento (8 cells), as the lists show them
    std::vector<QStringList> pagar, receber, movimento;
    // Each list's amounts added up, every kind of movement alike.
    vb::currency total_pagar, total_receber, total_movimento;
    int falhas = 0; // statements that could not be run
};

// Connects and runs the three statements; a failing one leaves its list empty. A first day after
// the last finds no rows.
extrato carregar_extrato(const QString& conta, const QString& data1, const QString& data2, bool destino);

// lblfiltro: the days as the fields show them, and the second day less the first.
QString filtro_extrato(const QString& digitada1, const QString& digitada2, qint64 dias);
// lbldespesa, lblreceita, lblmovimento.
QString total_extrato(vb::currency total);

// What the statistics tab shows, for the file and the print.
struct extrato_textos {
    QString caption; // "Extrato bancário: <account>"
    QString filtro, despesa, receita, movimento;
};

// The HTML file: heading from the caption, the three lists through the exporter, the statistics,
// the footer. Begins with a byte-order mark.
void write_extrato_html(QIODevice& out, const extrato_textos& t, const platform::table_source& pagar,
                        const platform::table_source& receber, const platform::table_source& movimento,
                        output::c_relatorios& exportador);

inline const QString titulo_html_extrato = QStringLiteral("Salvar relatório de extrato bancário html");
inline const QString filtro_html_extrato = QStringLiteral("Arquivos HTML(*.html)|*.html");

} // namespace banks
