#pragma once
// Imports a bank statement (OFX or CSV) into the movements of one account: the file, the account,
// for CSV the columns, and a preview of what will be written before anything is.

#include "banks/statement_import.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class list_view;

class frmimportarextrato : public QWidget {
    Q_OBJECT
public:
    static frmimportarextrato* instance();
    static frmimportarextrato* aberto();
    void mostrar();

    // Reads the file and fills the preview; false with the message shown when it cannot be used.
    bool abrir_arquivo(const QString& caminho);
    // Writes the new rows of the preview.
    void importar();
    // The preview's state, for the summary label and the import button.
    const std::vector<banks::preview_row>& previa() const { return previa_; }
    QString erro() const { return erro_; }

    QLineEdit* txtarquivo;
    QPushButton* cmdprocurar;
    QComboBox* cboconta;
    QGroupBox* fracsv;
    QComboBox* cbocoldata;
    QComboBox* cbocolvalor;
    QComboBox* cbocolcredito;
    QComboBox* cbocoldebito;
    QComboBox* cbocoldescricao;
    QComboBox* cboseparador;
    QComboBox* cbodecimal;
    QCheckBox* chkcabecalho;
    list_view* lstprevia;
    QLabel* lblresumo;
    QPushButton* cmdimportar;
    QPushButton* cmdcancelar;

private:
    frmimportarextrato();
    void procurar();
    void conta_escolhida();
    void layout_mudou();
    // The CSV boxes from a layout, and back.
    void mostrar_layout(const banks::csv_layout& l);
    banks::csv_layout layout_escolhido() const;
    // What the account's last CSV was read with, or what the file suggests.
    banks::csv_layout layout_da_conta() const;
    // Reads the file again under the current choices and rebuilds the preview.
    void atualizar_previa();
    void mostrar_previa();

    enum class tipo { nenhum, ofx, csv };
    tipo tipo_ = tipo::nenhum;
    QString caminho_;
    QString texto_csv_;         // the CSV file's text
    banks::statement_file ofx_; // the OFX file, read once
    std::vector<banks::preview_row> previa_;
    QString erro_;
    bool preenchendo_ = false;
};
