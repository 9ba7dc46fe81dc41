#pragma once
// The financial history of a client (frmfincli, the rows of receber) or of a supplier
// (frmfinforn, the rows of pagar): a name, the three status options, the rows with their totals,
// the contact's picture, and the text, HTML and printed history.

#include "registers/historico.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;
class list_view;
namespace output {
class c_relatorios;
class progress;
} // namespace output

class frmfincontato : public QWidget {
    Q_OBJECT
public:
    static frmfincontato* instance(registers::contato c);
    static frmfincontato* aberto(registers::contato c);
    ~frmfincontato() override;

    // Visible and in front.
    void mostrar();
    // carregarcli / carregarforn: the names and their keys, in step.
    void carregarcli();
    void carregarforn() { carregarcli(); }
    // A name chosen: its picture, and the key at the same place.
    void cbonome_click(int index);
    void cmdverificar_click();
    void cmdtxt_click();
    void cmdhtml_click();
    void cmdimprimir_click();

    registers::situacao situacao() const;

    QComboBox* cbonome;
    QComboBox* cboid;
    QLabel* img1;
    QRadioButton* opttudo;
    QRadioButton* optpendente;
    QRadioButton* optconcluido;
    QPushButton* cmdverificar;
    QLabel* lblcliente;
    list_view* lista; // lstreceber / lstpagar
    QLabel* rotulo;   // lblreceberest / lblpagarest
    QPushButton* cmdimprimir;
    QPushButton* cmdtxt;
    QPushButton* cmdhtml;
    QPushButton* cmdsair;
    QProgressBar* barraprogresso;

private:
    explicit frmfincontato(registers::contato c);
    void salvar(bool html);

    registers::contato tipo_;
    QString imagem_; // the path of the picture shown
    output::c_relatorios* exportador_;
    output::progress* barra_;
};
