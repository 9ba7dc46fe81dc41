#pragma once
// The cash flow request window and its result window. The request window does the reading and
// fills the result, which only shows, exports and prints what it was given.

#include "analysis/cash_flow.h"
#include "output/c_relatorios.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTabWidget;
class date_field;
class list_view;

class frmfluxo : public QWidget {
    Q_OBJECT
public:
    static frmfluxo* instance();
    static frmfluxo* aberto();
    ~frmfluxo() override;

    // The lists, tabs and texts of a finished reading.
    void preencher(analysis::tipo_fluxo t, const analysis::textos_fluxo& x, analysis::lado_fluxo* pagar,
                   analysis::lado_fluxo* receber);

    QLabel* SpitFireXpSB1;
    QTabWidget* XTab;
    list_view* lstpagar;
    list_view* lstreceber;
    QLabel* lbldata;
    QLabel* lblest;
    QLabel* lblest2;
    QPlainTextEdit* txtinfo;
    QPlainTextEdit* txtinfop2;
    QProgressBar* barraprogresso;
    QPushButton* cmdimprimir;
    QPushButton* cmdhtml;
    QPushButton* cmdInfo;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    frmfluxo();
    void cmdhtml_click();
    void cmdimprimir_click();
    void cmdInfo_click();

    bool descarregado_ = false;
    output::c_relatorios relatorio_;
    std::unique_ptr<output::progress> barra_;
};

class frmconfluxo : public QWidget {
    Q_OBJECT
public:
    static frmconfluxo* instance();
    static frmconfluxo* aberto();
    // The menu's entry: the window with its kind ("pagar", "receber", anything else: general).
    static void abrir(const QString& tipo);

    date_field* cbodata1;
    date_field* cbodata2;
    QComboBox* cbobanco;
    QComboBox* cboestatus;
    QPushButton* cmdnatela;
    QLabel* lbltipo;

    void carregarpagar();
    void carregarreceber();
    void CarregarGeral();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    frmconfluxo();
    void cmdnatela_click();
    analysis::pedido_fluxo pedido() const;
    void um_lado(analysis::tipo_fluxo t);

    bool descarregado_ = false;
};
