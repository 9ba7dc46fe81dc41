#include "platform/widgets/list_view.h"
#include "shell/backup.h"
#include "shell/principal_api.h"
#include "shell/ui/frmlogin.h"
#include "shell/ui/frmprincipal.h"
#include "store/conexao.h"
#include "store/config.h"
#include "store/data_file.h"
#include "store/program_dir.h"
#include "support/fixture.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

namespace {

QByteArray conteudo(const QString& arquivo) {
    QFile f(arquivo);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

class backup : public support::fixture {
protected:
    void TearDown() override {
        if (frmprincipal::exists()) delete frmprincipal::instance();
        frmlogin::descarregar();
        QCoreApplication::processEvents();
        support::fixture::TearDown();
    }
    // The descriptions of the accounts in a data file.
    static QStringList bancos(const QString& arquivo) {
        auto c = sql::connection::open(arquivo, store::senha_dados.toUtf8());
        sql::recordset rs;
        rs.open(QStringLiteral("SELECT banco FROM banco ORDER BY banco"), c);
        QStringList out;
        for (; !rs.eof(); rs.move_next())
            out << rs.text(0);
        return out;
    }
    void menu(const char* item, const QString& resposta) {
        prompts_.answer_text(resposta);
        shell::run_action(QString::fromLatin1(item));
    }
    void expect_box(std::size_t n, const QString& title, const QString& text) {
        ASSERT_GT(prompts_.boxes().size(), n);
        EXPECT_EQ(prompts_.boxes()[n].title, title);
        EXPECT_EQ(prompts_.boxes()[n].text, text);
    }
};

TEST_F(backup, a_backup_copies_the_local_file_and_a_failed_one_leaves_every_file_as_it_was) {
    exec(QStringLiteral("INSERT INTO banco (banco, saldo) VALUES ('Itaú', '10,00')"));
    const QString copia = path(QStringLiteral("copia.qntbd"));
    menu("mnurealizarbak", QString()); // cancelled: nothing asked, nothing written
    EXPECT_TRUE(prompts_.boxes().empty());
    ASSERT_EQ(prompts_.records().size(), 1u);
    EXPECT_EQ(prompts_.records()[0].kind, QStringLiteral("save_file"));
    EXPECT_EQ(prompts_.records()[0].title, QStringLiteral("Realizar backup do banco de dados"));
    EXPECT_EQ(prompts_.records()[0].filter, QStringLiteral("Arquivo de banco de dados(*.qntbd)|*.qntbd"));

    // in network mode too, the local file is what is saved
    const QString rede = path(QStringLiteral("rede.qntbd"));
    support::copy_fresh_data_file(rede);
    store::save_setting(store::secao_config, QStringLiteral("EmRede"), QStringLiteral("1"));
    store::save_setting(store::secao_config, QStringLiteral("RedeLocal"), rede);
    menu("mnurealizarbak", copia);
    expect_box(0, QStringLiteral("Backup"), QStringLiteral("Backup realizado com sucesso!"));
    EXPECT_EQ(conteudo(copia), conteudo(path(QStringLiteral("dados.qntbd"))));
    EXPECT_EQ(bancos(copia), QStringList{QStringLiteral("Itaú")});
    EXPECT_TRUE(store::conexao); // connected again

    // a folder that cannot be written, and the program's own file
    menu("mnurealizarbak", QStringLiteral("/proc/copia.qntbd"));
    expect_box(1, QStringLiteral("Erro"),
               QStringLiteral("Ocorreu o seguinte erro: Permissão negada: /proc/copia.qntbd"));
    const QByteArray antes = conteudo(path(QStringLiteral("dados.qntbd")));
    menu("mnurealizarbak", path(QStringLiteral("dados.qntbd")));
    ASSERT_EQ(prompts_.boxes().size(), 3u);
    EXPECT_TRUE(
        prompts_.boxes()[2].text.startsWith(QStringLiteral("Ocorreu o seguinte erro: Permissão negada")));
    EXPECT_EQ(conteudo(path(QStringLiteral("dados.qntbd"))), antes);
    EXPECT_TRUE(store::conexao);
}

TEST_F(backup, a_restore_reloads_the_lists_and_keeps_the_file_it_replaced) {
    const QString copia = path(QStringLiteral("copia.qntbd"));
    support::copy_fresh_data_file(copia);
    {
        auto c = sql::connection::open(copia, store::senha_dados.toUtf8());
        c->execute(QStringLiteral("INSERT INTO pagar (estatus, data, descricao, Valor) VALUES ('Pendente', "
                                  "'2026/11/20', 'Aluguel', '900,00')"));
        c->execute(QStringLiteral("INSERT INTO banco (banco, saldo) VALUES ('Restaurado', '0')"));
    }
    exec(QStringLiteral("INSERT INTO banco (banco, saldo) VALUES ('Antigo', '0')"));
    exec(QStringLiteral("UPDATE login_inicia SET exigirlogin='0'"));
    frmlogin::instance()->abrir();
    frmprincipal* p = frmprincipal::instance();
    EXPECT_EQ(p->lstpagar->row_count(), 0);

    menu("mnurestbak", copia);
    expect_box(0, QStringLiteral("Backup"), QStringLiteral("Backup restaurado com sucesso!"));
    EXPECT_EQ(prompts_.records()[0].title, QStringLiteral("Restaurar backup do banco de dados"));
    EXPECT_EQ(p->lstpagar->row_count(), 1);
    EXPECT_EQ(p->lstcaixabanco->row_count(), 1);
    EXPECT_EQ(bancos(path(QStringLiteral("dados.qntbd"))), QStringList{QStringLiteral("Restaurado")});
    EXPECT_EQ(bancos(path(QStringLiteral("dados.qntbd.anterior"))), QStringList{QStringLiteral("Antigo")});
}

TEST_F(backup, an_unrelated_file_restores_with_success_and_fails_at_the_next_connection_only) {
    const QString texto = path(QStringLiteral("notas.qntbd"));
    QFile f(texto);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray(5000, 'x'));
    f.close();
    exec(QStringLiteral("INSERT INTO banco (banco, saldo) VALUES ('Antigo', '0')"));
    menu("mnurestbak", texto);
    expect_box(0, QStringLiteral("Backup"), QStringLiteral("Backup restaurado com sucesso!"));
    expect_box(1, QStringLiteral("Erro"), prompts_.boxes().at(1).text); // the connection's own message
    EXPECT_TRUE(
        prompts_.boxes()[1].text.startsWith(QStringLiteral("Não foi possível conectar ao banco de dados")));
    EXPECT_EQ(bancos(path(QStringLiteral("dados.qntbd.anterior"))), QStringList{QStringLiteral("Antigo")});

    // a file that is not there is a copy error, and the data file stays
    prompts_.clear();
    const QByteArray antes = conteudo(path(QStringLiteral("dados.qntbd")));
    menu("mnurestbak", path(QStringLiteral("sumiu.qntbd")));
    expect_box(0, QStringLiteral("Erro"),
               QStringLiteral("Ocorreu o seguinte erro: Arquivo não encontrado: ") +
                   path(QStringLiteral("sumiu.qntbd")));
    EXPECT_EQ(conteudo(path(QStringLiteral("dados.qntbd"))), antes);
}

TEST_F(backup, a_restore_killed_part_way_leaves_the_old_file) {
    exec(QStringLiteral("INSERT INTO banco (banco, saldo) VALUES ('Antigo', '0')"));
    const QString grande = path(QStringLiteral("grande.qntbd"));
    support::copy_fresh_data_file(grande);
    {
        auto c = sql::connection::open(grande, store::senha_dados.toUtf8());
        c->execute(
            QStringLiteral("INSERT INTO pagar (descricao) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL "
                           "SELECT i + 1 FROM n WHERE i < 60000) SELECT printf('linha %08d', i) FROM n"));
    }
    ASSERT_GT(QFile(grande).size(), 4 << 20);
    const QByteArray antes = conteudo(path(QStringLiteral("dados.qntbd")));
    // a process of its own copies and is killed in the middle of the copy
    const pid_t filho = fork();
    ASSERT_GE(filho, 0);
    if (filho == 0) {
        try {
            shell::copiar_arquivo(grande, shell::arquivo_local(), [](qint64 feito, qint64) {
                if (feito >= (2 << 20)) std::raise(SIGKILL);
            });
        } catch (...) {
        }
        _exit(0); // only reached when the kill did not come
    }
    int estado = 0;
    ASSERT_EQ(waitpid(filho, &estado, 0), filho);
    ASSERT_TRUE(WIFSIGNALED(estado));
    EXPECT_EQ(WTERMSIG(estado), SIGKILL);
    EXPECT_EQ(conteudo(path(QStringLiteral("dados.qntbd"))), antes);
    EXPECT_EQ(bancos(path(QStringLiteral("dados.qntbd"))), QStringList{QStringLiteral("Antigo")});
    // the next restore goes through over whatever the killed one left behind
    menu("mnurestbak", grande);
    expect_box(0, QStringLiteral("Backup"), QStringLiteral("Backup restaurado com sucesso!"));
    EXPECT_EQ(conteudo(path(QStringLiteral("dados.qntbd"))), conteudo(grande));
}

} // namespace
