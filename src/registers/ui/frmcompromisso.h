#pragma once
// The diary: the appointments by date with the days left to each, a filter between two dates, and
// adding, editing, removing, saving and printing from the toolbar, the pop-up and the Alt keys.

#include "output/ui/list_window.h"

class QMenu;
class QPushButton;
class atalhos;
class date_field;

// The list of both diary windows: its columns and font.
void montar_lista_compromissos(list_view* l);
// Their outputs: the title, the label and the count in the closing block and under the print.
list_window::saida saida_compromissos(const QString& topo, const QString& total);

class frmcompromisso : public list_window {
    Q_OBJECT
public:
    // Opens the window (or brings the open one forward) and runs its opening.
    static frmcompromisso* mostrar();
    static frmcompromisso* carregada();
    ~frmcompromisso() override;

    void Carregartudo();
    void Carregarfiltro();
    void adicionar();
    void editar();
    void remover();

    list_view* lstcompromisso;
    date_field* cbodata1;
    date_field* cbodata2;
    QPushButton* cmdfiltrar;
    QPushButton* cmdtudo;
    QMenu* mnupopup;
    QAction* mnuadicionar;
    QAction* mnueditar;
    QAction* mnuremover;
    QAction* mnuimprimir;
    QAction* mnuhtml;
    QAction* mnutxt;

protected:
    saida textos_saida() const override;

private:
    frmcompromisso();
    void encher(const QString& comando);
    // The title of the selected row; empty when none is selected.
    QString titulo_selecionado() const;
    atalhos* atalhos_ = nullptr;
};
