#pragma once
// The chooser of the integrated report's filters: one name at a time from a box filled by the
// caller's statement, added to the caller's list chosen by a word.

#include "registers/geradorad.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;

class frmgeradorad : public QWidget {
    Q_OBJECT
public:
    // The one window, created at its first reference after an unload.
    static frmgeradorad* instance();
    static frmgeradorad* aberto();
    // A request of a caller: caption and label, carregar, modificar, shown on top. An error of
    // carregar reaches the caller.
    static void abrir(const registers::pedido_lista& pedido);

    // Runs the statement and fills the box with the field of each row, the first in its text.
    void carregar(const QString& consulta, const QString& campo);
    // Remembers the word of the caller's list.
    void modificar(const QString& tipo);
    void cmdadicionar_click();
    bool descarregado() const { return descarregado_; }

    QComboBox* cbolista;
    QLabel* lbltitulo;
    QPushButton* cmdadicionar;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    frmgeradorad();
    void descarregar();

    QString tipo_;
    std::function<void(const QString&, const QString&)> adicionar_;
    bool descarregado_ = false;
};
