#pragma once
// Projections and targets: two twin panels in one window, the expense one and the income one,
// only one of them shown at a time.

#include "analysis/projection.h"

#include <QWidget>

class QComboBox;
class QPlainTextEdit;
class QPushButton;
class money_field;

class frmprojecao : public QWidget {
    Q_OBJECT
public:
    static frmprojecao* instance();
    static frmprojecao* aberto();

    // One panel and what sets it apart.
    struct painel {
        const analysis::lado_projecao* lado = nullptr;
        QWidget* pic = nullptr;
        QComboBox* cbomes = nullptr;
        QComboBox* cboano = nullptr;
        money_field* txtvalor = nullptr;
        QPushButton* cmdverificar = nullptr;
        QPlainTextEdit* txtresultado = nullptr;
        QPlainTextEdit* txthtml = nullptr; // txto, Text1
        QPushButton* cmdhtml = nullptr;
        QPushButton* cmdtxt = nullptr;
        QPushButton* cmdimprimir = nullptr;
        QString resultado, html; // as set, CR LF line ends
    };
    painel desp, rec;

    // The menu entries (resetarprojecaodesp, resetarprojecaorec).
    void resetar(bool despesas);
    void verificar(painel& p);

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    frmprojecao();
    void montar(painel& p, const analysis::lado_projecao& l, const char* const nomes[]);
    bool descarregado_ = false;
};
