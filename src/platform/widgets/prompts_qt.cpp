#include "platform/widgets/prompts_qt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace platform {

QString qt_filter(const QString& old_filter) {
    const QStringList parts = old_filter.split(QLatin1Char('|'));
    QStringList out;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        QString label = parts[i];
        const QString patterns = QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' '));
        if (!label.contains(QLatin1Char('('))) label += QStringLiteral(" (") + patterns + QLatin1Char(')');
        out << label;
    }
    return out.join(QStringLiteral(";;"));
}

int qt_prompts::msgbox(const QString& text, int style, const QString& title) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(title);
    box.setText(text);
    switch (style & 0x70) {
    case critical:
        box.setIcon(QMessageBox::Critical);
        break;
    case question:
        box.setIcon(QMessageBox::Question);
        break;
    case exclamation:
        box.setIcon(QMessageBox::Warning);
        break;
    case information:
        box.setIcon(QMessageBox::Information);
        break;
    default:
        box.setIcon(QMessageBox::NoIcon);
    }
    struct button {
        QMessageBox::StandardButton qt;
        int answer;
        const char* caption;
    };
    std::vector<button> buttons;
    switch (style & 7) {
    case ok_cancel:
        buttons = {{QMessageBox::Ok, answer_ok, "OK"}, {QMessageBox::Cancel, answer_cancel, "Cancelar"}};
        break;
    case abort_retry_ignore:
        buttons = {{QMessageBox::Abort, answer_abort, "Anular"},
                   {QMessageBox::Retry, answer_retry, "Repetir"},
                   {QMessageBox::Ignore, answer_ignore, "Ignorar"}};
        break;
    case yes_no_cancel:
        buttons = {{QMessageBox::Yes, answer_yes, "Sim"},
                   {QMessageBox::No, answer_no, "Não"},
                   {QMessageBox::Cancel, answer_cancel, "Cancelar"}};
        break;
    case yes_no:
        buttons = {{QMessageBox::Yes, answer_yes, "Sim"}, {QMessageBox::No, answer_no, "Não"}};
        break;
    case retry_cancel:
        buttons = {{QMessageBox::Retry, answer_retry, "Repetir"},
                   {QMessageBox::Cancel, answer_cancel, "Cancelar"}};
        break;
    default:
        buttons = {{QMessageBox::Ok, answer_ok, "OK"}};
    }
    QMessageBox::StandardButtons all;
    for (const auto& b : buttons)
        all |= b.qt;
    box.setStandardButtons(all);
    for (const auto& b : buttons)
        box.button(b.qt)->setText(QString::fromUtf8(b.caption));
    const std::size_t def = (style & default_button2) && buttons.size() > 1 ? 1 : 0;
    box.setDefaultButton(buttons[def].qt);
    if (buttons.size() > 1) box.setEscapeButton(buttons.back().qt);
    const auto pressed = static_cast<QMessageBox::StandardButton>(box.exec());
    for (const auto& b : buttons)
        if (b.qt == pressed) return b.answer;
    return buttons.back().answer;
}

QString qt_prompts::inputbox(const QString& text, const QString& title, const QString& initial) {
    bool ok = false;
    const QString t =
        QInputDialog::getText(QApplication::activeWindow(), title, text, QLineEdit::Normal, initial, &ok);
    return ok ? t : QString();
}

QString qt_prompts::open_file(const QString& title, const QString& filter, const QString& initial) {
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), title, initial, qt_filter(filter));
}

QString qt_prompts::save_file(const QString& title, const QString& filter, const QString& initial) {
    return QFileDialog::getSaveFileName(QApplication::activeWindow(), title, initial, qt_filter(filter));
}

} // namespace platform
