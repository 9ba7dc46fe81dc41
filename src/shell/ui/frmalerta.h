#pragma once
// The window of the accounts due today, opened once at start when the alerts are on. With nothing
// due it unloads before it is ever seen.

#include <QDialog>
#include <QPointer>

class QLabel;
class QTabWidget;
class list_view;

class frmalerta : public QDialog {
    Q_OBJECT
public:
    explicit frmalerta(QWidget* parent = nullptr);
    ~frmalerta() override;

    // At the main window's opening: loads the window and runs VerificarVencimentos; the window
    // shows only when some account is due today. Returns it, or nullptr when it unloaded.
    static frmalerta* VerificarVencimentos_ao_iniciar(QWidget* parent = nullptr);
    // The loaded window, if any.
    static frmalerta* aberto();

    // Fills both lists with the rows due today; with none it unloads the window and returns false.
    bool VerificarVencimentos();

    QTabWidget* XTab1;
    list_view* lstpagar;
    list_view* lstreceber;
    QLabel* lblaviso;

private:
    void descarregar();
    static QPointer<frmalerta> aberto_;
};
