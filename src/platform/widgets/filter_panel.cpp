#include "platform/widgets/filter_panel.h"

#include "platform/widgets/form_builders.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPointer>

void ligar_criterio(QCheckBox* caixa, std::vector<QWidget*> companheiros) {
    std::vector<QPointer<QWidget>> alvos(companheiros.begin(), companheiros.end());
    const auto aplicar = [alvos](bool marcado) {
        for (const auto& w : alvos)
            if (w) w->setEnabled(marcado);
    };
    aplicar(caixa->isChecked());
    QObject::connect(caixa, &QCheckBox::toggled, caixa, aplicar);
}

QCheckBox* caixa_criterio(const char* nome, const QString& texto) {
    return named(new QCheckBox(texto), nome);
}

QString texto_criterio(const QCheckBox* caixa, const QComboBox* valor) {
    return caixa->isChecked() && valor ? valor->currentText() : QString();
}
