#pragma once
// The report window: one of five lists, the kind of report, the period and totals lines, and the
// buttons to print and to save as text or HTML. Feeders fill it through preencher().

#include "output/c_relatorios.h"
#include "output/report_frame.h"

#include <QStringList>
#include <QWidget>

#include <memory>
#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;
class list_view;

namespace output {

// A column of a report window's list: heading, width in twips, list_view::tag_kind.
struct coluna_lista {
    QString texto;
    double largura;
    int tag;
};
void montar_colunas(list_view& l, const std::vector<coluna_lista>& colunas);

// The window's bar as the exporter drives it: percent values, shown while a file is written.
class barra_progresso : public progress {
public:
    explicit barra_progresso(QProgressBar* b) : b_(b) {}
    void set_value(double percent) override;
    void set_visible(bool v) override;

private:
    QProgressBar* b_;
};

} // namespace output

class frmrelatorio : public QWidget {
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
    void mostrar_lista(lista l);
    list_view* lista_de(lista l) const;
    // The visible list, tested in the order pagar, receber, movimento, clientes, fornecedores.
    list_view* lista_visivel() const;

    // Sizes the visible list's columns to their contents, headings included.
    void ajustarcolunas();
    void salvartxt();
    void salvarhtml();
    void imprimir();
    output::report_texts report_texts() const;

    QLabel* SpitFireXpSB1;
    list_view* lstpagar;
    list_view* lstreceber;
    list_view* lstmovimento;
    list_view* lstclientes;
    list_view* lstfornecedores;
    QLabel* LBLTIPO;
    QLabel* lblsubtitulo;
    QLabel* lblgeral;
    QProgressBar* barraprogresso;
    QPushButton* cmdimprimir;
    QPushButton* cmdtxt;
    QPushButton* cmdhtml;

protected:
    void resizeEvent(QResizeEvent* e) override;

private:
    void dispor();
    int px(double twips) const;

    output::c_relatorios relatorio_;
    std::unique_ptr<output::progress> barra_;
};
