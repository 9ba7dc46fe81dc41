#pragma once
// Adding or editing one appointment. The caption of cmdok tells the two apart; an edit rewrites
// every appointment of the title it was opened on, and never the title itself.

#include "registers/compromissos.h"

#include <QWidget>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class date_field;

class frmcadcompromisso : public QWidget {
    Q_OBJECT
public:
    // The one editor, created at its first use.
    static frmcadcompromisso* instance();
    static frmcadcompromisso* carregada();
    ~frmcadcompromisso() override;

    // Dressed and shown by the list: empty fields and today's date, or the row of a title.
    void adicionar_novo();
    void editar_existente(const QString& titulo, const registers::compromisso& c);

    void cmdok_click();
    void adicionar();
    void editar();

    date_field* cbodata;
    QLineEdit* txthora;
    QLineEdit* txttitulo;
    QLineEdit* txtlocal;
    QPlainTextEdit* txtdescricao;
    QPushButton* cmdok;
    QPushButton* cmdsair;

private:
    frmcadcompromisso();
    registers::compromisso campos() const;
    void erro(const QString& texto);
    void concluir();

    QString titulo_aberto_; // the title an edit was opened on
};
