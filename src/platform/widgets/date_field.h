#pragma once
// A date that may be left empty: typed as dd/mm/yyyy or picked in a calendar that drops down
// under the field. Enter goes on as Tab and the field takes the focus colours of the others.

#include <QDate>
#include <QString>
#include <QWidget>

class QCalendarWidget;
class QLineEdit;
class QToolButton;

class date_field : public QWidget {
    Q_OBJECT
public:
    explicit date_field(QWidget* parent = nullptr);
    ~date_field() override;

    // "dd/mm/yyyy"; "" when the field is empty or what was typed is not a date (the typed text
    // stays in the box to be corrected).
    QString text() const;
    // "dd/mm/yyyy", "yyyy/mm/dd" or ""; any other text is shown as it is and reads as no date.
    void set_text(const QString& text);
    // Invalid when empty or unreadable.
    QDate date() const;
    void set_date(const QDate& date);
    void clear();

    // The text as it stands in the box.
    QString typed_text() const;
    bool is_empty() const;

    QLineEdit* line_edit() const { return edit_; }
    // The drop-down calendar (created on first use).
    QCalendarWidget* calendar();
    bool calendar_open() const;

    // dd/mm/yyyy, d/m/yy, yyyy/mm/dd, or eight digits ddmmyyyy.
    static QDate read_date(const QString& text);

public Q_SLOTS:
    void open_calendar();
    void close_calendar();

Q_SIGNALS:
    // Around the calendar, so that a topmost form can step back while it is open.
    void calendar_opened();
    void calendar_closed();
    // The user entering and leaving the field (not the window losing the focus).
    void entered();
    void left();
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void pick(const QDate& date);
    void tidy_typed_text();

    QLineEdit* edit_;
    QToolButton* button_;
    QCalendarWidget* popup_ = nullptr;
    bool inside_ = false;
};
