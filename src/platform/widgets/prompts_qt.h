#pragma once
#include "platform/prompts.h"

namespace platform {

// Real dialogs of the desktop.
class qt_prompts : public prompts {
public:
    int msgbox(const QString& text, int style, const QString& title) override;
    QString inputbox(const QString& text, const QString& title, const QString& initial) override;
    QString open_file(const QString& title, const QString& filter, const QString& initial) override;
    QString save_file(const QString& title, const QString& filter, const QString& initial) override;
};

// "Texto (*.txt)|*.txt|Todos (*.*)|*.*" -> "Texto (*.txt);;Todos (*.*)"
QString qt_filter(const QString& old_filter);

} // namespace platform
