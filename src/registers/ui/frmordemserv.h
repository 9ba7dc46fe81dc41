#pragma once
// A service order composed for printing: the shop, the customer, the products and the services.
// Nothing is stored; closing the window loses the order.

#include "registers/service_order.h"

#include <QWidget>

class QLineEdit;
class QPushButton;
class QTabWidget;
class list_view;

class frmordemserv : public QWidget {
    Q_OBJECT
public:
    static frmordemserv* instance();
    static frmordemserv* aberto();
    ~frmordemserv() override;

    void adicionar_produto(const registers::produto_ordem& p);
    void adicionar_servico(const registers::servico_ordem& s);
    std::vector<registers::produto_ordem> produtos() const;
    std::vector<registers::servico_ordem> servicos() const;

    void cmdrempro_click();
    void cmdremserv_click();
    void cmdimprimir_click();

    QLineEdit* txtempresa;
    QLineEdit* txtendereco;
    QLineEdit* txttel;
    QLineEdit* txtcliente;
    QTabWidget* XTab1;
    list_view* lstprodutos;
    list_view* lstservicos;
    QPushButton* cmdadpro;
    QPushButton* cmdrempro;
    QPushButton* cmdprodtudo;
    QPushButton* cmdadserv;
    QPushButton* cmdremserv;
    QPushButton* cmd;
    QPushButton* cmdimprimir;
    QPushButton* cmdsair;

private:
    frmordemserv();
};
