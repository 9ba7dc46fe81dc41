#pragma once
// What the list windows of the registers share (a diary, a contact list, a statistics list): one
// list under a line that says what it shows, a toolbar whose buttons go by key, the progress bar
// of the exports, the exporter's slot while open, and the text, HTML and printed outputs with
// each window's own words.

#include "output/c_relatorios.h"
#include "output/report_frame.h"

#include <QIcon>
#include <QPixmap>
#include <QStringList>
#include <QStyle>
#include <QWidget>

#include <functional>
#include <memory>

class QAction;
class QLabel;
class QMenu;
class QProgressBar;
class QToolBar;
class list_view;

// An icon of the desktop's theme (the first of the names it has), or the style's own picture.
QIcon icone_tema(const QStringList& nomes, QStyle::StandardPixmap reserva);

class list_window : public QWidget {
    Q_OBJECT
public:
    ~list_window() override;

    // The outputs, as the toolbar, the pop-up and the Alt keys run them.
    void txt();
    void HTML();
    void Imprimir();

    // The toolbar's button of that key (nullptr when it has none).
    QAction* botao(const QString& key) const;

    // What a window says of its outputs.
    struct saida {
        QString titulo_txt, filtro_txt, titulo_html, filtro_html; // the save dialogs
        output::list_frame moldura;                               // both files
        QString titulo_impressao, lblfiltro, lblestatus, lblsumario1, lblsumario2;
    };

    QLabel* lbltopo;
    QProgressBar* barraprogresso;
    QToolBar* tbrbarra;

protected:
    list_window(const char* name, const QString& caption, list_view* lista);
    virtual saida textos_saida() const = 0;

    // A toolbar button: objectName and key are the same word.
    QAction* novo_botao(const char* key, const QString& caption, std::function<void()> run);
    // The same with an icon of the desktop's theme; the bar then shows icons over the captions.
    QAction* novo_botao(const char* key, const QString& caption, std::function<void()> run,
                        const QStringList& icones, QStyle::StandardPixmap reserva);
    // An item of the list's pop-up menu, named for tests and wiring; a failure it lets escape is
    // dropped rather than reaching the event loop.
    static QAction* novo_item(QMenu* menu, const char* name, const QString& caption,
                              std::function<void()> run);
    // The right mouse button on the list opens the menu.
    void ligar_popup(QMenu* menu);
    // fundo.gif of the program's folder behind the list's rows; a missing file is ignored.
    void carregar_fundo();
    output::c_relatorios& exportador() { return relatorio_; }

    list_view* lista_;

private:
    output::c_relatorios relatorio_;
    std::unique_ptr<output::progress> barra_;
};
