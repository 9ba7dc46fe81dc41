#pragma once
// The statistics of the accounts over a period or up to a day: the list of accounts with their
// balances, the summary and the statistics, saved as text or HTML and printed.

#include "banks/statistics.h"
#include "output/c_relatorios.h"

#include <QWidget>

#include <functional>
#include <memory>

class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class list_view;

class frmestbanco : public QWidget {
    Q_OBJECT
public:
    // The one window, created at its first reference after an unload.
    static frmestbanco* instance();
    static frmestbanco* aberto();
    ~frmestbanco() override;
    // The size it opens with; the layout alone would make it small.
    QSize sizeHint() const override;

    // Days as "yyyy/mm/dd".
    void geral(const QString& data1, const QString& data2);
    void nodia(const QString& data);

    void salvartxt();
    void salvarhtml();
    void imprimir();

    list_view* lstcaixabanco;
    QPlainTextEdit* txtresucaixa;
    QPlainTextEdit* txtest;
    QPlainTextEdit* txtresumohtml; // hidden, filled in step with the visible ones
    QPlainTextEdit* txtesthtml;
    QProgressBar* barraprogresso;
    QPushButton* cmdimprimir;
    QPushButton* cmdtxt;
    QPushButton* cmdhtml;
    QPushButton* cmdsair;

private:
    frmestbanco();
    void mostrar(const std::function<banks::estatisticas(const banks::account_rows_hooks&)>& calcular);

    output::c_relatorios relatorio_;
    std::unique_ptr<output::progress> barra_;
};
