#pragma once
// Typing in a series of instalments of one expense or one income: the entry screen with a
// schedule in place of the due date, dressed by the main window, written at one press.

#include "entries/instalments.h"

#include <QPointer>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class date_field;
class money_field;
class waiting_window;

class frmmultiplos : public QWidget {
    Q_OBJECT
public:
    // The one window, created at its first reference after an unload.
    static frmmultiplos* instance();
    // The window when it is loaded, or nullptr.
    static frmmultiplos* aberto();

    // The boxes filled from the data file, each with errors ignored.
    void carregarbanco();
    void carregarfornecedor();
    void carregarcliente();
    void planopagar();
    void planoreceber();

    void vestir(const entries::dress& d);
    void mostrar();

    void cmdinserir_click();
    void cmdcancelar_click();

    entries::entry_fields campos() const;

    QComboBox* cboorigem;
    QLineEdit* txtdocumento;
    date_field* txtdata;
    QComboBox* txtdescricao;
    QComboBox* cbotipo;
    QComboBox* cbomoeda;
    money_field* txtvalor;
    QPlainTextEdit* txtinfo;
    QComboBox* cboestatus;
    QLineEdit* txtnparcelas;
    QLineEdit* txtdiasparcelas;
    QRadioButton* optdia;
    QRadioButton* optperiodo;
    QCheckBox* chkDataInicial;
    QPushButton* cmdinserir;
    QPushButton* cmdcancelar;
    QLabel* PIC1;
    QLabel* PIC2;

private:
    frmmultiplos();
    void montar();
    void carregar_lista(QComboBox* box, const entries::list_source& s);
    void erro(const QString& texto);
    // Hidden at once, deleted later.
    void descarregar();
    // The counts, the schedule and the starting date; false after a refusal.
    bool planejar(entries::series_plan& plan);
    void exibir_principal(entries::kind k);
    void falhou(waiting_window* espera, const QString& texto);

    bool descarregado_ = false;
};
