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

class report_window : public QWidget {
public:
    ~report_window() override;

    // The visible list, tested in the order the lists were added.
    list_view* lista_visivel() const;
    void salvartxt();
    void salvarhtml();
    virtual void imprimir() = 0;
    // The frame's texts: caption, kind, sub-title, totals.
    virtual output::report_texts report_texts() const = 0;

    QProgressBar* barraprogresso;
    QPushButton* cmdimprimir;
    QPushButton* cmdtxt;
    QPushButton* cmdhtml;

protected:
    report_window(const char* name, const QString& caption, QWidget* parent);
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

    std::vector<list_view*> listas_;
    output::c_relatorios relatorio_;
    std::unique_ptr<output::progress> barra_;
};
