#pragma once
// The report window: one of five lists, the kind of report, the period and totals lines, and the
// buttons to print and to save as text or HTML. Feeders fill it through preencher().

#include "output/ui/frmreport_window.h"

class QLabel;

class frmrelatorio : public report_window {
    Q_OBJECT
public:
    enum class lista { pagar, receber, movimento, clientes, fornecedores };

    // What a feeder writes besides the rows.
    struct textos {
        QString caption; // window caption
        QString tipo;    // LBLTIPO
        QString subtitulo;
        QString geral;
    };

    explicit frmrelatorio(QWidget* parent = nullptr);
    ~frmrelatorio() override;

    // Fills one list (its rows replaced), the labels and the caption, and shows that list alone.
    void preencher(lista l, std::vector<QStringList>&& rows, const textos& t);

    // Sizes the visible list's columns to their contents, headings included.
    void ajustarcolunas();
    void imprimir() override;

    QLabel* SpitFireXpSB1;
    list_view* lstpagar;
    list_view* lstreceber;
    list_view* lstmovimento;
    list_view* lstclientes;
    list_view* lstfornecedores;
    QLabel* LBLTIPO;
    QLabel* lblsubtitulo;
    QLabel* lblgeral;

protected:
    void resizeEvent(QResizeEvent* e) override;

private:
    void dispor();
    int px(double twips) const;
};
