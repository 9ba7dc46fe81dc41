#include "registers/ui/order_item_form.h"

#include "platform/prompts.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/form_builders.h"
#include "platform/widgets/money_field.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace registers {

void montar_item_ordem(QWidget* janela, std::initializer_list<std::pair<const char*, QWidget*>> linhas,
                       QPushButton* adicionar, QPushButton* cancelar) {
    auto* g = new QGridLayout;
    int row = 0;
    for (const auto& [rotulo, campo] : linhas) {
        g->addWidget(new QLabel(QString::fromUtf8(rotulo)), row, 0);
        g->addWidget(campo, row++, 1);
    }
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(adicionar);
    botoes->addWidget(cancelar);
    auto* v = new QVBoxLayout(janela);
    v->addLayout(g);
    v->addLayout(botoes);
    install_field_conduct_all(janela);
    auto* a = new atalhos(janela);
    a->add(QLatin1Char('A'), [adicionar] { adicionar->click(); }).add(QLatin1Char('C'), [cancelar] {
        cancelar->click();
    });
}

money_field* campo_valor_ordem() {
    auto* f = named(new money_field, "txtvalor");
    f->set_leaving_prefix(QStringLiteral("R$ "), false);
    return f;
}

void falta_campo(QWidget* janela, const QString& texto) {
    platform::msgbox(texto, platform::exclamation, QStringLiteral("Erro"));
    janela->activateWindow();
}

} // namespace registers
