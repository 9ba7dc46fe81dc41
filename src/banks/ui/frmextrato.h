#pragma once
// The statement of one account: its settled expenses, income and movements in a period, with
// their totals, saved as HTML and printed.

#include "banks/statement.h"
#include "output/c_relatorios.h"

#include <QWidget>

#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;
class QTabWidget;
class list_view;

class frmextrato : public QWidget {
    Q_OBJECT
public:
    static frmextrato* instance();
    ~frmextrato() override;
    // The size it opens with; the layout alone would make it small.
    QSize sizeHint() const override;

    // Days as "yyyy/mm/dd"; filtro is the text of lblfiltro.
    void carregar(const QString& conta, const QString& data1, const QString& data2, bool destino,
                  const QString& filtro);

    void salvarhtml();
    void imprimir();
    banks::extrato_textos textos() const;

    QTabWidget* XTab1;
    list_view* lstpagar;
    list_view* lstreceber;
    list_view* lstmovimento;
    QLabel* lblfiltro;
    QLabel* lbldespesa;
    QLabel* lblreceita;
    QLabel* lblmovimento;
    QProgressBar* barraprogresso;
    QPushButton* cmdimprimir;
    QPushButton* cmdhtml;
    QPushButton* cmdsair;

private:
    frmextrato();

    output::c_relatorios relatorio_;
    std::unique_ptr<output::progress> barra_;
};
