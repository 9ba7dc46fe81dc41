#include "platform/autostart.h"
#include "platform/widgets/list_view.h"
#include "shell/main_menu.h"
#include "shell/ui/frmlogin.h"
#include "shell/ui/frmprincipal.h"
#include "store/config.h"
#include "support/fixture.h"

#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

class menus : public support::fixture {
protected:
    void SetUp() override {
        support::fixture::SetUp();
        exec(QStringLiteral("UPDATE login_inicia SET exigirlogin='0'"));
        frmlogin::instance()->abrir();
        p = frmprincipal::instance();
    }
    void TearDown() override {
        if (frmprincipal::exists()) delete frmprincipal::instance();
        frmlogin::descarregar();
        QCoreApplication::processEvents();
        support::fixture::TearDown();
    }
    void click(const char* name) {
        QAction* a = p->item(QString::fromLatin1(name));
        ASSERT_TRUE(a) << name;
        a->trigger();
    }
    QString setting(const QString& section, const char* key) {
        return store::setting(section, QString::fromUtf8(key), QStringLiteral("<nada>"));
    }
    frmprincipal* p = nullptr;
};

TEST_F(menus, every_item_exists_with_its_caption_and_only_working_items_are_enabled) {
    QStringList working = {"mnusair",         "mnualertavenc",      "mnuatualizarsaldo", "mnudicadia",
                           "mnuiniciar",      "mnuexibirprincipal", "mnulogininiciar",   "mnunotepad",
                           "mnucalc",         "mnusoftware",        "mnumanual",         "mnusuporte",
                           "mnucontato",      "mnuopiniao",         "mnuvelmora",        "mnucaddespesas",
                           "mnucadrececeber", "mnucadbancario",     "mnucadbancos",      "mnumostrardicadia"};
    // the lock, the users, the dues, the diary and its reports, the calendar
    working += {"mnubloquearsoft", "mnuconflogin",  "mnuvencpagar",    "mnuvencreceber", "mnucomp",
                "mnucal",          "mnuretcompdia", "mnuretcompgeral", "mnuretcompmes"};
    // the centres and the integrated report
    working += {"mnucentrocusto", "mnucentrolucro", "mnuretint"};
    // the period summaries, charts and statistics
    working += {"mnudiapagar",       "mnudiareceber",       "mnudibancario",       "mnumespagar",
                "mnumesreceber",     "mnumesbancario",      "mnuanualpagar",       "mnuanualreceber",
                "mnuanualbancario",  "mnuretdiadesp",       "mnuretdialucros",     "mnuretdiabancario",
                "mnuretmesdespesas", "mnuretmeslucros",     "mnuretmesbancario",   "mnuretanualdespesas",
                "mnuretanolucros",   "mnuretanualbancario", "mnugradiadesp",       "mnugralucrosdia",
                "mnugrabancdia",     "mnugradespmes",       "mnugralucrosmes",     "mnugrabancmes",
                "mnugraanualdesp",   "mnugraabuallucros",   "mnugrabancarioanual", "mnuestdiadesp",
                "mnuestdialucros",   "mnuestdiabancario",   "mnuestmesdesp",       "mnuestmeslucros",
                "mnuestmesbancario", "mnuestanualdesp",     "mnuestanuallucros",   "mnuestanualbancario",
                "mnuestpagar",       "mnuestreceber",       "mnuestbancario",      "mnuestcli",
                "mnuestforn",        "mnuestplanopagar",    "mnuestplanoreceber",  "mnuretcliente",
                "mnuretfornecedor",  "mnugrapagar",         "mnugrareceber",       "mnugrabancario",
                "mnugradesprec",     "mnuestsoftware"};
    // the bank statement, income against expenses
    working += {"mnuextrato", "mnulucrosdesp"};
    // the cash flow forecast
    working += {"mnuretfxgeral", "mnuretfxpagar", "mnuretfxreceber"};
    // projections and targets
    working += {"mnumetadesp", "mnumetarec"};
    // the comparison of months and years
    working += {"mnucompdesp", "mnucomprec"};
    // the settings window, backup and restore, the e-mail windows
    working += {"mnuconfigsoft", "mnurealizarbak", "mnurestbak", "mnuretviaemail", "mnuestviaemail"};
    // the clients and suppliers and their histories
    working += {"mnuclientes", "mnufornecedores", "mnufincli", "mnufinforn"};
    // the configured and consolidated reports, the management window, the per-month views
    working += {"mnuretpagar",          "mnuretcentrocusto", "mnuretcentrolucro", "mnuretreceber",
                "mnuretbancario",       "mnugerendesp",      "mnugerenlucros",    "mnuviscontmespagar",
                "mnuviscontmesreceber", "mnuvisvencpagar",   "mnuvisvencreceber"};
    // the service order, the bank slip and the calculators
    working += {"mnuordemserv", "mnuboleto", "mnujurosdesc", "mnujurosparcelas"};
    int leaves = 0;
    for (const auto& e : shell::main_menu()) {
        if (e.name == QLatin1String("-")) continue;
        QAction* a = p->item(e.name);
        ASSERT_TRUE(a) << qPrintable(e.name);
        EXPECT_EQ(a->objectName(), e.name);
        EXPECT_EQ(a->text(), e.caption);
        if (a->menu()) continue;
        ++leaves;
        EXPECT_EQ(a->isEnabled(), working.contains(e.name)) << e.name.toStdString();
    }
    EXPECT_GT(leaves, 100);
    EXPECT_EQ(p->item(QStringLiteral("mnucaddespesas"))->text(), QStringLiteral("Cadastar contas a pagar"));
    EXPECT_EQ(p->item(QStringLiteral("mnulogininiciar"))->text(),
              QStringLiteral("Exibir menu de login ao inicar"));
    // buttons whose windows come later are disabled too
    EXPECT_TRUE(p->cmdadicionard->isEnabled());
    EXPECT_TRUE(p->cmdrecibod->isEnabled());
    EXPECT_TRUE(p->cmdconfbanc->isEnabled());
    EXPECT_TRUE(p->cmdhistoricocli->isEnabled());
    EXPECT_TRUE(p->findChild<QToolButton*>(QStringLiteral("clientes"))->isEnabled());
    EXPECT_TRUE(p->findChild<QToolButton*>(QStringLiteral("sair"))->isEnabled());
}

TEST_F(menus, view_toggles_write_their_settings) {
    struct {
        const char* item;
        const QString* section;
        const char* key;
    } toggles[] = {{"mnualertavenc", &store::secao_config, "AlertasVencimento"},
                   {"mnuatualizarsaldo", &store::secao_config, "AtualizarSaldo"},
                   {"mnudicadia", &store::secao_configuracoes, "Exibir dica do dia"}};
    for (const auto& t : toggles) {
        ASSERT_TRUE(p->item(QString::fromLatin1(t.item))->isChecked()) << t.item;
        click(t.item);
        EXPECT_FALSE(p->item(QString::fromLatin1(t.item))->isChecked());
        EXPECT_EQ(setting(*t.section, t.key), QStringLiteral("0")) << t.item;
        click(t.item);
        EXPECT_EQ(setting(*t.section, t.key), QStringLiteral("1")) << t.item;
    }
    // the tip lives in the lower-case section only
    EXPECT_EQ(setting(store::secao_config, "Exibir dica do dia"), QStringLiteral("<nada>"));
}

TEST_F(menus, data_on_the_main_page_toggles_with_its_message) {
    click("mnuexibirprincipal");
    EXPECT_EQ(setting(store::secao_config, "ExibirPrincipal"), QStringLiteral("0"));
    EXPECT_TRUE(p->picprincipal->isHidden());
    ASSERT_EQ(prompts_.boxes().size(), 1u);
    EXPECT_EQ(prompts_.boxes()[0].title, QStringLiteral("Info"));
    EXPECT_EQ(prompts_.boxes()[0].style, platform::information);
    EXPECT_EQ(prompts_.boxes()[0].text,
              QStringLiteral(
                  "Quando está opção está desmarcada o software não mostra os dados cadastrados na página "
                  "principal, para exibir novamente estes dados basta marcar está opção!"));
    click("mnuexibirprincipal");
    EXPECT_EQ(setting(store::secao_config, "ExibirPrincipal"), QStringLiteral("1"));
    EXPECT_FALSE(p->picprincipal->isHidden());
    EXPECT_EQ(prompts_.boxes().size(), 1u);
}

TEST_F(menus, start_with_the_system_writes_the_entry_then_the_setting) {
    click("mnuiniciar");
    EXPECT_EQ(setting(store::secao_config, "Iniciar"), QStringLiteral("1"));
    QFile f(platform::autostart_file(QStringLiteral("Quintara")));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_TRUE(f.readAll().contains("Exec=" + path(QString()).toUtf8()));
    f.close();
    click("mnuiniciar");
    EXPECT_EQ(setting(store::secao_config, "Iniciar"), QStringLiteral("0"));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_TRUE(f.readAll().contains("Exec=\n"));
}

TEST_F(menus, login_at_start_writes_the_data_file) {
    click("mnulogininiciar");
    EXPECT_EQ(rows(QStringLiteral("SELECT exigirlogin FROM login_inicia")), QStringList{QStringLiteral("1")});
    click("mnulogininiciar");
    EXPECT_EQ(rows(QStringLiteral("SELECT exigirlogin FROM login_inicia")), QStringList{QStringLiteral("0")});
}

TEST_F(menus, tools_and_pages_go_to_the_desktop) {
    click("mnunotepad");
    click("mnucalc");
    click("mnumanual");
    p->executar_botao(QStringLiteral("sobre"));
    EXPECT_EQ(shell_.opened,
              (QStringList{QStringLiteral("<editor>"), QStringLiteral("<calculator>"),
                           QStringLiteral("https://www.quintara.com.br/produtos/quintara/manual.aspx"),
                           QStringLiteral("https://www.quintara.com.br/produtos/quintara")}));
}

TEST_F(menus, display_settings_reach_the_lists) {
    store::save_setting(store::secao_config, QStringLiteral("TamanhoFonte"), QStringLiteral("14"));
    store::save_setting(store::secao_config, QStringLiteral("Fontenome"), QStringLiteral("DejaVu Serif"));
    store::save_setting(store::secao_config, QStringLiteral("Iniciar"), QStringLiteral("1"));
    p->CarregarConfigSoft();
    for (list_view* l : {p->lstpagar, p->lstreceber, p->lstmovimento, p->lstcaixabanco}) {
        EXPECT_EQ(l->font().pointSizeF(), 14.0);
        EXPECT_EQ(l->font().family(), QStringLiteral("DejaVu Serif"));
    }
    EXPECT_TRUE(p->item(QStringLiteral("mnuiniciar"))->isChecked());
}

} // namespace
