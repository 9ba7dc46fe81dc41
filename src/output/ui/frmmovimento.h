#pragma once
// The movement window: one of three lists with the period and totals lines, printed line by line
// and saved as text or HTML. Feeders fill it through preencher().

#include "output/ui/frmreport_window.h"

class QLabel;

class frmmovimento : public report_window {
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

    void imprimir() override;

    list_view* lstpagar;
    list_view* lstreceber;
    list_view* lstmovimento;
    QLabel* lblsubtitulo;
    QLabel* lblpagarest;
    QPushButton* cmdsair;
};
