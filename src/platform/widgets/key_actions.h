#pragma once
// Keys that run a routine while a widget has the focus (Insert, Enter, Delete, F5 on a list):
// the key runs what the matching button runs, and is taken so the widget does not act on it too.

#include <QObject>

#include <functional>
#include <vector>

class QWidget;

class key_actions : public QObject {
    Q_OBJECT
public:
    struct binding {
        int key; // Qt::Key; Key_Return also answers the keypad's Enter
        std::function<void()> run;
    };
    // Installs the keys on the widget; the filter lives as long as the widget.
    static key_actions* install(QWidget* w, std::vector<binding> keys);

protected:
    bool eventFilter(QObject* watched, QEvent* e) override;

private:
    key_actions(QWidget* w, std::vector<binding> keys);
    const binding* find(int key) const;
    std::vector<binding> keys_;
};
