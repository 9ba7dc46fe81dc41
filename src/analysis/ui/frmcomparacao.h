#pragma once
// The comparison of two years and of two months: frmcomparadesp and frmcompararec are the same
// window over the data of their ledger.

#include "analysis/comparison.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;

class comparacao_window : public QWidget {
    Q_OBJECT
public:
    // The menu's reset: today's year and month in the boxes and the labels, then shown.
    void resetar();
    void cmdok_click();
    void cmdmes_click();
    const analysis::aba_comparacao& aba_anos() const { return anos_; }
    const analysis::aba_comparacao& aba_meses() const { return meses_; }

    QTabWidget* XTab1;
    QComboBox *cboano1, *cboano2, *cbomes1, *cboanomes1, *cbomes2, *cboanomes2;
    QPushButton *cmdok, *cmdmes;
    QPlainTextEdit *txtano1, *txtano1o, *txtano2, *txtano2o, *txtresultado, *txtresultadoo;
    QPlainTextEdit *txtmes1, *txtmes1o, *txtmes2, *txtmes2o, *txtresultado2, *txtresultado2o;
    QLabel *lblano1, *lblano2, *lblresultado, *lblmes1, *lblmes2, *lblresultado2;
    QPushButton *cmdimprimirano, *cmdtxtano, *cmdhtmlano, *cmdsairano;
    QPushButton *cmdimprimirmes, *cmdtxtmes, *cmdhtmlmes, *cmdsairmes;

protected:
    comparacao_window(const char* nome, const analysis::lado_comparacao& lado);
    void closeEvent(QCloseEvent* e) override;
    bool descarregado_ = false;

private:
    void mostrar(bool anos);
    void salvar(bool anos, bool html);
    void imprimir(bool anos);

    const analysis::lado_comparacao& lado_;
    analysis::aba_comparacao anos_, meses_;
};

class frmcomparadesp : public comparacao_window {
    Q_OBJECT
public:
    static frmcomparadesp* instance();
    static frmcomparadesp* aberto();

private:
    frmcomparadesp();
};

class frmcompararec : public comparacao_window {
    Q_OBJECT
public:
    static frmcompararec* instance();
    static frmcompararec* aberto();

private:
    frmcompararec();
};
