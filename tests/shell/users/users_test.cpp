// The lock and the user manager, through their windows, on the main window of a running program.

#include "shell/principal_api.h"
#include "shell/ui/frmgerenciarlogin.h"
#include "shell/ui/frmloginsoft.h"
#include "shell/usuarios.h"
#include "support/window_fixture.h"

#include <QFile>
#include <QListWidget>
#include <QPointer>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class users : public support::window_fixture {
protected:
    void TearDown() override {
        delete frmgerenciarlogin::aberto();
        delete frmloginsoft::aberto();
        window_fixture::TearDown();
    }
    void usuario(const QString& nome, const QString& senha) {
        exec(u"INSERT INTO login (nome, senha) VALUES ('%1', '%2')"_s.arg(nome, senha));
    }
    frmloginsoft* bloquear() {
        p->item(u"mnubloquearsoft"_s)->trigger();
        return frmloginsoft::aberto();
    }
    frmgerenciarlogin* gerenciador() {
        p->item(u"mnuconflogin"_s)->trigger();
        return frmgerenciarlogin::aberto();
    }
    QStringList nomes(frmgerenciarlogin* w) {
        QStringList out;
        for (int i = 0; i < w->lstusuarios->count(); ++i)
            out << w->lstusuarios->item(i)->text();
        return out;
    }
    void clicar(frmgerenciarlogin* w, const QString& nome) {
        w->lstusuarios->setCurrentItem(w->lstusuarios->findItems(nome, Qt::MatchExactly).value(0));
        w->lstusuarios_click();
    }
    const platform::scripted_prompts::record& unica_caixa() {
        EXPECT_EQ(prompts_.boxes().size(), 1u);
        static platform::scripted_prompts::record nenhuma;
        return prompts_.boxes().empty() ? nenhuma : prompts_.records().back();
    }
};

TEST_F(users, the_lock_hides_every_window_and_a_login_brings_them_back) {
    usuario(u"Maria"_s, u"Segredo1"_s);
    QWidget outra;
    outra.setWindowTitle(u"outra janela"_s);
    outra.show();
    frmloginsoft* w = bloquear();
    ASSERT_TRUE(w);
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->windowTitle(), u"Login do usuário"_s);
    EXPECT_FALSE(p->isVisible());
    EXPECT_FALSE(outra.isVisible());

    // the rule and its messages are shell/login's (tests/data/shell/login.txt)
    w->txtusuario->setText(u"Maria"_s);
    w->txtsenha->setText(u"errada"_s);
    w->cmdentrar->click();
    EXPECT_EQ(boxes(), QStringList{u"Login: "_s + shell::texto_login_invalido});
    EXPECT_FALSE(p->isVisible());
    EXPECT_TRUE(w->isVisible());
    prompts_.clear();
    w->txtusuario->setText(u"maria"_s);
    w->txtsenha->setText(u"SEGREDO1"_s); // LIKE: another case passes
    w->cmdentrar->click();
    EXPECT_TRUE(prompts_.boxes().empty());
    EXPECT_TRUE(p->isVisible());
    EXPECT_TRUE(outra.isVisible());
    EXPECT_FALSE(w->isVisible());
    // hidden, not unloaded; the next lock asks for the password again
    EXPECT_EQ(frmloginsoft::aberto(), w);
    EXPECT_EQ(bloquear(), w);
    EXPECT_TRUE(w->txtsenha->text().isEmpty());
    EXPECT_EQ(w->txtusuario->text(), u"maria"_s);
}

TEST_F(users, locked_with_no_users_the_warning_opens_the_program_and_unloads_the_lock) {
    frmloginsoft* w = bloquear();
    w->cmdentrar->click();
    EXPECT_EQ(boxes(), QStringList{u"Login: "_s + shell::texto_sem_usuarios});
    EXPECT_TRUE(p->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(frmloginsoft::aberto(), nullptr);
}

TEST_F(users, cancelling_or_closing_the_lock_ends_the_program_as_a_close_of_the_main_window) {
    for (bool pela_caixa : {false, true}) {
        // the hidden main window is closed as on any close: its lists' layout is kept, the lock unloaded
        QFile::remove(path(u"pagar.ini"_s));
        p->lstpagar->set_column_width(2, pela_caixa ? 2500 : 3000);
        QPointer<frmloginsoft> w = bloquear();
        QTimer::singleShot(0, w, [w, pela_caixa] {
            if (pela_caixa)
                w->close();
            else
                w->cmdcancelar->click();
        });
        // the program's loop ends by itself, or the guard ends it with another code
        QTimer guarda;
        guarda.setSingleShot(true);
        QObject::connect(&guarda, &QTimer::timeout, [] { QCoreApplication::exit(99); });
        guarda.start(5000);
        EXPECT_EQ(QCoreApplication::exec(), 0) << pela_caixa;
        EXPECT_FALSE(p->isVisible());
        frmlogin::descarregar();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(w) << pela_caixa;
        QFile f(path(u"pagar.ini"_s));
        ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << pela_caixa;
        EXPECT_TRUE(f.readAll().contains(pela_caixa ? "descricao=2500" : "descricao=3000"));
    }
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(users, the_manager_lists_loads_by_containing_name_and_shows_the_option) {
    exec(u"UPDATE login_inicia SET exigirlogin='1'"_s);
    usuario(u"Mariana"_s, u"m1"_s);
    usuario(u"Ana"_s, u"a1"_s);
    frmgerenciarlogin* w = gerenciador();
    ASSERT_TRUE(w);
    EXPECT_EQ(w->windowTitle(), u"Gerenciador de Login"_s);
    EXPECT_EQ(nomes(w), (QStringList{u"Mariana"_s, u"Ana"_s}));
    EXPECT_TRUE(w->chkusuario->isChecked());
    EXPECT_EQ(w->chkusuario->text(), u"Exigir login ao iniciar o software(recomendado)"_s);
    // "Ana" is contained in "Mariana", which comes first: the click loads Mariana
    clicar(w, u"Ana"_s);
    EXPECT_EQ(w->txtusuario->text(), u"Mariana"_s);
    EXPECT_EQ(w->txtsenha->text(), u"m1"_s);
    EXPECT_EQ(w->txtcodigo->text(), u"1"_s);
    EXPECT_TRUE(prompts_.boxes().empty());
}

TEST_F(users, adding_checks_in_order_and_refuses_a_name_in_another_case) {
    usuario(u"ana"_s, u"a1"_s);
    frmgerenciarlogin* w = gerenciador();
    struct {
        QString nome, senha, texto;
        int estilo;
    } casos[] = {
        {QString(), u"x"_s, u"O campo nome de usuário e senha não podem estar vazios!"_s, platform::ok_only},
        {u"joão"_s, QString(), u"O campo nome de usuário e senha não podem estar vazios!"_s,
         platform::ok_only},
        {u"d'ávila"_s, u"x"_s, u"Os seguintes caractes não são permitidos: '=%-#;"_s, platform::critical},
        {u"joão"_s, u"a*b"_s, u"Os seguintes caractes não são permitidos: '=%-#;"_s, platform::critical},
        {u"ANA"_s, u"outra"_s,
         u"O nome de usuário digitado já existe, por favor selecione outro nome de usuário!"_s,
         platform::ok_only},
    };
    for (const auto& c : casos) {
        prompts_.clear();
        w->txtusuario->setText(c.nome);
        w->txtsenha->setText(c.senha);
        w->cmdadicionar->click();
        EXPECT_EQ(unica_caixa().text, c.texto) << qPrintable(c.nome);
        EXPECT_EQ(unica_caixa().title, u"Login"_s);
        EXPECT_EQ(unica_caixa().style, c.estilo);
    }
    EXPECT_EQ(rows(u"SELECT nome, senha FROM login"_s), QStringList{u"ana|a1"_s});
    prompts_.clear();
    w->txtusuario->setText(u"joão"_s);
    w->txtsenha->setText(u"s3nha"_s);
    w->cmdadicionar->click();
    EXPECT_TRUE(prompts_.boxes().empty());
    EXPECT_EQ(rows(u"SELECT nome, senha FROM login"_s), (QStringList{u"ana|a1"_s, u"joão|s3nha"_s}));
    EXPECT_EQ(nomes(w), (QStringList{u"ana"_s, u"joão"_s}));
}

TEST_F(users, an_update_checks_only_the_characters_and_writes_the_clicked_row) {
    usuario(u"ana"_s, u"a1"_s);
    usuario(u"bia"_s, u"b1"_s);
    frmgerenciarlogin* w = gerenciador();
    clicar(w, u"bia"_s);
    w->txtsenha->setText(u"b-2"_s);
    w->cdmatualizar->click();
    EXPECT_EQ(unica_caixa().text, u"Os seguintes caractes não são permitidos: '=%-#;"_s);
    EXPECT_EQ(rows(u"SELECT nome, senha FROM login"_s), (QStringList{u"ana|a1"_s, u"bia|b1"_s}));
    // no empty check and no duplicate check on an update
    prompts_.clear();
    w->txtusuario->setText(u"ANA"_s);
    w->txtsenha->setText(QString());
    w->cdmatualizar->click();
    EXPECT_EQ(unica_caixa().text, u"Dados atualizados com sucesso!"_s);
    EXPECT_EQ(unica_caixa().title, u"Login"_s);
    EXPECT_EQ(rows(u"SELECT nome, senha FROM login"_s), (QStringList{u"ana|a1"_s, u"ANA|"_s}));
    EXPECT_EQ(nomes(w), (QStringList{u"ana"_s, u"ANA"_s}));
}

TEST_F(users, removal_keeps_the_last_user_asks_and_takes_every_case_of_the_name) {
    usuario(u"ana"_s, u"a1"_s);
    frmgerenciarlogin* w = gerenciador();
    clicar(w, u"ana"_s);
    w->cdmremover->click();
    EXPECT_EQ(unica_caixa().text,
              u"Não é possível remover este usuário, o sistema não pode ficar sem usuários!"_s);
    EXPECT_EQ(unica_caixa().title, u"Erro"_s);
    EXPECT_EQ(unica_caixa().style, platform::critical);

    usuario(u"ANA"_s, u"a2"_s);
    usuario(u"bia"_s, u"b1"_s);
    w->carregarusuarios();
    clicar(w, u"ana"_s);
    prompts_.clear();
    prompts_.answer(platform::answer_no);
    w->cdmremover->click();
    EXPECT_EQ(unica_caixa().text,
              u"tem certeza que deseja remover ana e todos os seus produtos do banco de dados?"_s);
    EXPECT_EQ(unica_caixa().style, platform::yes_no | platform::question);
    EXPECT_EQ(rows(u"SELECT nome FROM login"_s).size(), 3);
    prompts_.clear();
    prompts_.answer(platform::answer_yes);
    w->cdmremover->click();
    EXPECT_EQ(rows(u"SELECT nome FROM login"_s), QStringList{u"bia"_s});
    EXPECT_EQ(nomes(w), QStringList{u"bia"_s});
    EXPECT_TRUE(w->txtusuario->text().isEmpty());
}

TEST_F(users, the_option_is_written_at_each_click) {
    frmgerenciarlogin* w = gerenciador();
    EXPECT_FALSE(w->chkusuario->isChecked());
    w->chkusuario->click();
    EXPECT_EQ(rows(u"SELECT exigirlogin FROM login_inicia"_s), QStringList{u"1"_s});
    w->chkusuario->click();
    EXPECT_EQ(rows(u"SELECT exigirlogin FROM login_inicia"_s), QStringList{u"0"_s});
}

} // namespace
