#pragma once
// What the two report windows (frmrelatorio, frmmovimento) share: several lists of which one is
// shown, the progress bar, the print and save buttons, and the exporter's slot while open. Each
// window adds its own labels, lists and layout, and says what its frame holds.

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
// The tags of coluna_lista, as list_view counts them.
inline constexpr int txt = 0, dat = 1, num = 2;
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

class report_window : public QWidget {
public:
    ~report_window() override;

    // A list by the window's own enum of lists, in the order the window added them.
    template <class L> list_view* lista_de(L l) const { return listas_.at(std::size_t(l)); }
    // Shows that list alone.
    template <class L> void mostrar_lista(L l) { mostrar(lista_de(l)); }
    // The visible list, tested in the order the lists were added.
    list_view* lista_visivel() const;
    void salvartxt();
    void salvarhtml();
    virtual void imprimir() = 0;
    // The frame's texts: caption, kind, sub-title, totals, as the window's labels show them; a
    // window with labels of its own says what they hold.
    virtual output::report_texts report_texts() const;

    QProgressBar* barraprogresso;
    QPushButton* cmdimprimir;
    QPushButton* cmdtxt;
    QPushButton* cmdhtml;

protected:
    report_window(const char* name, const QString& caption, QWidget* parent,
                  output::janela_relatorio janela = output::janela_relatorio::relatorio);
    // The labels that hold the frame's texts; tipo may be null (frmmovimento has none).
    void rotulos(QLabel* tipo, QLabel* subtitulo, QLabel* totais);
    // A feeder's rows into one list, shown alone, with the caption (when one is given) and labels.
    void preencher_lista(std::size_t lista, std::vector<QStringList>&& rows, const output::report_texts& t);
    // A hidden list with its columns, one of those the window shows one at a time.
    list_view* nova_lista(const char* name, const std::vector<output::coluna_lista>& colunas);
    // Shows that list alone.
    void mostrar(list_view* alvo);
    // Replaces the rows of that list and shows it alone.
    void encher(list_view* alvo, std::vector<QStringList>&& rows);
    const std::vector<list_view*>& listas() const { return listas_; }
    output::progress* barra() const { return barra_.get(); }
    // The save dialog's title and filter; the report windows' own unless a window says otherwise.
    virtual QString save_title(output::formato_relatorio f) const;
    virtual QString save_filter(output::formato_relatorio f) const;

private:
    void salvar(output::formato_relatorio f);

    output::janela_relatorio janela_;
    QLabel* tipo_ = nullptr;
    QLabel* subtitulo_ = nullptr;
    QLabel* totais_ = nullptr;
    std::vector<list_view*> listas_;
    output::c_relatorios relatorio_;
    std::unique_ptr<output::progress> barra_;
};
