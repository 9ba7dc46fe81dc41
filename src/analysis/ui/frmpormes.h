#pragma once
// The twin per-month windows: a year as twelve tabs, the entries of the month in view and their
// totals. frmpormes groups by the entry date, frmvenpormes by the due date; all else is shared.

#include "analysis/month_views.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabBar;
class list_view;

class janela_por_mes : public QWidget {
    Q_OBJECT
public:
    // Puts "pagar" or "receber" in lbltipo, shows January and the window.
    void abrir(shell::ledger tabela);
    // Shows January of anoatual.
    void carregarinicio();
    // cmdverificar: the year of cboano, the caption, January.
    void verificar();
    // Shows that month (1..12) of anoatual.
    void carregar_mes(int mes);

    QComboBox* cboano;
    QPushButton* cmdverificar;
    QTabBar* meses;
    list_view* lstlista;
    QLabel* lbltipo;
    QLabel* lblest;
    QLineEdit* anoatual;

protected:
    explicit janela_por_mes(const analysis::gemeo_mes& g);

private:
    shell::ledger tabela() const;
    const analysis::gemeo_mes& g_;
    bool carregando_ = false;
};

class frmpormes : public janela_por_mes {
    Q_OBJECT
public:
    static frmpormes* instance();

private:
    frmpormes();
};

class frmvenpormes : public janela_por_mes {
    Q_OBJECT
public:
    static frmvenpormes* instance();

private:
    frmvenpormes();
};
