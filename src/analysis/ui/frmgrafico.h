#pragma once
// The chart window: a bar chart of three columns, the six figures beside their captions, printing
// and leaving. Filled by the period charts and by frmconfgrafico; each fill starts from the window
// as designed.

#include "analysis/ui/chart_panel.h"

#include <QWidget>

#include <array>

class QLabel;
class QPushButton;

namespace analysis {
struct figuras;
}

class frmgrafico : public QWidget {
    Q_OBJECT
public:
    // The one window, made again after it was closed.
    static frmgrafico* instance();
    static frmgrafico* aberto();

    // As designed: caption "Gráfico", the chart's first title and column labels, the expense
    // captions, zero figures, every pair shown, the heading "Estatísticas".
    void limpar();
    void definir_rotulos(const std::array<QString, 6>& captions);
    // The figures and the three columns.
    void mostrar_figuras(const analysis::figuras& f);
    // cmdimprimir: the chart's picture and the figures on a page, then the window closes.
    void imprimir();

    chart_panel* painel;
    bar_chart* mgrafico;
    QLabel* Picture1; // holds the chart's picture while printing; never shown
    QLabel* lblestatistica;
    figure_labels figuras;
    QLabel* lbl1;
    QLabel* lbl2;
    QLabel* lbl3;
    QLabel* lbl4;
    QLabel* lbl5;
    QLabel* lbl6;
    QLabel* lbltotalcad;
    QLabel* lbltotal;
    QLabel* lbltotalpg;
    QLabel* lblqtdpg;
    QLabel* lbltotalpen;
    QLabel* lblqtdpen;
    QPushButton* cmdimprimir;
    QPushButton* cmdsair;

private:
    frmgrafico();
};
