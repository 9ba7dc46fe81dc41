#pragma once
// The tip of the day: a random line of dicas.txt, another at each cmdNextTip, and the check box
// that decides whether it shows at start.

#include "shell/tips.h"

#include <QDialog>
#include <QPixmap>
#include <QPointer>
#include <QStringList>

#include <optional>

class QCheckBox;
class QLabel;
class QPushButton;

class frmdica : public QDialog {
    Q_OBJECT
public:
    explicit frmdica(QWidget* parent = nullptr);
    ~frmdica() override;

    // Loads and shows the window. Opened at start (ao_iniciar), a setting that reads as the number
    // 0 unloads it before it is seen. A window already loaded is only raised. Returns the window,
    // or nullptr when it unloaded.
    static frmdica* mostrar(bool ao_iniciar, QWidget* parent = nullptr);
    // mnumostrardicadia: the setting holds "1" for as long as the window is open, and the value
    // it had before comes back when the window closes.
    static frmdica* mostrar_por_pedido(QWidget* parent = nullptr);
    // The loaded window, if any.
    static frmdica* aberto();

    // The opening; false when the window unloaded.
    bool abrir(bool ao_iniciar);
    bool LoadTips(const QString& arquivo);
    void DisplayCurrentTip();
    // A tip at random, shown: the same one may come twice in a row.
    void escolher_dica();

    void cmdNextTip_click();
    void cmdok_click();
    void chkdicadia_click();

    QLabel* lbltitulo;
    QLabel* lblTipText;
    QCheckBox* chkdicadia;
    QPushButton* cmdNextTip;
    QPushButton* cmdok;

    QStringList dicas;
    int CurrentTip = 0; // 1-based, as the collection counted

    void done(int r) override;

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    void restaurar();

    QPixmap fundo_;
    std::optional<QString> restaurar_; // the value to write back at closing (opened on request)
    static QPointer<frmdica> aberto_;
};
