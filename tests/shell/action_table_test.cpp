#include "shell/action_table.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

TEST(action_table, own_actions_first_then_registered_ones_and_nothing_for_an_unknown_name) {
    shell::action_table t;
    QStringList ran;
    bool pode = false;
    shell::register_action("teste_registrada", [&] { ran << "registrada"; });
    shell::register_action("teste_ambas", [&] { ran << "registrada ambas"; });
    t.add("teste_ambas", [&] { ran << "própria"; });
    t.add(
        "teste_condicional", [&] { ran << "condicional"; }, [&] { return pode; });
    t.add("teste_falha", [] { throw std::runtime_error("falhou"); });

    EXPECT_TRUE(t.enabled("teste_registrada"));
    EXPECT_FALSE(t.enabled("teste_nenhuma"));
    EXPECT_FALSE(t.run("teste_nenhuma"));
    EXPECT_TRUE(t.run("teste_registrada"));
    EXPECT_TRUE(t.run("teste_ambas"));
    EXPECT_FALSE(t.enabled("teste_condicional"));
    EXPECT_FALSE(t.run("teste_condicional"));
    pode = true;
    EXPECT_TRUE(t.run("teste_condicional"));
    // a failing action is ignored, as every event routine's errors are
    EXPECT_TRUE(t.run("teste_falha"));
    EXPECT_EQ(ran, (QStringList{"registrada", "própria", "condicional"}));
}

} // namespace
