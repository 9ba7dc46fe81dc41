#pragma once
// The waiting window of the long loads: a title, a text and a bar, over the window that loads.

#include <QPointer>
#include <QString>
#include <QWidget>

class QLabel;
class QProgressBar;

class frmcarregando : public QWidget {
    Q_OBJECT
public:
    explicit frmcarregando(QWidget* parent = nullptr);

    QLabel* lbltitulo;
    QLabel* lbltexto;
    QProgressBar* progressobarra;

    // Over the middle of the parent window, or of the screen without one.
    void centre();

protected:
    void showEvent(QShowEvent* e) override;
};

// Shows the waiting window for a scope: show, let pending events through, and at the end of the
// scope let them through again and unload it.
class waiting_window {
public:
    waiting_window(QWidget* over, const QString& titulo, const QString& texto);
    ~waiting_window();
    waiting_window(const waiting_window&) = delete;
    waiting_window& operator=(const waiting_window&) = delete;

    void set_range(int minimum, int maximum);
    void set_value(int value);
    // Lets pending window events run.
    static void yield();
    // Unloads it now (also when the loader goes on afterwards).
    void close();
    // Leaves it on the screen past the scope; the caller unloads it.
    frmcarregando* release();

private:
    // The loading window may be closed, and this one with it, while events run.
    QPointer<frmcarregando> frm_;
};
