#pragma once
// The window that stands while a mail goes out: it only informs.

#include <QWidget>

class QLabel;

class frmenviando : public QWidget {
    Q_OBJECT
public:
    frmenviando(const QString& titulo, const QString& texto, QWidget* sobre = nullptr);

    QLabel* lbltexto;
};
