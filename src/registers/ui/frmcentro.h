#pragma once
// The cost centre and profit centre windows: adding, renaming and removing names, and the summary
// per centre with its files and print. The twins share this class; their differences are the
// registers::gemeo_centro table.

#include "output/c_relatorios.h"
#include "registers/centres.h"

#include <QWidget>

#include <memory>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTabWidget;
class date_field;
class list_view;

class centre_window : public QWidget {
    Q_OBJECT
public:
    ~centre_window() override;

    registers::centro tipo() const { return c_; }
    // carregarpagar / carregarreceber: the list of names, errors ignored.
    void carregar();
    void cmdcad_click();
    void cmdeditar_click();
    void cmdremover_click();
    void cmdver_click();
    void cmdtxt_click();
    void cmdhtml_click();
    void cmdimprimir_click();
    // Visible, in front and active.
    void mostrar();
    bool descarregado() const { return descarregado_; }

    QTabWidget* XTab1;
    QLineEdit* txtnome;
    QPushButton* cmdcad;
    list_view* lista; // lstcentrocusto or lstcentrolucro
    QPushButton* cmdremover;
    QPushButton* cmdeditar;
    date_field* cbodata1;
    date_field* cbodata2;
    QPushButton* cmdver;
    list_view* lstplanos;
    QLabel* lblgeral;
    QPushButton* cmdimprimir;
    QPushButton* cmdtxt;
    QPushButton* cmdhtml;
    QProgressBar* barraprogresso;

    QSize sizeHint() const override;

protected:
    explicit centre_window(registers::centro c);
    void closeEvent(QCloseEvent* e) override;

private:
    void montar();
    // The selected name, or empty when the list has none selected.
    QString selecionado() const;
    void avisar(const QString& nome);
    void erro(const QString& texto);

    registers::centro c_;
    output::c_relatorios relatorio_;
    std::unique_ptr<output::progress> barra_;
    bool descarregado_ = false;
};

class frmcentrocusto : public centre_window {
    Q_OBJECT
public:
    // The one window, created at its first reference after an unload.
    static frmcentrocusto* instance();
    static frmcentrocusto* aberto();
    void carregarpagar() { carregar(); }

private:
    frmcentrocusto() : centre_window(registers::centro::custo) {}
};

class frmcentrolucro : public centre_window {
    Q_OBJECT
public:
    static frmcentrolucro* instance();
    static frmcentrolucro* aberto();
    void carregarreceber() { carregar(); }

private:
    frmcentrolucro() : centre_window(registers::centro::lucro) {}
};
