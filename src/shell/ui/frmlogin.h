#pragma once
// The program's first window. It decides by login_inicia.exigirlogin whether to ask for a user
// before the main window appears.

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

class frmlogin : public QWidget {
    Q_OBJECT
public:
    // The one login window of the program (it stays loaded, hidden, while the program runs).
    static frmlogin* instance();
    // Unloads the login window if it is loaded.
    static void descarregar();
    ~frmlogin() override;

    // The opening: shows the window, or goes straight to the main window.
    void abrir();
    void cmdentrar_click();
    void cmdcancelar_click();

    QLineEdit* txtusuario = nullptr;
    QLineEdit* txtsenha = nullptr;
    QPushButton* cmdentrar = nullptr;
    QPushButton* cmdcancelar = nullptr;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    frmlogin();
    void entrar_no_principal();
    bool saindo_ = false;
};
