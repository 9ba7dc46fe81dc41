#include "platform/autostart.h"
#include "platform/widgets/list_view.h"
#include "shell/ui/frmlogin.h"
#include "shell/ui/frmprincipal.h"
#include "store/config.h"
#include "support/fixture.h"

#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

const QString invalido =
    QStringLiteral("Usuário e ou senha inválido, por favor verifique os dados digitados!");

class startup : public support::fixture {
protected:
    void TearDown() override {
        if (frmprincipal::exists()) delete frmprincipal::instance();
        frmlogin::descarregar();
        QCoreApplication::processEvents();
        support::fixture::TearDown();
    }
    void exigir_login(const char* v) {
        exec(QStringLiteral("UPDATE login_inicia SET exigirlogin='%1'").arg(QString::fromLatin1(v)));
    }
    frmlogin* login() { return frmlogin::instance(); }
    bool principal_visivel() { return frmprincipal::exists() && frmprincipal::instance()->isVisible(); }
    void entrar(const QString& nome, const QString& senha) {
        login()->txtusuario->setText(nome);
        login()->txtsenha->setText(senha);
        login()->cmdentrar->click();
    }
};

TEST_F(startup, without_login_the_main_window_opens_and_the_login_is_never_seen) {
    exigir_login("0");
    login()->abrir();
    EXPECT_FALSE(login()->isVisible());
    ASSERT_TRUE(principal_visivel());
    auto* p = frmprincipal::instance();
    EXPECT_EQ(p->statustexto->text(),
              QStringLiteral("Seja bem vindo ao software   -   segunda-feira, 23 de novembro de 2026"));
    EXPECT_EQ(p->xtab->currentIndex(), 0);
    EXPECT_FALSE(p->item(QStringLiteral("mnulogininiciar"))->isChecked());
    EXPECT_TRUE(p->item(QStringLiteral("mnuatualizarsaldo"))->isChecked());
    EXPECT_TRUE(p->item(QStringLiteral("mnuexibirprincipal"))->isChecked());
    EXPECT_TRUE(p->item(QStringLiteral("mnualertavenc"))->isChecked());
    EXPECT_TRUE(p->item(QStringLiteral("mnudicadia"))->isChecked());
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(startup, an_empty_users_table_lets_anyone_in_with_its_warning) {
    login()->abrir();
    EXPECT_TRUE(login()->isVisible());
    EXPECT_FALSE(principal_visivel());
    entrar(QString(), QString());
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, QStringLiteral("Login"));
    EXPECT_EQ(prompts_.boxes()[0].style, platform::exclamation);
    EXPECT_TRUE(prompts_.boxes()[0].text.startsWith(
        QStringLiteral("Não há nenhum usuário cadastrado, o software será")));
    EXPECT_TRUE(principal_visivel());
    EXPECT_FALSE(login()->isVisible());
    EXPECT_TRUE(frmprincipal::instance()->item(QStringLiteral("mnulogininiciar"))->isChecked());
}

TEST_F(startup, login_checks_fields_characters_and_password) {
    exec(QStringLiteral("INSERT INTO login (nome, senha) VALUES ('Maria', 'Segredo1')"));
    login()->abrir();
    struct {
        const char* nome;
        const char* senha;
        const char* message; // nullptr: the login goes through
        int style;
    } cases[] = {
        {"", "Segredo1", "Digite o nome de usuário e ou a senha!", platform::exclamation},
        {"Maria", "", "Digite o nome de usuário e ou a senha!", platform::exclamation},
        {"Maria", "Seg-redo1", "Usuário e ou senha inválido, por favor verifique os dados digitados!",
         platform::critical},
        {"Maria' --", "x", "Usuário e ou senha inválido, por favor verifique os dados digitados!",
         platform::critical},
        {"Maria", "%", "Usuário e ou senha inválido, por favor verifique os dados digitados!",
         platform::critical},
        {"Maria", "errada", "Usuário e ou senha inválido, por favor verifique os dados digitados!",
         platform::critical},
        {"MARIA", "segredo1", nullptr, 0}, // LIKE: any case passes
    };
    for (const auto& c : cases) {
        prompts_.clear();
        entrar(QString::fromUtf8(c.nome), QString::fromUtf8(c.senha));
        if (c.message) {
            ASSERT_EQ(prompts_.boxes().size(), 1u) << c.nome << "/" << c.senha;
            EXPECT_EQ(prompts_.boxes()[0].text, QString::fromUtf8(c.message));
            EXPECT_EQ(prompts_.boxes()[0].title, QStringLiteral("Login"));
            EXPECT_EQ(prompts_.boxes()[0].style, c.style);
            EXPECT_FALSE(principal_visivel());
        } else {
            EXPECT_TRUE(prompts_.boxes().empty());
            EXPECT_TRUE(principal_visivel());
            EXPECT_FALSE(login()->isVisible());
        }
    }
}

TEST_F(startup, a_missing_background_stops_the_opening_with_its_message) {
    exigir_login("0");
    QFile::remove(path(QStringLiteral("fundo.gif")));
    login()->abrir();
    ASSERT_TRUE(principal_visivel());
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    const auto& box = prompts_.boxes()[0];
    EXPECT_EQ(box.title, QStringLiteral("Erro"));
    EXPECT_EQ(box.style, platform::critical);
    EXPECT_TRUE(
        box.text.startsWith(QStringLiteral("Ocorreu o seguinte erro ao tentar abrir o banco de dados: ")));
    EXPECT_TRUE(
        box.text.endsWith(QStringLiteral(" o banco de dados foi definido como local, reinicie o software.")));
    // nothing after the picture ran
    EXPECT_TRUE(frmprincipal::instance()->statustexto->text().isEmpty());
    EXPECT_TRUE(frmprincipal::instance()->lblpagarest->text().isEmpty());
}

TEST_F(startup, a_missing_data_file_still_opens_the_main_window_with_empty_lists) {
    QFile::remove(path(QStringLiteral("dados.qntbd")));
    login()->abrir();
    ASSERT_TRUE(principal_visivel());
    auto* p = frmprincipal::instance();
    EXPECT_EQ(p->lstpagar->row_count(), 0);
    const auto boxes = prompts_.boxes();
    ASSERT_FALSE(boxes.empty());
    EXPECT_TRUE(boxes[0].text.startsWith(QStringLiteral("Não foi possível conectar ao banco de dados")));
    EXPECT_EQ(store::setting(store::secao_config, QStringLiteral("RedeLocal"), QString()),
              QStringLiteral("SemRede"));
}

TEST_F(startup, with_the_data_off_the_tabs_are_hidden) {
    exigir_login("0");
    store::save_setting(store::secao_config, QStringLiteral("ExibirPrincipal"), QStringLiteral("0"));
    login()->abrir();
    auto* p = frmprincipal::instance();
    EXPECT_FALSE(p->picprincipal->isVisible());
    EXPECT_FALSE(p->item(QStringLiteral("mnuexibirprincipal"))->isChecked());
    EXPECT_TRUE(p->lblpagarest->text().isEmpty());
}

TEST_F(startup, closing_by_the_menu_or_the_close_box_stores_the_column_layout) {
    for (const char* how : {"mnusair", "close box"}) {
        QFile::remove(path(QStringLiteral("pagar.ini")));
        exigir_login("0");
        login()->abrir();
        auto* p = frmprincipal::instance();
        p->lstpagar->set_column_width(2, 3000);
        if (QString::fromLatin1(how) == QLatin1String("mnusair"))
            p->item(QStringLiteral("mnusair"))->trigger();
        else
            p->close();
        QFile f(path(QStringLiteral("pagar.ini")));
        ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << how;
        EXPECT_TRUE(f.readAll().contains("descricao=3000")) << how;
        delete p;
        frmlogin::descarregar();
        QCoreApplication::processEvents();
    }
}

TEST_F(startup, an_empty_list_keeps_its_look_until_it_has_rows) {
    exigir_login("0");
    store::save_setting(store::secao_config, QStringLiteral("CorFundo1"), QStringLiteral("&HC0FFFF"));
    store::save_setting(store::secao_config, QStringLiteral("CorFundo2"), QStringLiteral("&HE0E0E0"));
    login()->abrir();
    auto* p = frmprincipal::instance();
    EXPECT_FALSE(p->lstpagar->alternatingRowColors());
    exec(QStringLiteral(
        "INSERT INTO pagar (estatus, data, Valor, vencimento) VALUES ('Pendente', '2026/11/23', "
        "'10,00', '2026/11/30')"));
    p->carregarpagar();
    p->CarregarConfigSoft();
    EXPECT_TRUE(p->lstpagar->alternatingRowColors());
    EXPECT_EQ(p->lstpagar->palette().color(QPalette::Base), QColor(0xFF, 0xFF, 0xC0));
    EXPECT_EQ(p->lstpagar->palette().color(QPalette::AlternateBase), QColor(0xE0, 0xE0, 0xE0));
    EXPECT_EQ(p->lblpagarest->text(),
              QStringLiteral("1 cadastros  -  Total de despesas: R$ 10,00  -  Total pago: R$ "
                             "0,00  -  Total pendente: R$ 10,00"));
}

} // namespace
