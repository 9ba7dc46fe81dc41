#pragma once
// The settings window: every control writes its setting in its own event, so there is nothing to
// confirm and nothing to cancel. The main window takes the display options at its next activation.

#include "shell/config_soft.h"

#include <QPointer>
#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;

class frmconfigsoft : public QWidget {
    Q_OBJECT
public:
    static frmconfigsoft* mostrar();
    static frmconfigsoft* aberto();

    // The machine's screen fonts.
    void pegarfontes();

    void txtnome_lostfocus();
    void txtslogan_lostfocus();
    void cboffonte_lostfocus();
    void cboftamanho_lostfocus();
    void chkrede_click();
    void cmdlocal_click();

    QTabWidget* xtab;
    QLineEdit* txtnome;
    QLineEdit* txtslogan;
    QComboBox* cboffonte;
    QComboBox* cboftamanho;
    // the three palettes, each twelve buttons sharing one name, as a control array
    std::array<QRadioButton*, 12> optcorfonte{};
    std::array<QRadioButton*, 12> optcorfundo1{};
    std::array<QRadioButton*, 12> optcorfundo2{};
    QCheckBox* chkdica;
    QCheckBox* chkiniciar;
    QCheckBox* chkatualizar;
    QCheckBox* chkalertavenc;
    QRadioButton* optasc;
    QRadioButton* optdesc;
    QCheckBox* chkrede;
    QLineEdit* txtbd;
    QPushButton* cmdlocal;
    QPushButton* cmdsair;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    frmconfigsoft();
    QWidget* montar_geral();
    QWidget* montar_aparencia();
    QWidget* montar_rede();
    QWidget* montar_paleta(std::array<QRadioButton*, 12>& botoes, const char* nome, shell::grupo_cor g);
    void abrir();

    static QPointer<frmconfigsoft> aberta_;
};
