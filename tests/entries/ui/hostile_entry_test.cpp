// What a user may type into the expense window that the file must not take as it stands.
#include "support/key_input.h"
#include "support/window_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class hostile_entry : public support::window_fixture {};

TEST_F(hostile_entry, an_amount_that_cannot_be_formatted_fails_the_save_with_the_window_message) {
    p->adicionarpagar();
    frmadicionar* a = frmadicionar::aberto();
    ASSERT_TRUE(a);
    combo(a, "cbotipo")->setEditText(u"Fulano"_s);
    combo(a, "txtdescricao")->setEditText(u"Diversos"_s);
    date(a, "txtvencimento")->set_text(u"30/11/2026"_s);
    keys::type(edit(a, "txtvalor"), u"1,234.56"_s);
    click(a, "cmdinserir");
    EXPECT_EQ(boxes(), QStringList{u"Erro: Ocorreu o seguinte erro ao tentar cadastrar os dados: Tipo "
                                   u"incompatível: '1,234.56' não é um valor válido para o campo Valor."_s});
    EXPECT_TRUE(a->isVisible());
    EXPECT_TRUE(rows(u"SELECT * FROM pagar"_s).isEmpty());

    // the same window then saves what can be read; a year typed with a leading zero keeps four digits
    prompts_.clear();
    edit(a, "txtvalor")->setText(u"1.234,56"_s);
    date(a, "txtdata")->set_text(u"01/01/0100"_s);
    click(a, "cmdinserir");
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(rows(u"SELECT data, Valor, vencimento FROM pagar"_s),
              QStringList{u"0100/01/01|1.234,56|2026/11/30"_s});
}

} // namespace
