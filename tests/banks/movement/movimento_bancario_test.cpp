#include "banks/movimento_bancario.h"
#include "platform/text/vb_text.h"

#include <gtest/gtest.h>

namespace {

using banks::movement_fields;

QStringList written(const movement_fields& f) {
    QStringList out;
    for (const auto& [column, text] : banks::movement_columns(f))
        out << column + QLatin1Char('=') + text;
    return out;
}

TEST(movement_columns, seven_columns_in_order_for_each_kind_of_movement) {
    const struct {
        const char* movimento;
        const char* destino_written;
    } cases[] = {
        {"Depósito", " - "},
        {"Retirada", " - "},
        {"Transferência entre contas", "Caixa"},
        // only the exact word is a transfer when writing
        {"transferência entre contas", " - "},
    };
    for (const auto& c : cases) {
        movement_fields f{
            QString::fromUtf8(c.movimento), "Itaú", "Caixa", "23/11/2026", "1234,5", "  nota  ", "Concluído"};
        EXPECT_EQ(written(f), (QStringList{"estatus=Concluído", "origem=Itaú",
                                           "destino=" + QString::fromUtf8(c.destino_written),
                                           "data=2026/11/23", "movimento=" + QString::fromUtf8(c.movimento),
                                           "informacoes=nota ", "Valor=1.234,50"}))
            << c.movimento;
    }
}

TEST(movement_columns, empty_fields_and_the_marks_for_no_account) {
    movement_fields f{"Retirada", "", "", "2026/01/05", "R$ 1.000,00", "", "Pendente"};
    EXPECT_EQ(written(f), (QStringList{"estatus=Pendente", "origem=-", "destino= - ", "data=2026/01/05",
                                       "movimento=Retirada", "informacoes= ", "Valor=1.000,00"}));
    // a transfer without a target keeps the empty target: nothing checks it
    f.movimento = "Transferência entre contas";
    EXPECT_EQ(banks::movement_columns(f)[2].second, QString());
    // blanks only are trimmed; a tab is kept as the old trim kept it
    EXPECT_EQ(banks::trim_blanks(" \ta "), QStringLiteral("\ta"));
}

TEST(movement_columns, an_amount_or_a_date_that_cannot_be_read_is_not_written) {
    movement_fields f{"Depósito", "Itaú", "", "23/11/2026", "12,,5", "", "Pendente"};
    EXPECT_THROW(banks::movement_columns(f), vb::type_mismatch);
    f.valor = "1.000.000.000.000.000,00";
    EXPECT_THROW(banks::movement_columns(f), vb::overflow_error);
    f.valor = "10";
    f.data = "31/02/2026";
    EXPECT_THROW(banks::movement_columns(f), vb::type_mismatch);
}

TEST(movement_checks, the_target_box_follows_the_choice_in_any_case) {
    EXPECT_TRUE(banks::shows_destino("Transferência entre contas"));
    EXPECT_TRUE(banks::shows_destino("TRANSFERÊNCIA ENTRE CONTAS"));
    EXPECT_FALSE(banks::shows_destino("Depósito"));
    EXPECT_FALSE(banks::shows_destino("Transferência"));
}

} // namespace
