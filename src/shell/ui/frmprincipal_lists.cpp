// The three ledger lists of the main window: their columns, filter boxes, loads and layout.
#include "platform/clock.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/list_view.h"
#include "shell/column_layout.h"
#include "shell/filter_state.h"
#include "shell/ledger_load.h"
#include "shell/ledger_statement.h"
#include "shell/ui/frmprincipal.h"
#include "store/conexao.h"

#include <QComboBox>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>
#include <optional>

using shell::ledger;

namespace {

constexpr ledger all_ledgers[] = {ledger::pagar, ledger::receber, ledger::bancario};

void definir_colunas(list_view* l, ledger which) {
    l->clear_columns();
    for (const auto& c : shell::ledger_columns(which))
        l->add_column(c.heading, shell::read_single(c.default_width).value_or(0), c.tag, c.align);
}

// A box keeps its text while its entries are refilled.
void preencher(QComboBox* box, const QStringList& entradas) {
    const QString texto = box->currentText();
    box->clear();
    box->addItems(entradas);
    box->setCurrentText(texto);
}

} // namespace

list_view* frmprincipal::lista(ledger which) const {
    switch (which) {
    case ledger::pagar:
        return lstpagar;
    case ledger::receber:
        return lstreceber;
    default:
        return lstmovimento;
    }
}

shell::entry_filters frmprincipal::filtros(ledger which) const {
    if (which == ledger::pagar)
        return {cbotipop->currentText(),  cbofiltrop->currentText(),     cbobaseadoP->currentText(),
                cbobancop->currentText(), cbocentrocusto->currentText(), cbofornecedor->currentText()};
    return {cbotipor->currentText(),  cbofiltror->currentText(),     cbobaseadoR->currentText(),
            cbobancor->currentText(), cbocentrolucro->currentText(), cbocliente->currentText()};
}

void frmprincipal::ligar_filtros() {
    for (ledger which : all_ledgers) {
        list_view* l = lista(which);
        definir_colunas(l, which);
        connect(l, &list_view::header_clicked, this, [this, which](int) { cabecalho_clicado(which); });
    }
    const struct {
        QComboBox* box;
        ledger which;
    } boxes[] = {
        {cbotipop, ledger::pagar},    {cbofiltrop, ledger::pagar},       {cbobaseadoP, ledger::pagar},
        {cbobancop, ledger::pagar},   {cbocentrocusto, ledger::pagar},   {cbofornecedor, ledger::pagar},
        {cbotipor, ledger::receber},  {cbofiltror, ledger::receber},     {cbobaseadoR, ledger::receber},
        {cbobancor, ledger::receber}, {cbocentrolucro, ledger::receber}, {cbocliente, ledger::receber},
        {cbotipom, ledger::bancario}, {cbofiltrom, ledger::bancario},    {cboorgm, ledger::bancario}};
    for (const auto& b : boxes) {
        discard_keys(b.box);
        const ledger which = b.which;
        connect(b.box, &QComboBox::activated, this, [this, which](int) {
            if (which == ledger::pagar) {
                carregarpagar();
                salvartudopagar();
            } else if (which == ledger::receber) {
                carregarreceber();
                salvartudoreceber();
            } else {
                carregarbancario();
                salvartudobancario();
            }
        });
    }
    for (QRadioButton* o : {optascm, optdescm})
        connect(o, &QRadioButton::clicked, this, [this]() {
            carregarbancario();
            salvartudobancario();
        });
}

void frmprincipal::carregar_entradas(ledger which) {
    list_view* l = lista(which);
    QLabel* rotulo = which == ledger::pagar     ? lblpagarest
                     : which == ledger::receber ? lblreceberest
                                                : lblmovimentoest;
    shell::built_statement b;
    if (which == ledger::bancario) {
        shell::movement_filters f{cbotipom->currentText(), cbofiltrom->currentText(), cboorgm->currentText(),
                                  optascm->isChecked()};
        b = shell::movement_statement(f, platform::today(), sqlatual);
    } else {
        b = shell::entry_statement(which, filtros(which), platform::today(), sqlatual);
    }
    sqlatual = b.sqlatual;
    l->clear_rows();
    std::optional<waiting_window> espera;
    shell::ledger_view v = shell::load_ledger(which, b.consulta, [&]() {
        espera.emplace(this, shell::waiting_title(which), shell::waiting_text());
    });
    l->add_rows(std::move(v.rows));
    espera.reset();
    rotulo->setText(v.label);
}

void frmprincipal::carregarpagar() {
    carregar_entradas(ledger::pagar);
}
void frmprincipal::carregarreceber() {
    carregar_entradas(ledger::receber);
}
void frmprincipal::carregarbancario() {
    carregar_entradas(ledger::bancario);
}
void frmprincipal::carregar(ledger which) {
    carregar_entradas(which);
}
void frmprincipal::carregar_filtros(ledger which) {
    if (which != ledger::bancario) dados_entradas(which);
}
void frmprincipal::mostrar_aba(ledger which) {
    xtab->setCurrentIndex(static_cast<int>(which));
}

void frmprincipal::dados_entradas(ledger which) {
    const auto boxes = shell::load_boxes(which);
    QComboBox* alvo[3] = {which == ledger::pagar ? cbocentrocusto : cbocentrolucro,
                          which == ledger::pagar ? cbofornecedor : cbocliente,
                          which == ledger::pagar ? cbobancop : cbobancor};
    for (int i = 0; i < 3; ++i)
        preencher(alvo[i], boxes[std::size_t(i)]);
}

void frmprincipal::dadospagar() {
    dados_entradas(ledger::pagar);
}
void frmprincipal::dadosreceber() {
    dados_entradas(ledger::receber);
}

void frmprincipal::CarregarDados() {
    const shell::entry_filters p = shell::read_entry_filters(ledger::pagar);
    cbotipop->setCurrentText(p.tipo);
    cbofiltrop->setCurrentText(p.filtro);
    cbobaseadoP->setCurrentText(p.baseado);
    cbobancop->setCurrentText(p.banco);
    cbocentrocusto->setCurrentText(p.centro);
    cbofornecedor->setCurrentText(p.contato);
    const shell::entry_filters r = shell::read_entry_filters(ledger::receber);
    cbotipor->setCurrentText(r.tipo);
    cbofiltror->setCurrentText(r.filtro);
    cbobaseadoR->setCurrentText(r.baseado);
    cbobancor->setCurrentText(r.banco);
    cbocentrolucro->setCurrentText(r.centro);
    cbocliente->setCurrentText(r.contato);
    const shell::movement_filters m = shell::read_movement_filters();
    cbotipom->setCurrentText(m.tipo);
    cbofiltrom->setCurrentText(m.filtro);
    cboorgm->setCurrentText(m.organizar);
    (m.ascendente ? optascm : optdescm)->setChecked(true);
}

void frmprincipal::salvartudopagar() {
    shell::save_entry_filters(ledger::pagar, filtros(ledger::pagar));
}
void frmprincipal::salvartudoreceber() {
    shell::save_entry_filters(ledger::receber, filtros(ledger::receber));
}
void frmprincipal::salvartudobancario() {
    shell::save_movement_filters(
        {cbotipom->currentText(), cbofiltrom->currentText(), cboorgm->currentText(), optascm->isChecked()});
}

void frmprincipal::CarregarColuna() {
    for (ledger which : all_ledgers) {
        list_view* l = lista(which);
        const shell::column_layout c = shell::read_layout(which);
        for (std::size_t i = 0; i < c.widths.size(); ++i)
            l->set_column_width(int(i), c.widths[i]);
        // placed from the first position on, so a later move never shifts a column already placed
        std::vector<std::pair<int, int>> por_posicao;
        for (std::size_t i = 0; i < c.positions.size(); ++i)
            por_posicao.emplace_back(c.positions[i], int(i));
        std::stable_sort(por_posicao.begin(), por_posicao.end());
        for (const auto& [posicao, coluna] : por_posicao)
            l->set_column_position(coluna, posicao);
    }
}

void frmprincipal::SalvarColuna() {
    for (ledger which : all_ledgers) {
        list_view* l = lista(which);
        shell::column_layout c;
        for (int i = 0; i < l->column_count(); ++i) {
            c.widths.push_back(l->column_width(i));
            c.positions.push_back(l->column_position(i));
        }
        shell::write_layout(which, c);
    }
}

void frmprincipal::cabecalho_clicado(ledger which) {
    if (which == ledger::bancario) return;
    list_view* l = lista(which);
    const auto ordem = shell::header_order(which, l->arrow_column(), l->arrow_ascending());
    if (!ordem) return;
    (which == ledger::pagar ? ordempagar : ordemreceber) = *ordem;
    shell::save_header_order(which, *ordem);
}
