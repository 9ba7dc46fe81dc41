#pragma once
// What frmmovimentobanc and frmeditarbancario share: the same fields in the same tab order, the
// same conduct and the same store routine. Each twin gives its differences as a movement_twin.

#include "banks/movimento_bancario.h"
#include "platform/widgets/single_window.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class atalhos;
class date_field;
class money_field;

class movimento_window : public QWidget {
    Q_OBJECT
public:
    const banks::movement_twin& twin() const { return twin_; }
    // Unloaded (stored, cancelled or closed): the next opening makes a new window.
    bool descarregado() const { return is_unloaded(this); }

    QComboBox* cbomovimento = nullptr;
    QComboBox* cboorigem = nullptr;
    QComboBox* cbodestino = nullptr;
    date_field* txtdata = nullptr;
    money_field* txtvalor = nullptr;
    QLineEdit* txtinfo = nullptr;
    QComboBox* cboestatus = nullptr;
    QPushButton* cmdcancelar = nullptr;

    // Makes the window visible and brings it forward.
    void mostrar();
    // The target box and its label, together.
    void mostrar_destino(bool sim);

    // The store button: checks, writes, reloads the movement list and unloads.
    void gravar();
    void cmdcancelar_click();
    // The choice of a movement shows or hides the target box.
    void cbomovimento_click();

protected:
    explicit movimento_window(const banks::movement_twin& twin);
    QPushButton* botao_gravar() const { return gravar_; }
    // The row an edit rewrites.
    virtual double chave() const { return 0; }
    void closeEvent(QCloseEvent* e) override;

private:
    void montar();
    void preencher_contas();
    void descarregar();
    void txtdata_entrou();
    void txtdata_saiu();
    banks::movement_fields campos() const;

    const banks::movement_twin& twin_;
    QPushButton* gravar_ = nullptr;
    QLabel* lbldestino_ = nullptr;
    atalhos* atalhos_ = nullptr;
};
