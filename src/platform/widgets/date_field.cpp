#include "platform/widgets/date_field.h"

#include "platform/clock.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/field_helpers.h"

#include <QCalendarWidget>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QToolButton>

namespace {

bool may_type_in_date(QChar c) {
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('/') ||
           c == QLatin1Char('-') || c == QLatin1Char('.');
}

} // namespace

date_field::date_field(QWidget* parent)
    : QWidget(parent), edit_(new QLineEdit(this)), button_(new QToolButton(this)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(edit_, 1);
    layout->addWidget(button_);

    edit_->setMaxLength(10);
    edit_->setPlaceholderText(QStringLiteral("dd/mm/aaaa"));
    button_->setArrowType(Qt::DownArrow);
    button_->setFocusPolicy(Qt::NoFocus);
    button_->setToolTip(QStringLiteral("Calendário"));
    // The edit alone stands in the tab order; focusing the field focuses it.
    setFocusProxy(edit_);
    setSizePolicy(edit_->sizePolicy());

    install_field_conduct(edit_);
    edit_->installEventFilter(this);
    connect(button_, &QToolButton::clicked, this, &date_field::open_calendar);
    connect(edit_, &QLineEdit::textChanged, this, &date_field::changed);
}

date_field::~date_field() {
    if (popup_) {
        popup_->removeEventFilter(this);
        delete popup_;
    }
}

QDate date_field::read_date(const QString& text) {
    const QString s = text.trimmed();
    if (s.isEmpty()) return {};
    if (s.size() == 8) {
        bool digits = true;
        for (QChar c : s)
            digits = digits && c >= QLatin1Char('0') && c <= QLatin1Char('9');
        if (digits) return QDate(s.mid(4, 4).toInt(), s.mid(2, 2).toInt(), s.left(2).toInt());
    }
    return vb::cdate(s);
}

QString date_field::text() const {
    const QDate d = date();
    return d.isValid() ? vb::dmy(d) : QString();
}

void date_field::set_text(const QString& text) {
    const QDate d = read_date(text);
    edit_->setText(d.isValid() ? vb::dmy(d) : text.trimmed());
}

QDate date_field::date() const {
    return read_date(edit_->text());
}

void date_field::set_date(const QDate& date) {
    edit_->setText(date.isValid() ? vb::dmy(date) : QString());
}

void date_field::clear() {
    edit_->clear();
}

QString date_field::typed_text() const {
    return edit_->text();
}

bool date_field::is_empty() const {
    return edit_->text().trimmed().isEmpty();
}

QCalendarWidget* date_field::calendar() {
    if (!popup_) {
        popup_ = new QCalendarWidget(this);
        popup_->setWindowFlags(Qt::Popup);
        popup_->setGridVisible(true);
        popup_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
        popup_->installEventFilter(this);
        connect(popup_, &QCalendarWidget::clicked, this, &date_field::pick);
        connect(popup_, &QCalendarWidget::activated, this, &date_field::pick);
    }
    return popup_;
}

bool date_field::calendar_open() const {
    return popup_ && popup_->isVisible();
}

void date_field::open_calendar() {
    if (calendar_open()) return;
    QCalendarWidget* cal = calendar();
    const QDate d = date();
    const QDate shown = d.isValid() ? d : platform::today();
    cal->setSelectedDate(shown);
    cal->setCurrentPage(shown.year(), shown.month());

    Q_EMIT calendar_opened();
    cal->adjustSize();
    QPoint at = mapToGlobal(QPoint(0, height()));
    if (const QScreen* screen = this->screen()) {
        const QRect area = screen->availableGeometry();
        if (at.y() + cal->height() > area.bottom()) at.setY(mapToGlobal(QPoint(0, 0)).y() - cal->height());
        at.setX(qBound(area.left(), at.x(), qMax(area.left(), area.right() - cal->width())));
    }
    cal->move(at);
    cal->show();
    cal->setFocus(Qt::PopupFocusReason);
}

void date_field::close_calendar() {
    if (calendar_open()) popup_->hide();
}

void date_field::pick(const QDate& date) {
    set_date(date);
    close_calendar();
    edit_->setFocus(Qt::PopupFocusReason);
}

void date_field::tidy_typed_text() {
    const QDate d = date();
    if (d.isValid() && edit_->text() != vb::dmy(d)) edit_->setText(vb::dmy(d));
}

bool date_field::eventFilter(QObject* watched, QEvent* event) {
    if (watched == popup_) {
        if (event->type() == QEvent::Hide) Q_EMIT calendar_closed();
        return false;
    }
    if (watched != edit_) return false;
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto* ke = static_cast<QKeyEvent*>(event);
        if ((ke->key() == Qt::Key_Down && (ke->modifiers() & Qt::AltModifier)) || ke->key() == Qt::Key_F4) {
            open_calendar();
            return true;
        }
        const QString typed = ke->text();
        if (typed.size() == 1 && typed.front().unicode() >= 0x20 && typed.front().unicode() != 0x7F &&
            !(ke->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
            return !may_type_in_date(typed.front());
        return false;
    }
    case QEvent::FocusIn:
        if (!inside_) {
            inside_ = true;
            Q_EMIT entered();
        }
        return false;
    case QEvent::FocusOut:
        if (is_leaving_field(*static_cast<QFocusEvent*>(event))) {
            inside_ = false;
            tidy_typed_text();
            Q_EMIT left();
        }
        return false;
    default:
        return false;
    }
}
