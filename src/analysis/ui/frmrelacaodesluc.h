#pragma once
// Income against expenses for every account, over everything or a period, a day, a month or a
// year: one tab each, with its list and its totals line. A screen view only.

#include "analysis/income_expenses.h"

#include <QWidget>

#include <array>

class QCalendarWidget;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTabWidget;
class date_field;
class list_view;

class frmrelacaodesluc : public QWidget {
    Q_OBJECT
public:
    static frmrelacaodesluc* instance();

    void vergeral();
    void verdiario();
    void vermensal();
    void veranual();

    QTabWidget* XTab1;
    // Relação Geral
    list_view* lstgeral;
    QRadioButton* optgeral;
    QRadioButton* optentredatas;
    date_field* cbodata1;
    date_field* cbodata2;
    QPushButton* cmdvergeral;
    QLabel* lblgeral;
    // Por dia
    list_view* lstdia;
    QCalendarWidget* caldia;
    QPushButton* cmdverdiario;
    QLabel* lbldia;
    // Por mês
    list_view* lstmes;
    std::array<QRadioButton*, 12> optmes;
    QComboBox* cboano3;
    QPushButton* cmdvermensal;
    QLabel* lblmes;
    // Por ano
    list_view* lstano;
    QComboBox* cboano4;
    QPushButton* cmdveranual;
    QLabel* lblano;

private:
    frmrelacaodesluc();
    // The skeleton every tab runs with its two heads.
    void ver(list_view* lista, QLabel* total, const analysis::relacao_cabecas& c);
};
