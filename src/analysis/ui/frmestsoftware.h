#pragma once
// "Estatísticas do software": the program's name, version and folder, and the data file's place,
// size, last backup and maintenance, and whether it is used over the network.

#include <QWidget>

class QLabel;
class QLineEdit;
class QTabWidget;

class frmestsoftware : public QWidget {
    Q_OBJECT
public:
    static frmestsoftware* instance();
    static frmestsoftware* aberto();
    // Reads everything again (the opening).
    void carregar();

    QTabWidget* XTab;
    QLabel* lblnomesoft;
    QLabel* lblversao;
    QLabel* lbllocalinst;
    QLineEdit* txtbd;
    QLabel* lbllocal;
    QLabel* lblbdtamanho;
    QLabel* lblultimobk;
    QLabel* lblultimamanu;
    QLabel* lblrede;

private:
    frmestsoftware();
};
