#include "mail/ui/frmenviando.h"

#include "platform/widgets/form_builders.h"

#include <QLabel>
#include <QVBoxLayout>

frmenviando::frmenviando(const QString& titulo, const QString& texto, QWidget* sobre)
    : QWidget(nullptr, Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint),
      lbltexto(named(new QLabel(texto), "lbltexto")) {
    setObjectName(QStringLiteral("frmenviando"));
    setWindowTitle(titulo);
    setAttribute(Qt::WA_DeleteOnClose);
    lbltexto->setWordWrap(true);
    auto* v = new QVBoxLayout(this);
    v->setContentsMargins(18, 18, 18, 18);
    v->addWidget(lbltexto);
    setFixedWidth(420);
    adjustSize();
    // over the window that sends, which is disabled meanwhile
    if (sobre) move(sobre->frameGeometry().center() - QPoint(width() / 2, height() / 2));
}
