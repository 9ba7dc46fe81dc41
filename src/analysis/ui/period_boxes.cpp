#include "analysis/ui/period_boxes.h"

#include "analysis/period.h"
#include "platform/text/vb_text.h"
#include "platform/widgets/form_builders.h"

#include <QComboBox>

namespace analysis {

QComboBox* caixa_meses(const char* nome, bool julho_minusculo) {
    QComboBox* c = chosen_box(nome);
    c->addItems(nomes_meses(julho_minusculo));
    return c;
}

QComboBox* caixa_anos(const char* nome, int primeiro, int ultimo) {
    QComboBox* c = chosen_box(nome);
    c->addItems(anos(primeiro, ultimo));
    return c;
}

void mostrar_mes(QComboBox* mes, const QDate& d) {
    mes->setEditText(vb::format_date(d, QStringLiteral("mmmm")));
}

void mostrar_ano(QComboBox* ano, const QDate& d) {
    ano->setEditText(texto_ano(d));
}

QDate data_das_caixas(const QComboBox* mes, const QComboBox* ano) {
    return data_do_mes(mes->currentText(), ano->currentText());
}

} // namespace analysis
