#pragma once
// The fields every entry screen has (frmadicionar, frmeditar, frmmultiplos): account, document,
// date, description, contact, currency, amount, notes and status, the action and cancel buttons
// and the two pictures; how the boxes fill from the data file and how the screen is dressed.
// What each screen adds (due date, quick adds, the schedule of a series) stays in its own class.

#include "entries/entry_record.h"

#include <QWidget>

#include <initializer_list>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class date_field;
class money_field;

class entry_fields_form : public QWidget {
public:
    // The boxes filled from the data file; each runs with errors ignored and leaves the box
    // showing its first entry, or empty.
    void carregarbanco();
    void carregarfornecedor();
    void carregarcliente();
    void planopagar();
    void planoreceber();
    // The contact box, then the centre box, of the ledger's kind.
    void carregar_contato_e_centro(shell::ledger k);
    // The three boxes as the main window's openers fill them: an expense's account box last, an
    // income's first.
    void carregar_caixas(shell::ledger k);
    // Caption, picture and action button as the main window's openers give them.
    void vestir(const entries::dress& d);
    // Visible, in front and active.
    void mostrar();

    QComboBox* cboorigem;
    QLineEdit* txtdocumento;
    date_field* txtdata;
    QComboBox* txtdescricao;
    QComboBox* cbotipo;
    QComboBox* cbomoeda;
    money_field* txtvalor;
    QPlainTextEdit* txtinfo;
    QComboBox* cboestatus;
    QPushButton* cmdinserir;
    QPushButton* cmdcancelar;
    QLabel* PIC1;
    QLabel* PIC2;

protected:
    // name: the window's name; bank_list: its statement of accounts; estatus_tip: the status box's
    // tooltip (a series applies it to every instalment).
    entry_fields_form(const QString& name, entries::list_source bank_list, const QString& estatus_tip);
    // The end of the opening: on top of the others, and the currency signs in their order.
    void abrir_no_topo();
    // A date field steps back from the top while it is in use, so that its calendar shows.
    void ligar_datas(date_field* d);
    // The first rows of the grid, from the account to the amount; returns the next free row.
    int linhas_comuns(QGridLayout* grid, QWidget* beside_origem, QWidget* beside_descricao,
                      QWidget* beside_contato);
    // A row of label, field and what stands beside it.
    static void linha(QGridLayout* grid, int row, const QString& label, QWidget* field,
                      QWidget* beside = nullptr);
    // Lays the screen out: the pictures, the grid, what goes under it, the two buttons; then the tab
    // order and the field conduct (colours, Enter as Tab) on every field.
    void montar_tela(QGridLayout* grid, std::initializer_list<QWidget*> abaixo,
                     std::initializer_list<QWidget*> ordem);
    // The fields as they stand, with the due date the screen has (or none).
    entries::entry_fields campos_com(const QString& vencimento) const;
    // "Erro", exclamation, with stay-on-top off around it.
    void erro(const QString& texto);

private:
    void carregar_lista(QComboBox* box, const entries::list_source& s);
    entries::list_source bank_list_;
};
