#pragma once
// The statistics window of the period summaries: the six figures beside their captions, where the
// data file is and how large it is. Each fill starts from the window as designed.

#include "analysis/ui/chart_panel.h"

#include <QWidget>

#include <array>

class QLabel;
class QPushButton;

namespace analysis {
struct figuras;
}

class frmestatisticas : public QWidget {
    Q_OBJECT
public:
    static frmestatisticas* instance();
    static frmestatisticas* aberto();

    // Caption "Estatisticas", the expense captions, zero figures, and the data file read again.
    void limpar();
    void definir_rotulos(const std::array<QString, 6>& captions);
    void mostrar_figuras(const analysis::figuras& f);

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
    QLabel* lblbdlocal;
    QLabel* lblbdtamanho;
    QPushButton* cmdcancelar;

private:
    frmestatisticas();
};
