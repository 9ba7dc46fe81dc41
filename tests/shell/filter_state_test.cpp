#include "shell/filter_state.h"

#include "store/config.h"
#include "support/fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;
using shell::ledger;

namespace {

class filter_state : public support::fixture {
protected:
    // The lines of the settings file that hold the keys, in file order.
    QStringList keys_in_file(const QStringList& wanted) {
        QFile f(settings_file());
        if (!f.open(QIODevice::ReadOnly)) return {};
        QStringList out;
        for (const QString& line : QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'))) {
            const QString key = line.section(QLatin1Char('='), 0, 0);
            if (wanted.contains(key)) out << line;
        }
        return out;
    }
};

} // namespace

TEST_F(filter_state, nothing_saved_gives_the_defaults) {
    EXPECT_EQ(shell::read_entry_filters(ledger::pagar),
              (shell::entry_filters{u"Pendentes e Concluídos"_s, u"Todos os dados"_s, u"Data Cadastro"_s,
                                    u"Todos os bancos"_s, u"Todos os centros de custos"_s,
                                    u"Todos os fornecedores"_s}));
    EXPECT_EQ(shell::read_entry_filters(ledger::receber),
              (shell::entry_filters{u"Pendentes e Concluídos"_s, u"Todos os dados"_s, u"Data Cadastro"_s,
                                    u"Todos os bancos"_s, u"Todos os centros de lucros"_s,
                                    u"Todos os clientes"_s}));
    EXPECT_EQ(
        shell::read_movement_filters(),
        (shell::movement_filters{u"Todos os dados"_s, u"Todos os dados"_s, u"Data de cadastro"_s, true}));
    // the defaults are entries the boxes offer
    EXPECT_TRUE(shell::tipo_entries().contains(shell::default_entry_filters(ledger::pagar).tipo));
    EXPECT_TRUE(shell::filtro_entries().contains(shell::default_entry_filters(ledger::pagar).filtro));
    EXPECT_TRUE(shell::organizar_entries().contains(shell::default_movement_filters().organizar));
}

TEST_F(filter_state, salvartudopagar_writes_in_order_and_reads_back) {
    const shell::entry_filters f{u"Pendentes"_s, u"Mês anterior"_s, u"Vencimento"_s,
                                 u"Itaú"_s,      u"Aluguel"_s,      u"Imobiliária Central"_s};
    shell::save_entry_filters(ledger::pagar, f);
    EXPECT_EQ(keys_in_file({u"OrigemP"_s, u"MostrarP"_s, u"Centro de Custo"_s, u"Fornecedor"_s, u"FiltroP"_s,
                            u"BaseadoP"_s}),
              (QStringList{u"OrigemP=Itaú"_s, u"MostrarP=Pendentes"_s, u"Centro de Custo=Aluguel"_s,
                           u"Fornecedor=Imobiliária Central"_s, u"FiltroP=Mês anterior"_s,
                           u"BaseadoP=Vencimento"_s}));
    EXPECT_EQ(shell::read_entry_filters(ledger::pagar), f);
    // the twin keeps its own keys
    EXPECT_EQ(shell::read_entry_filters(ledger::receber), shell::default_entry_filters(ledger::receber));

    const shell::entry_filters r{u"Concluídos"_s, u"Apenas deste ano"_s, u"Data Cadastro"_s,
                                 u"Caixa"_s,      u"Vendas"_s,           u"Maria Souza"_s};
    shell::save_entry_filters(ledger::receber, r);
    EXPECT_EQ(
        keys_in_file(
            {u"OrigemR"_s, u"MostrarR"_s, u"Centro de Lucro"_s, u"Cliente"_s, u"FiltroR"_s, u"BaseadoR"_s}),
        (QStringList{u"OrigemR=Caixa"_s, u"MostrarR=Concluídos"_s, u"Centro de Lucro=Vendas"_s,
                     u"Cliente=Maria Souza"_s, u"FiltroR=Apenas deste ano"_s, u"BaseadoR=Data Cadastro"_s}));
    EXPECT_EQ(shell::read_entry_filters(ledger::receber), r);
    EXPECT_EQ(shell::read_entry_filters(ledger::pagar), f);
}

TEST_F(filter_state, salvartudobancario_writes_the_option_as_true_or_false) {
    shell::save_movement_filters({u"Retiradas"_s, u"Apenas deste mês"_s, u"Valor"_s, false});
    EXPECT_EQ(keys_in_file({u"FiltroM"_s, u"OrdemM"_s, u"OrganizarM"_s, u"MostrarM"_s}),
              (QStringList{u"FiltroM=Apenas deste mês"_s, u"OrdemM=False"_s, u"OrganizarM=Valor"_s,
                           u"MostrarM=Retiradas"_s}));
    EXPECT_EQ(shell::read_movement_filters(),
              (shell::movement_filters{u"Retiradas"_s, u"Apenas deste mês"_s, u"Valor"_s, false}));

    shell::save_movement_filters({u"Depósitos"_s, u"Todos os dados"_s, u"Estatus"_s, true});
    EXPECT_EQ(keys_in_file({u"OrdemM"_s}), QStringList{u"OrdemM=True"_s});
    EXPECT_TRUE(shell::read_movement_filters().ascendente);

    // OrdemM compares in lower case with "true"; anything else is descending
    store::save_setting(store::secao_config, u"OrdemM"_s, u"TRUE"_s);
    EXPECT_TRUE(shell::read_movement_filters().ascendente);
    store::save_setting(store::secao_config, u"OrdemM"_s, u"1"_s);
    EXPECT_FALSE(shell::read_movement_filters().ascendente);
}

TEST_F(filter_state, header_order_is_kept_per_twin) {
    shell::save_header_order(ledger::receber, u" order by cliente desc"_s);
    EXPECT_EQ(store::setting(store::secao_config, u"OrdemR"_s, {}), u" order by cliente desc"_s);
    EXPECT_EQ(store::setting(store::secao_config, u"OrdemP"_s, u"-"_s), u"-"_s);
}
