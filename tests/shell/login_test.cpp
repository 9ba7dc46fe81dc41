#include "shell/usuarios.h"

#include "store/conexao.h"
#include "support/fixture.h"
#include "support/golden.h"

using namespace Qt::StringLiterals;

namespace {

// "<users|no-users> [nome] [senha] <found|not-found>": the outcome, whether it looked the user up,
// and what the login windows show for it, against tests/data/shell/login.txt.
TEST(login, the_rule_and_its_order) {
    EXPECT_TRUE(support::matches_baseline(u"shell/login.txt"_s, [](const QString& line) {
        const QStringList b = support::bracketed(line);
        bool procurou = false;
        const auto r = shell::decidir_login(line.startsWith(u"users"_s), b[0], b[1],
                                            [&] { return procurou = true, line.endsWith(u" found"_s); });
        static const QStringList nomes{u"sem_usuarios"_s, u"campos_vazios"_s, u"caractere_proibido"_s,
                                       u"aceito"_s, u"recusado"_s};
        const shell::aviso_login a = shell::aviso_de(r);
        return QStringList{nomes[int(r)] + (procurou ? u", looked up"_s : QString()) +
                               (a.volta_ao_topo ? u", on top again"_s : QString()),
                           a.texto.isEmpty() ? u"(no message)"_s
                                             : u"%1 (style %2)"_s.arg(a.texto).arg(a.estilo)};
    }));
}

class login_data : public support::fixture {};

TEST_F(login_data, users_are_found_by_like_and_the_start_setting_reads_and_writes) {
    store::conectarbanco();
    EXPECT_FALSE(shell::ha_usuarios());
    exec("INSERT INTO login (nome, senha) VALUES ('Maria', 'Segredo1')");
    EXPECT_TRUE(shell::ha_usuarios());
    EXPECT_TRUE(shell::usuario_existe("MARIA", "segredo1"));
    EXPECT_FALSE(shell::usuario_existe("Maria", "Segredo"));
    EXPECT_FALSE(shell::usuario_existe("Maria'", "x")); // the statement fails: not found

    EXPECT_EQ(shell::exigirlogin(), "1");
    EXPECT_EQ(shell::ler_exigirlogin(), "1");
    shell::gravar_exigirlogin(false);
    EXPECT_EQ(rows("SELECT exigirlogin FROM login_inicia"), QStringList{"0"});
    exec("DELETE FROM login_inicia");
    EXPECT_THROW(shell::exigirlogin(), sql::error);
    EXPECT_EQ(shell::ler_exigirlogin(), "");
    shell::gravar_exigirlogin(true); // nothing to write: left as it is
    EXPECT_TRUE(rows("SELECT * FROM login_inicia").isEmpty());
}

} // namespace
