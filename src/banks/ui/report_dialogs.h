#pragma once
// What the account report windows share: the small date dialogs (labelled date fields over a
// "Visualizar" button, unloaded when closed) and the save action of their exports.

#include <QString>

#include <functional>
#include <initializer_list>

class QIODevice;
namespace output {
class progress;
}

class QPushButton;
class QWidget;
class date_field;

namespace banks {

struct campo_de_data {
    QString rotulo;
    date_field* campo;
    const char* nome;
};

void montar_dialogo_de_datas(QWidget* janela, const char* nome, const QString& titulo,
                             std::initializer_list<campo_de_data> campos, QPushButton* visualizar);

// In front of the others, placed over the window the user was in the first time.
void mostrar_dialogo(QWidget* janela);

// Dialog, file, the "Visualizar" question; each step on its own, a failure skipping that step.
void salvar_arquivo(const QString& titulo, const QString& filtro, output::progress* barra,
                    const std::function<void(QIODevice&)>& escrever);

} // namespace banks
