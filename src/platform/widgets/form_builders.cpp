#include "platform/widgets/form_builders.h"

#include "platform/widgets/field_helpers.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QScreen>

QComboBox* chosen_box(const char* name) {
    auto* c = named(new QComboBox, name);
    c->setEditable(true);
    c->setInsertPolicy(QComboBox::NoInsert);
    c->setCompleter(nullptr);
    discard_keys(c);
    return c;
}

QComboBox* typed_box(const char* name) {
    auto* c = named(new QComboBox, name);
    c->setEditable(true);
    c->setInsertPolicy(QComboBox::NoInsert);
    autocomplete_on_key_up(c);
    return c;
}

QLabel* picture(const char* name, QStyle::StandardPixmap icon) {
    auto* l = named(new QLabel, name);
    l->setPixmap(QApplication::style()->standardIcon(icon).pixmap(32, 32));
    l->hide();
    return l;
}

void fill_names(QComboBox* box, const QStringList& names) {
    box->clear();
    box->addItems(names);
    box->setEditText(names.isEmpty() ? QString() : names.front());
}

void set_tab_chain(std::initializer_list<QWidget*> chain) {
    QWidget* previous = nullptr;
    for (QWidget* w : chain) {
        if (!w) continue;
        if (previous) QWidget::setTabOrder(previous, w);
        previous = w;
    }
}

namespace {

void show_placed(QWidget* form, bool fit) {
    if (!form->isVisible() && !form->property("quintara_placed").toBool()) {
        if (fit) form->adjustSize();
        QWidget* over = QApplication::activeWindow();
        QRect area;
        if (over && over != form)
            area = over->frameGeometry();
        else if (QScreen* s = QGuiApplication::primaryScreen())
            area = s->availableGeometry();
        if (area.isValid()) form->move(area.center() - QPoint(form->width() / 2, form->height() / 2));
        form->setProperty("quintara_placed", true);
    }
    form->show();
    form->raise();
    form->activateWindow();
}

} // namespace

void show_form(QWidget* form) {
    show_placed(form, true);
}

void show_window(QWidget* window) {
    show_placed(window, false);
}
