#pragma once
// The user manager: the users of the program, added, changed and removed, and whether the program
// asks for a login at start.

#include "shell/usuarios.h"

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QListWidget;
class QPushButton;

class frmgerenciarlogin : public QWidget {
    Q_OBJECT
public:
    // Opens the window (or raises the one open) and runs its opening.
    static frmgerenciarlogin* mostrar();
    static frmgerenciarlogin* aberto();
    ~frmgerenciarlogin() override;

    // The opening: the option into chkusuario, the users into lstusuarios.
    void abrir();
    void carregarusuarios();
    void lstusuarios_click();
    void chkusuario_click();
    void cmdadicionar_click();
    void cdmatualizar_click();
    void cdmremover_click();

    QListWidget* lstusuarios;
    QLineEdit* txtcodigo;
    QLineEdit* txtusuario;
    QLineEdit* txtsenha;
    QCheckBox* chkusuario;
    QPushButton* cmdadicionar;
    QPushButton* cdmatualizar;
    QPushButton* cdmremover;
    QPushButton* cmdcancelar;

private:
    frmgerenciarlogin();
    int aviso(const QString& texto, int estilo, const QString& titulo);

    shell::usuario_aberto usuario_;
};
