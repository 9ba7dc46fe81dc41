// The three ledger lists of the main window: their columns, filter boxes, loads and layout.
#include "platform/clock.h"
#include "platform/widgets/combo_text.h"
#include "platform/widgets/field_helpers.h"
#include "platform/widgets/frmcarregando.h"
#include "platform/widgets/list_view.h"
#include "shell/column_layout.h"
#include "shell/filter_state.h"
#include "shell/ledger_load.h"
#include "shell/ledger_statement.h"
#include "shell/ui/frmprincipal.h"
#include "shell/ui/ledger_list.h"

#include <QComboBox>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>
#include <optional>

using shell::ledger;

namespace {

// A box keeps its text while its entries are refilled.
void preencher(QComboBox* box, const QStringList& entradas) {
    const QString texto = box->currentText();
    box->clear();
    box->addItems(entradas);
    set_box_text(box, texto);
}

} // namespace

const frmprincipal::controles& frmprincipal::controles_de(ledger which) {
    using f = frmprincipal;
    static const controles pagar{
        {&f::lstpagar, "lstpagar"},
        {&f::lblpagarest, "lblpagarest"},
        &f::ordempagar,
        {&f::pictoppagar, "pictoppagar"},
        {&f::pictoppagar2, "pictoppagar2"},
        {&f::cbotipop, "cbotipop"},
        {&f::cbofiltrop, "cbofiltrop"},
        {&f::cbobaseadoP, "cbobaseadoP"},
        {&f::cbobancop, "cbobancop"},
        {&f::cbocentrocusto, "cbocentrocusto"},
        {&f::cbofornecedor, "cbofornecedor"},
        {{{&f::cmdadicionard, "cmdadicionard", "Adicionar"},
          {&f::cmdmultiplosp, "cmdmultiplosp", "Parcelas"},
          {&f::cmdalterard, "cmdalterard", "Alterar"},
          {&f::cmdremoverd, "cmdremoverd", "Remover"},
          {&f::cmdrecibod, "cmdrecibod", "Recibo"},
          {&f::cmdprojecaop, "cmdprojecaop", "Projeções"},
          {&f::cmdhistoricoforn, "cmdhistoricoforn", "Histórico"},
          {&f::cmdmesp, "cmdmesp", "Por mês"}}},
    };
    static const controles receber{
        {&f::lstreceber, "lstreceber"},
        {&f::lblreceberest, "lblreceberest"},
        &f::ordemreceber,
        {&f::pictopreceber, "pictopreceber"},
        {&f::pictoprec2, "pictoprec2"},
        {&f::cbotipor, "cbotipor"},
        {&f::cbofiltror, "cbofiltror"},
        {&f::cbobaseadoR, "cbobaseadoR"},
        {&f::cbobancor, "cbobancor"},
        {&f::cbocentrolucro, "cbocentrolucro"},
        {&f::cbocliente, "cbocliente"},
        {{{&f::cmdadicionarr, "cmdadicionarr", "Adicionar"},
          {&f::cmdmultiplosr, "cmdmultiplosr", "Parcelas"},
          {&f::cmdalterarr, "cmdalterarr", "Alterar"},
          {&f::cmdremoverr, "cmdremoverr", "Remover"},
          {&f::cmdrecibor, "cmdrecibor", "Recibo"},
          {&f::cmdprojecoesr, "cmdprojecoesr", "Projeções"},
          {&f::cmdhistoricocli, "cmdhistoricocli", "Histórico"},
          {&f::cmdmesr, "cmdmesr", "Por mês"}}},
    };
    static const controles bancario = [] {
        controles c{};
        c.lista = {&f::lstmovimento, "lstmovimento"};
        c.rotulo = {&f::lblmovimentoest, "lblmovimentoest"};
        return c;
    }();
    return which == ledger::pagar ? pagar : which == ledger::receber ? receber : bancario;
}

list_view* frmprincipal::lista(ledger which) const {
    return this->*controles_de(which).lista.member;
}

QLabel* frmprincipal::rotulo(ledger which) const {
    return this->*controles_de(which).rotulo.member;
}

shell::entry_filters frmprincipal::filtros(ledger which) const {
    const controles& c = controles_de(which);
    const auto texto = [this](const control<QComboBox>& b) { return (this->*b.member)->currentText(); };
    return {texto(c.tipo),  texto(c.filtro), texto(c.baseado),
            texto(c.banco), texto(c.centro), texto(c.contato)};
}

shell::movement_filters frmprincipal::filtros_movimento() const {
    return {cbotipom->currentText(), cbofiltrom->currentText(), cboorgm->currentText(), optascm->isChecked()};
}

void frmprincipal::ligar_filtros() {
    for (ledger which : shell::all_ledgers) {
        list_view* l = lista(which);
        shell::definir_colunas(l, which);
        connect(l, &list_view::header_clicked, this, [this, which](int) { cabecalho_clicado(which); });
        // a box's choice reloads its list and keeps the boxes' texts
        const auto ligar = [this, which](QComboBox* box) {
            discard_keys(box);
            connect(box, &QComboBox::activated, this, [this, which](int) {
                carregar(which);
                salvar_filtros(which);
            });
        };
        if (which == ledger::bancario) {
            for (QComboBox* box : {cbotipom, cbofiltrom, cboorgm})
                ligar(box);
            continue;
        }
        const controles& c = controles_de(which);
        for (const auto* b : {&c.tipo, &c.filtro, &c.baseado, &c.banco, &c.centro, &c.contato})
            ligar(this->*b->member);
    }
    for (QRadioButton* o : {optascm, optdescm})
        connect(o, &QRadioButton::clicked, this, [this]() {
            carregarbancario();
            salvartudobancario();
        });
}

void frmprincipal::carregar(ledger which) {
    list_view* l = lista(which);
    const shell::built_statement b =
        which == ledger::bancario
            ? shell::movement_statement(filtros_movimento(), platform::today(), sqlatual)
            : shell::entry_statement(which, filtros(which), platform::today(), sqlatual);
    sqlatual = b.sqlatual;
    l->clear_rows();
    std::optional<waiting_window> espera;
    shell::ledger_view v = shell::load_ledger(which, b.consulta, [&]() {
        espera.emplace(this, shell::traits(which).carregando, shell::waiting_text());
    });
    l->add_rows(std::move(v.rows));
    espera.reset();
    rotulo(which)->setText(v.label);
}

void frmprincipal::carregarpagar() {
    carregar(ledger::pagar);
}
void frmprincipal::carregarreceber() {
    carregar(ledger::receber);
}
void frmprincipal::carregarbancario() {
    carregar(ledger::bancario);
}
void frmprincipal::mostrar_aba(ledger which) {
    xtab->setCurrentIndex(shell::traits(which).aba);
}

void frmprincipal::carregar_filtros(ledger which) {
    if (which == ledger::bancario) return;
    const controles& c = controles_de(which);
    const auto boxes = shell::load_boxes(which);
    preencher(this->*c.centro.member, boxes[0]);
    preencher(this->*c.contato.member, boxes[1]);
    preencher(this->*c.banco.member, boxes[2]);
}

void frmprincipal::dadospagar() {
    carregar_filtros(ledger::pagar);
}
void frmprincipal::dadosreceber() {
    carregar_filtros(ledger::receber);
}

void frmprincipal::CarregarDados() {
    for (ledger which : {ledger::pagar, ledger::receber}) {
        const controles& c = controles_de(which);
        const shell::entry_filters f = shell::read_entry_filters(which);
        set_box_text(this->*c.tipo.member, f.tipo);
        set_box_text(this->*c.filtro.member, f.filtro);
        set_box_text(this->*c.baseado.member, f.baseado);
        set_box_text(this->*c.banco.member, f.banco);
        set_box_text(this->*c.centro.member, f.centro);
        set_box_text(this->*c.contato.member, f.contato);
    }
    const shell::movement_filters m = shell::read_movement_filters();
    set_box_text(cbotipom, m.tipo);
    set_box_text(cbofiltrom, m.filtro);
    set_box_text(cboorgm, m.organizar);
    (m.ascendente ? optascm : optdescm)->setChecked(true);
}

void frmprincipal::salvar_filtros(ledger which) {
    if (which == ledger::bancario)
        shell::save_movement_filters(filtros_movimento());
    else
        shell::save_entry_filters(which, filtros(which));
}

void frmprincipal::salvartudopagar() {
    salvar_filtros(ledger::pagar);
}
void frmprincipal::salvartudoreceber() {
    salvar_filtros(ledger::receber);
}
void frmprincipal::salvartudobancario() {
    salvar_filtros(ledger::bancario);
}

void frmprincipal::CarregarColuna() {
    for (ledger which : shell::all_ledgers) {
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
    for (ledger which : shell::all_ledgers) {
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
    this->*controles_de(which).ordem = *ordem;
    shell::save_header_order(which, *ordem);
}
