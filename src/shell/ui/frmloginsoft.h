#pragma once
// The lock: the main window hides behind this login until a user signs in again. Cancelling it,
// or closing it, ends the program.

#include <QPointer>
#include <QWidget>

#include <vector>

class QLineEdit;
class QPushButton;

class frmloginsoft : public QWidget {
    Q_OBJECT
public:
    // The one lock window, created at its first use.
    static frmloginsoft* instance();
    // The loaded window, if any.
    static frmloginsoft* aberto();
    // Unloads it, if loaded, without ending anything.
    static void descarregar();
    ~frmloginsoft() override;

    // mnubloquearsoft: hides the main window (and whatever other window is open, until the
    // unlock) and shows this one, with the password field empty.
    static void bloquear();

    void cmdentrar_click();
    void cmdcancelar_click();

    QLineEdit* txtusuario;
    QLineEdit* txtsenha;
    QPushButton* cmdentrar;
    QPushButton* cmdcancelar;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    frmloginsoft();
    void mostrar_principal();
    bool saindo_ = false;
    // the other windows that were open when the program was locked, shown again after it
    std::vector<QPointer<QWidget>> escondidas_;
};
