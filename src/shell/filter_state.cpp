#include "shell/filter_state.h"

#include "store/config.h"

namespace shell {

using namespace Qt::StringLiterals;

namespace {

const QString key_filtro_m = u"FiltroM"_s;
const QString key_ordem_m = u"OrdemM"_s;
const QString key_organizar_m = u"OrganizarM"_s;
const QString key_mostrar_m = u"MostrarM"_s;

QString get(const QString& key, const QString& padrao) {
    return store::setting(store::secao_config, key, padrao);
}

void put(const QString& key, const QString& value) {
    store::save_setting(store::secao_config, key, value);
}

} // namespace

QStringList tipo_entries() {
    return {u"Pendentes e Concluídos"_s, u"Pendentes"_s, u"Concluídos"_s};
}

QStringList filtro_entries() {
    return {u"Todos os dados"_s, u"Apenas deste ano"_s, u"Apenas deste mês"_s, u"Apenas do dia"_s,
            u"Ultimos 7 dias"_s, u"Ultimos 15 dias"_s,  u"Próximos 7 dias"_s,  u"Próximos 15 dias"_s,
            u"Mês anterior"_s,   u"Próximo mês"_s};
}

QStringList baseado_entries() {
    return {u"Data Cadastro"_s, u"Vencimento"_s};
}

QStringList tipo_movimento_entries() {
    return {u"Todos os dados"_s, u"Retiradas"_s, u"Depósitos"_s, u"Transferências"_s};
}

QStringList filtro_movimento_entries() {
    return {u"Todos os dados"_s, u"Apenas deste ano"_s, u"Apenas deste mês"_s,
            u"Apenas do dia"_s,  u"Ultimos 7 dias"_s,   u"Ultimos 15 dias"_s};
}

QStringList organizar_entries() {
    return {u"Data de cadastro"_s, u"Tipo de movimento"_s, u"Valor"_s,
            u"Estatus"_s,          u"Conta origem"_s,      u"Conta destino"_s};
}

entry_filters default_entry_filters(ledger which) {
    const ledger_traits& t = traits(which);
    return {u"Pendentes e Concluídos"_s,
            u"Todos os dados"_s,
            u"Data Cadastro"_s,
            todos_bancos,
            t.todos_centros,
            t.todos_contatos};
}

movement_filters default_movement_filters() {
    return {u"Todos os dados"_s, u"Todos os dados"_s, u"Data de cadastro"_s, true};
}

entry_filters read_entry_filters(ledger which) {
    const filter_keys& k = traits(which).chaves;
    const entry_filters d = default_entry_filters(which);
    entry_filters f;
    f.tipo = get(k.mostrar, d.tipo);
    f.filtro = get(k.filtro, d.filtro);
    f.baseado = get(k.baseado, d.baseado);
    f.banco = get(k.origem, d.banco);
    f.centro = get(k.centro, d.centro);
    f.contato = get(k.contato, d.contato);
    return f;
}

movement_filters read_movement_filters() {
    const movement_filters d = default_movement_filters();
    movement_filters f;
    f.tipo = get(key_mostrar_m, d.tipo);
    f.filtro = get(key_filtro_m, d.filtro);
    f.organizar = get(key_organizar_m, d.organizar);
    f.ascendente = get(key_ordem_m, u"true"_s).toLower() == u"true"_s;
    return f;
}

void save_entry_filters(ledger which, const entry_filters& f) {
    const filter_keys& k = traits(which).chaves;
    put(k.origem, f.banco);
    put(k.mostrar, f.tipo);
    put(k.centro, f.centro);
    put(k.contato, f.contato);
    put(k.filtro, f.filtro);
    put(k.baseado, f.baseado);
}

void save_movement_filters(const movement_filters& f) {
    put(key_filtro_m, f.filtro);
    put(key_ordem_m, f.ascendente ? u"True"_s : u"False"_s);
    put(key_organizar_m, f.organizar);
    put(key_mostrar_m, f.tipo);
}

void save_header_order(ledger which, const QString& ordem) {
    put(traits(which).chaves.ordem, ordem);
}

} // namespace shell
