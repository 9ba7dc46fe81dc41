#include "banks/ui/report_dialogs.h"

#include "output/c_relatorios.h"
#include "output/report_frame.h"
#include "platform/errors.h"
#include "platform/prompts.h"
#include "platform/widgets/date_field.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"

#include <QFile>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace banks {

void montar_dialogo_de_datas(QWidget* janela, const char* nome, const QString& titulo,
                             std::initializer_list<campo_de_data> campos, QPushButton* visualizar) {
    janela->setObjectName(QString::fromLatin1(nome));
    janela->setWindowTitle(titulo);
    janela->setAttribute(Qt::WA_DeleteOnClose);
    auto* form = new QFormLayout;
    for (const campo_de_data& c : campos) {
        c.campo->setObjectName(QString::fromLatin1(c.nome));
        form->addRow(c.rotulo, c.campo);
    }
    visualizar->setObjectName(QStringLiteral("cmdvisualizar"));
    visualizar->setText(QStringLiteral("&Visualizar"));
    visualizar->setDefault(true);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch(1);
    botoes->addWidget(visualizar);
    auto* v = new QVBoxLayout(janela);
    v->addLayout(form);
    v->addLayout(botoes);
    install_field_conduct_all(janela);
}

void mostrar_dialogo(QWidget* janela) {
    show_form(janela);
}

void salvar_arquivo(const QString& titulo, const QString& filtro, output::progress* barra,
                    const std::function<void(QIODevice&)>& escrever) {
    QString arquivo;
    try {
        arquivo = platform::ask().save_file(titulo, filtro, QString());
    } catch (...) {
        return;
    }
    if (arquivo.isEmpty()) return;
    if (barra) barra->set_visible(true);
    platform::ignore_errors([&] {
        // an unwritable file leaves nothing written, and the question comes all the same
        QFile file(arquivo);
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) escrever(file);
    });
    if (barra) barra->set_visible(false);
    platform::ignore_errors([&] { output::perguntar_visualizar(arquivo); });
}

} // namespace banks
