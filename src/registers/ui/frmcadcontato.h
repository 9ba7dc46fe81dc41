#pragma once
// The form of a client (frmcadcli) or a supplier (frmcadforn): personal data on one tab, contact
// data on the other, the picture chosen in a file dialog (only its path is kept). Whether it adds
// or edits is told by the caption of cmdok.

#include "platform/sql/recordset.h"
#include "registers/contatos.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class date_field;

class frmcadcontato : public QWidget {
    Q_OBJECT
public:
    static frmcadcontato* instance(registers::contato c);
    static frmcadcontato* aberto(registers::contato c);

    // Visible, with the two captions, and the value lists filled (carregar).
    void abrir(const QString& caption, const QString& botao);
    // The value lists of the four place boxes, from what is stored; typed text stays.
    void carregar();
    // The fields from the row, each on its own: a field that cannot be read is skipped.
    void preencher(const sql::recordset& rs);
    // Write a new row / the row of lblcodigo. Throw.
    void adicionar();
    void editar();

    void cmdok_click();
    void img1_click();

    registers::ficha campos() const;

    QTabWidget* XTab1;
    QLineEdit* txtnome;
    QRadioButton* optcpf;
    QRadioButton* optcnpj;
    QLineEdit* txtcpf;
    date_field* cbonascimento;
    QLineEdit* txtinsc;
    QPlainTextEdit* txtadicionais;
    QComboBox* txtpais;
    QComboBox* txtestado;
    QComboBox* txtcidade;
    QComboBox* txtbairro;
    QLineEdit* txtendereco;
    QLineEdit* txttel;
    QLineEdit* txttel2;
    QLineEdit* txtcel;
    QLineEdit* txtsite;
    QLineEdit* txtemail;
    QLabel* img1;
    QLabel* lblcodigo;
    QLabel* lbllocal;
    QPushButton* cmdok;
    QPushButton* cmdsair;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit frmcadcontato(registers::contato c);
    void mostrar_imagem(const QString& caminho);
    void gravar(sql::recordset& rs, bool adicionando);

    registers::contato tipo_;
};
