#include "platform/prompts.h"

namespace platform {

namespace {
class silent_prompts : public prompts {
public:
    int msgbox(const QString&, int style, const QString&) override {
        const int buttons = style & 7;
        return buttons == yes_no || buttons == yes_no_cancel ? answer_no : answer_ok;
    }
    QString inputbox(const QString&, const QString&, const QString&) override { return {}; }
    QString open_file(const QString&, const QString&, const QString&) override { return {}; }
    QString save_file(const QString&, const QString&, const QString&) override { return {}; }
};
silent_prompts the_silent_prompts;
prompts* installed = nullptr;
} // namespace

prompts& ask() {
    return installed ? *installed : the_silent_prompts;
}
void set_prompts(prompts* p) {
    installed = p;
}

int scripted_prompts::msgbox(const QString& text, int style, const QString& title) {
    records_.push_back({QStringLiteral("msgbox"), title, text, style, {}});
    boxes_.push_back(records_.back());
    if (!answers_.empty()) {
        const int a = answers_.front();
        answers_.pop_front();
        return a;
    }
    const int buttons = style & 7;
    return buttons == yes_no || buttons == yes_no_cancel ? answer_yes : answer_ok;
}

QString scripted_prompts::inputbox(const QString& text, const QString& title, const QString& initial) {
    records_.push_back({QStringLiteral("inputbox"), title, text, 0, {}});
    if (texts_.empty()) return initial;
    QString t = texts_.front();
    texts_.pop_front();
    return t;
}

QString scripted_prompts::open_file(const QString& title, const QString& filter, const QString&) {
    records_.push_back({QStringLiteral("open_file"), title, {}, 0, filter});
    if (texts_.empty()) return {};
    QString t = texts_.front();
    texts_.pop_front();
    return t;
}

QString scripted_prompts::save_file(const QString& title, const QString& filter, const QString&) {
    records_.push_back({QStringLiteral("save_file"), title, {}, 0, filter});
    if (texts_.empty()) return {};
    QString t = texts_.front();
    texts_.pop_front();
    return t;
}

} // namespace platform
