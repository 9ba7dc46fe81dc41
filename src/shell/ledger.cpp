#include "shell/ledger.h"

#include "store/names.h"

namespace shell {

using namespace Qt::StringLiterals;

namespace {

ledger_traits make_pagar() {
    return {
        .which = ledger::pagar,
        .tabela = store::tabela::pagar,
        .contato = store::coluna::fornecedor,
        .todos_centros = u"Todos os centros de custos"_s,
        .todos_contatos = u"Todos os fornecedores"_s,
        .contato_titulo = u"Fornecedor"_s,
        .centro_titulo = u"Centro de custo"_s,
        .cadastros = u" cadastros"_s,
        .total_de = u"Total de despesas"_s,
        .total_baixado = u"Total pago"_s,
        .palavra = u"despesa"_s,
        .chaves = {u"OrigemP"_s, u"MostrarP"_s, u"Centro de Custo"_s, u"Fornecedor"_s, u"FiltroP"_s,
                   u"BaseadoP"_s, u"OrdemP"_s},
        .layout = u"\\pagar.ini"_s,
        .carregando = u"Carregando contas a pagar"_s,
        .aba = 0,
        .lista = u"lstpagar"_s,
        .carregar = u"carregarpagar"_s,
        .alterar = u"alterarpagar"_s,
        .popup = u"poppagar"_s,
    };
}

ledger_traits make_receber() {
    return {
        .which = ledger::receber,
        .tabela = store::tabela::receber,
        .contato = store::coluna::cliente,
        .todos_centros = u"Todos os centros de lucros"_s,
        .todos_contatos = u"Todos os clientes"_s,
        .contato_titulo = u"Cliente"_s,
        .centro_titulo = u"Centro de lucro"_s,
        .cadastros = u" cadastrados"_s,
        .total_de = u"Total de lucros"_s,
        .total_baixado = u"Total recebido"_s,
        .palavra = u"receita"_s,
        .chaves = {u"OrigemR"_s, u"MostrarR"_s, u"Centro de Lucro"_s, u"Cliente"_s, u"FiltroR"_s,
                   u"BaseadoR"_s, u"OrdemR"_s},
        .layout = u"\\receber.ini"_s,
        .carregando = u"Carregando contas a receber"_s,
        .aba = 1,
        .lista = u"lstreceber"_s,
        .carregar = u"carregarreceber"_s,
        .alterar = u"alterarreceber"_s,
        .popup = u"popreceber"_s,
    };
}

ledger_traits make_bancario() {
    ledger_traits t{};
    t.which = ledger::bancario;
    t.tabela = store::tabela::bancario;
    t.palavra = u"movimento"_s;
    t.layout = u"\\bancario.ini"_s;
    t.carregando = u"Carregando movimento bancário"_s;
    t.aba = 2;
    t.lista = u"lstmovimento"_s;
    t.carregar = u"carregarbancario"_s;
    t.alterar = u"alterarmovimento"_s;
    t.popup = u"popmovimento"_s;
    return t;
}

} // namespace

const ledger_traits& traits(ledger which) {
    static const std::array<ledger_traits, 3> all = {make_pagar(), make_receber(), make_bancario()};
    return all[std::size_t(which)];
}

} // namespace shell
