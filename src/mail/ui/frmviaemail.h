#pragma once
// Reports and statistics by e-mail: one window, two pages. picret sends the ledgers as an
// attached text file, picestatisticas sends their figures in the body. Each page keeps its
// choices in the settings as they are clicked, and the sender's data when a send begins.

#include "mail/via_email.h"

#include <QPointer>
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class date_field;

class frmviaemail : public QWidget {
    Q_OBJECT
public:
    enum class pagina { relatorio, estatisticas };

    // mnuretviaemail / mnuestviaemail: the window with that page, its settings read again.
    static frmviaemail* mostrar(pagina p);
    static frmviaemail* aberta();

    void cmdenviarret_click();
    void cmdenviar2_click();
    void cmdaviso_click();
    void cmdlogin_click();

    QStackedWidget* paginas;
    QWidget* picret;
    QWidget* picestatisticas;
    // report page
    QCheckBox *chkpagar, *chkreceber, *chkbancario, *chkpordata;
    date_field *cboinicioret, *cbofinalret;
    QRadioButton *opttodosret, *optpendentesret, *optconcluidosret;
    QLineEdit *txtnome, *txtemail, *txtservidor;
    QPushButton *cmdenviarret, *cmdlogin1;
    // statistics page
    QCheckBox *chkpagarest, *chkreceberest, *chkbancarioest, *chkpordatasest;
    date_field *cbodata1est, *cbodata2est;
    QLineEdit *txtnome2, *txtemail2, *txtservidor2;
    QPushButton *cmdenviar2, *cmdlogin2;
    QPushButton* cmdaviso;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    frmviaemail();
    QWidget* montar_pagina(bool ret);
    void ler_relatorio();
    void ler_estatisticas();
    mail::pagina dados_relatorio() const;
    mail::pagina dados_estatisticas() const;
    // Checks and saves a page's sender data; false when the "Erro" box stopped the send.
    bool preparar(const mail::pagina& p);
    void enviar(const platform::mail_message& m, const QString& titulo, const QString& texto);

    bool enviando_ = false;
    static QPointer<frmviaemail> aberta_;
};
