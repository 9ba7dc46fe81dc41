#pragma once
// Every message box, input box and file dialog of the program goes through here, so that tests
// can answer them and read what was asked.

#include <QString>
#include <QStringList>

#include <deque>
#include <vector>

namespace platform {

// Message box styles and answers, with the old numbers so that a style reads as it is written.
enum msg_style : int {
    ok_only = 0,
    ok_cancel = 1,
    abort_retry_ignore = 2,
    yes_no_cancel = 3,
    yes_no = 4,
    retry_cancel = 5,
    critical = 16,
    question = 32,
    exclamation = 48,
    information = 64,
    default_button2 = 256,
};
enum msg_answer : int {
    answer_ok = 1,
    answer_cancel = 2,
    answer_abort = 3,
    answer_retry = 4,
    answer_ignore = 5,
    answer_yes = 6,
    answer_no = 7
};

class prompts {
public:
    virtual ~prompts() = default;
    virtual int msgbox(const QString& text, int style, const QString& title) = 0;
    // The typed text, or an empty text when cancelled.
    virtual QString inputbox(const QString& text, const QString& title, const QString& initial) = 0;
    // Filters in the old form: "Arquivo texto (*.txt)|*.txt|Todos (*.*)|*.*". Empty text when cancelled.
    virtual QString open_file(const QString& title, const QString& filter, const QString& initial) = 0;
    virtual QString save_file(const QString& title, const QString& filter, const QString& initial) = 0;
};

prompts& ask();
void set_prompts(prompts* p); // nullptr: prompts that answer nothing and show nothing

inline int msgbox(const QString& text, int style = ok_only,
                  const QString& title = QStringLiteral("Quintara")) {
    return ask().msgbox(text, style, title);
}

// Records every prompt and answers from a queue; an empty queue gives OK, Yes or an empty text.
class scripted_prompts : public prompts {
public:
    struct record {
        QString kind; // "msgbox", "inputbox", "open_file", "save_file"
        QString title;
        QString text;
        int style = 0;
        QString filter;
    };
    int msgbox(const QString& text, int style, const QString& title) override;
    QString inputbox(const QString& text, const QString& title, const QString& initial) override;
    QString open_file(const QString& title, const QString& filter, const QString& initial) override;
    QString save_file(const QString& title, const QString& filter, const QString& initial) override;

    void answer(int a) { answers_.push_back(a); }
    void answer_text(const QString& t) { texts_.push_back(t); }
    const std::vector<record>& records() const { return records_; }
    void clear() {
        records_.clear();
        boxes_.clear();
    }
    // The records of message boxes only, kept as they come so that a reference into them lives as
    // long as the prompts do.
    const std::vector<record>& boxes() const { return boxes_; }

private:
    std::vector<record> records_;
    std::vector<record> boxes_;
    std::deque<int> answers_;
    std::deque<QString> texts_;
};

} // namespace platform
