#pragma once
// Totals by client, by supplier or by cost/profit centre: one of three lists, the totals line,
// saved as text or HTML under the statistics' own dialog words and printed as a list report.

#include "output/ui/frmreport_window.h"

class QLabel;
class QPushButton;

class frmestforncli : public report_window {
    Q_OBJECT
public:
    enum class lista { cliente, fornecedor, planos };

    static frmestforncli* instance();
    static frmestforncli* aberto();

    // Fills one list (its rows replaced) and shows it alone, with the caption and lblgeral.
    void preencher(lista l, std::vector<QStringList>&& rows, const QString& caption, const QString& geral);
    list_view* lista_de(lista l) const;

    void imprimir() override;
    output::report_texts report_texts() const override;
    // The print title of the visible list.
    QString titulo_impressao() const;

    list_view* lstcliente;
    list_view* lstfornecedor;
    list_view* lstplanos;
    QLabel* lblgeral;
    QPushButton* cmdsair;

protected:
    QString save_title(output::formato_relatorio f) const override;
    QString save_filter(output::formato_relatorio f) const override;

private:
    frmestforncli();
};
