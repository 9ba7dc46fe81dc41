#pragma once
// The result of the integrated report: the rows of the three ledgers in one list, the account of
// the filters and the totals on the "ESTATÍSTICA" page, the files and the print.

#include "analysis/integrated_report.h"
#include "output/c_relatorios.h"

#include <QWidget>

#include <memory>

class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTabWidget;
class list_view;

class frmrelatorioint : public QWidget {
    Q_OBJECT
public:
    // The one window, created at its first reference after an unload.
    static frmrelatorioint* instance();
    static frmrelatorioint* aberto();
    ~frmrelatorioint() override;
    void mostrar();

    // The rows and texts of a generation, in place of what the window showed.
    void preencher(analysis::relatorio_integrado r);
    const analysis::relatorio_integrado& relatorio() const { return r_; }

    void cmdtxt_click();
    void cmdhtml_click();
    void cmdimprimir_click();

    QLabel* SpitFireXpSB1;
    QLabel* LBLTIPO;
    QTabWidget* XTab1;
    list_view* lstrelatorio;
    QPlainTextEdit *txtpagar, *txtreceber, *txtbancario, *txtfinanceiro;
    QProgressBar* barraprogresso;
    QPushButton *cmdimprimir, *cmdtxt, *cmdhtml;

    QSize sizeHint() const override;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    frmrelatorioint();
    void montar();

    analysis::relatorio_integrado r_;
    output::c_relatorios relatorio_;
    std::unique_ptr<output::progress> barra_;
    bool descarregado_ = false;
};
