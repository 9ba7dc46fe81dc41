#pragma once
// The movement window: one of three lists with the period and totals lines, printed line by line
// and saved as text or HTML. Feeders fill it through preencher().

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

class frmmovimento : public QWidget {
    Q_OBJECT
public:
    enum class lista { pagar, receber, movimento };

    struct textos {
        QString caption; // empty keeps "Movimento"
        QString subtitulo;
        QString pagarest;
    };

    explicit frmmovimento(QWidget* parent = nullptr);
    ~frmmovimento() override;

    void preencher(lista l, std::vector<QStringList>&& rows, const textos& t);
    void mostrar_lista(lista l);
    list_view* lista_de(lista l) const;
    // Tested in the order pagar, receber, movimento.
    list_view* lista_visivel() const;

    void salvartxt();
    void salvarhtml();
    void imprimir();
    output::report_texts report_texts() const;

    list_view* lstpagar;
    list_view* lstreceber;
    list_view* lstmovimento;
    QLabel* lblsubtitulo;
    QLabel* lblpagarest;
    QProgressBar* barraprogresso;
    QPushButton* cmdimprimir;
    QPushButton* cmdtxt;
    QPushButton* cmdhtml;
    QPushButton* cmdsair;

private:
    output::c_relatorios relatorio_;
    std::unique_ptr<output::progress> barra_;
};
