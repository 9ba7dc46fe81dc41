#include "shell/filter_state.h"

#include "store/config.h"
#include "support/fixture.h"
#include "support/golden.h"

#include <QFile>

using namespace Qt::StringLiterals;
using shell::ledger;

namespace {

class filter_state : public support::fixture {};

TEST_F(filter_state, nothing_saved_gives_the_defaults_the_boxes_offer) {
    EXPECT_EQ(shell::read_entry_filters(ledger::pagar), shell::default_entry_filters(ledger::pagar));
    EXPECT_EQ(shell::read_entry_filters(ledger::receber),
              (shell::entry_filters{u"Pendentes e Concluídos"_s, u"Todos os dados"_s, u"Data Cadastro"_s,
                                    u"Todos os bancos"_s, u"Todos os centros de lucros"_s,
                                    u"Todos os clientes"_s}));
    EXPECT_EQ(
        shell::read_movement_filters(),
        (shell::movement_filters{u"Todos os dados"_s, u"Todos os dados"_s, u"Data de cadastro"_s, true}));
    EXPECT_TRUE(shell::tipo_entries().contains(shell::default_entry_filters(ledger::pagar).tipo));
    EXPECT_TRUE(shell::filtro_entries().contains(shell::default_entry_filters(ledger::pagar).filtro));
    EXPECT_TRUE(shell::organizar_entries().contains(shell::default_movement_filters().organizar));
}

// salvartudopagar, salvartudoreceber, salvartudobancario and a header click write their keys in
// their order, as tests/data/shell/filter_settings.ini holds them; each twin reads its own back.
TEST_F(filter_state, the_boxes_are_saved_in_order_and_read_back) {
    const shell::entry_filters p{u"Pendentes"_s, u"Mês anterior"_s, u"Vencimento"_s,
                                 u"Itaú"_s,      u"Aluguel"_s,      u"Imobiliária Central"_s};
    const shell::entry_filters r{u"Concluídos"_s, u"Apenas deste ano"_s, u"Data Cadastro"_s,
                                 u"Caixa"_s,      u"Vendas"_s,           u"Maria Souza"_s};
    const shell::movement_filters m{u"Retiradas"_s, u"Apenas deste mês"_s, u"Valor"_s, false};
    shell::save_entry_filters(ledger::pagar, p);
    EXPECT_EQ(shell::read_entry_filters(ledger::receber), shell::default_entry_filters(ledger::receber));
    shell::save_entry_filters(ledger::receber, r);
    shell::save_movement_filters(m);
    shell::save_header_order(ledger::receber, u" order by cliente desc"_s);
    QFile f(settings_file());
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_TRUE(support::matches_golden(u"shell/filter_settings.ini"_s, f.readAll()));
    EXPECT_EQ(shell::read_entry_filters(ledger::pagar), p);
    EXPECT_EQ(shell::read_entry_filters(ledger::receber), r);
    EXPECT_EQ(shell::read_movement_filters(), m);

    shell::save_movement_filters({m.tipo, m.filtro, m.organizar, true});
    EXPECT_EQ(store::setting(store::secao_config, u"OrdemM"_s, {}), u"True"_s);
    // OrdemM compares in lower case with "true"; anything else is descending
    store::save_setting(store::secao_config, u"OrdemM"_s, u"TRUE"_s);
    EXPECT_TRUE(shell::read_movement_filters().ascendente);
    store::save_setting(store::secao_config, u"OrdemM"_s, u"1"_s);
    EXPECT_FALSE(shell::read_movement_filters().ascendente);
}

} // namespace
