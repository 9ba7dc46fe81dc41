#pragma once
// The list of clients (frmcliente) or of suppliers (frmfornecedor): one window over the table of
// the twins' differences. Search by field as the user types, sort, add, edit, remove, export,
// print, the contact's history, e-mail and site.

#include "output/ui/list_window.h"
#include "registers/contatos.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QProgressBar;
class QPushButton;
class QToolBar;
class atalhos;
class list_view;

class frmcontatos : public list_window {
    Q_OBJECT
public:
    // The one window of the kind, made at its first reference after it was closed.
    static frmcontatos* instance(registers::contato c);
    // The window when it is open, or nullptr.
    static frmcontatos* aberto(registers::contato c);

    registers::contato tipo() const { return tipo_; }

    void Carregartudo();
    void Carregarfiltro();
    void adicionar();
    void editar();
    void remover();
    // The Alt letter by its key code; true when something ran.
    bool atalhos(int key);
    void mnuemail();
    void mnusite();
    void financeiro();
    void mala();
    // The toolbar's txt and html: the supplier list widens its hidden key column meanwhile.
    void botao_txt();
    void botao_html();

    list_view* lstcontato;
    QComboBox* cbotipo;
    QLineEdit* txtbusca;
    QComboBox* cbofiltro;
    QComboBox* cboordem;
    QPushButton* cmdtudo;
    QMenu* mnupopup;

protected:
    saida textos_saida() const override;

private:
    explicit frmcontatos(registers::contato c);
    // txtbusca, cbofiltro, cboordem: the search when there is a text, else everything.
    void recarregar();
    void carregar(const QString& statement, const QString& topo);
    // The selected row's cell, or empty text when none is selected.
    QString selecionado(int col) const;

    registers::contato tipo_;
    ::atalhos* atalhos_;
};
