#pragma once
// "Relatório de centro de custo / lucro": a period and one centre, the matching entries in the
// report window. The window's menu "Outros relatórios" opens the pages by supplier, by client and
// by payment form.

#include "analysis/consolidated_report.h"

#include <QWidget>

#include <array>

class QComboBox;
class QMenuBar;
class QPushButton;
class QRadioButton;
class date_field;

class frmconfrelatorio2 : public QWidget {
    Q_OBJECT
public:
    static frmconfrelatorio2* instance();

    // Sets the caption, shows the page of that report (its list loaded) and the window.
    void mostrar_pagina(analysis::consolidado c);
    analysis::consolidado pagina_visivel() const;
    // The page's button.
    void gerar(analysis::consolidado c);

    QWidget *piccentrocusto, *piccentrolucro, *picfornecedor, *piccliente, *picpagamento;
    QComboBox *cbocentrocusto, *cbocentrolucro, *cbofornecedor, *cbocliente, *cbopagamento;
    QComboBox* cbotabela; // payment form: "Despesas" or "Receitas"
    QMenuBar* menu;

private:
    struct pagina {
        QWidget* w = nullptr;
        QComboBox* combo = nullptr;
        date_field *d1 = nullptr, *d2 = nullptr;
        QRadioButton *optdata = nullptr, *optvenc = nullptr;
        QPushButton *gerar = nullptr, *cancelar = nullptr;
    };
    frmconfrelatorio2();
    void montar(analysis::consolidado c);
    void carregar(analysis::consolidado c);
    const pagina& pag(analysis::consolidado c) const { return paginas_[std::size_t(c)]; }
    std::array<pagina, 5> paginas_;
};
