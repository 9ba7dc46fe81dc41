#include "platform/widgets/frmcarregando.h"

#include <QCoreApplication>
#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QVBoxLayout>

frmcarregando::frmcarregando(QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint), lbltitulo(new QLabel), lbltexto(new QLabel),
      progressobarra(new QProgressBar) {
    setObjectName(QStringLiteral("frmcarregando"));
    lbltitulo->setObjectName(QStringLiteral("lbltitulo"));
    lbltexto->setObjectName(QStringLiteral("lbltexto"));
    progressobarra->setObjectName(QStringLiteral("progressobarra"));

    // Frameless, so the window draws its own edge.
    auto* frame = new QFrame(this);
    frame->setFrameShape(QFrame::Box);
    frame->setFrameShadow(QFrame::Raised);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(frame);

    QFont bold = lbltitulo->font();
    bold.setBold(true);
    lbltitulo->setFont(bold);
    lbltitulo->setWordWrap(true);
    lbltexto->setWordWrap(true);
    progressobarra->setTextVisible(false);
    progressobarra->setRange(0, 100);
    progressobarra->setValue(0);

    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(8);
    layout->addWidget(lbltitulo);
    layout->addWidget(lbltexto);
    layout->addWidget(progressobarra);

    setFixedWidth(420);
    setWindowModality(Qt::NonModal);
}

void frmcarregando::centre() {
    adjustSize();
    QRect area;
    if (QWidget* p = parentWidget()) {
        const QWidget* top = p->window();
        area = QRect(top->mapToGlobal(QPoint(0, 0)), top->size());
    } else if (const QScreen* s = QGuiApplication::primaryScreen()) {
        area = s->availableGeometry();
    }
    if (area.isValid()) move(area.center() - QPoint(width() / 2, height() / 2));
}

void frmcarregando::showEvent(QShowEvent* e) {
    centre();
    QWidget::showEvent(e);
}

waiting_window::waiting_window(QWidget* over, const QString& titulo, const QString& texto)
    : frm_(new frmcarregando(over)) {
    frm_->lbltitulo->setText(titulo);
    frm_->lbltexto->setText(texto);
    frm_->show();
    frm_->raise();
    yield();
}

waiting_window::~waiting_window() {
    if (!frm_) return;
    yield();
    close();
}

void waiting_window::set_range(int minimum, int maximum) {
    if (frm_) frm_->progressobarra->setRange(minimum, maximum);
}

void waiting_window::set_value(int value) {
    if (frm_) frm_->progressobarra->setValue(value);
}

void waiting_window::yield() {
    QCoreApplication::processEvents();
}

void waiting_window::close() {
    delete frm_.data();
    frm_ = nullptr;
}

frmcarregando* waiting_window::release() {
    frmcarregando* f = frm_;
    frm_ = nullptr;
    return f;
}
