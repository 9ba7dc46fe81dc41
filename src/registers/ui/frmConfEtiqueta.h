#pragma once
// Chooses the label sheet, the first label to use and whether to see the pages first, then prints
// the addresses of the statement the list window handed over.

#include "registers/labels.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

class frmConfEtiqueta : public QWidget {
    Q_OBJECT
public:
    static frmConfEtiqueta* instance();
    static frmConfEtiqueta* aberto();
    ~frmConfEtiqueta() override;

    // The statement of the rows to print ("Select * from cliente").
    void carregarsql(const QString& comando);
    // A model chosen: its measures into the fields.
    void cmbModelo_click();
    // A field left: its text read as a 16-bit integer (tipo 2) or a double (tipo 5), or its default.
    void carregarEtiquetas(QLineEdit* campo, registers::tipo_medida tipo);
    void cmdImprimir_click();

    QComboBox* cmbModelo;
    QLineEdit* txtAltura;
    QLineEdit* txtLargura;
    QLineEdit* txtMSup;
    QLineEdit* txtMInf;
    QLineEdit* txtMEsq;
    QLineEdit* txtColunas;
    QLineEdit* txtLinIni;
    QLineEdit* txtColIni;
    QCheckBox* chkVisualizar;
    QPushButton* cmdImprimir;
    QLineEdit* txtsql; // hidden: the caller's statement

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    frmConfEtiqueta();
    void mostrar_folha(const registers::folha_etiquetas& f);
    registers::config_etiquetas config() const;
};
