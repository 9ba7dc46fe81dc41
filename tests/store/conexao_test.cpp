#include "store/conexao.h"
#include "store/config.h"
#include "support/fixture.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class conexao : public support::fixture {};

const QString mensagem =
    QStringLiteral("Não foi possível conectar ao banco de dados, verifique se você está conectado a internet "
                   "ou rede local e tente "
                   "novamente. Caso o erro persista entre em contato com o administrador da rede. \nErro: ");

TEST_F(conexao, opens_the_local_file) {
    store::conectarbanco();
    ASSERT_TRUE(store::conexao);
    sql::recordset rs;
    rs.open(u"SELECT * FROM fpagamento"_s, store::conexao);
    EXPECT_GT(rs.record_count(), 5);
    EXPECT_TRUE(prompts_.records().empty());
}

TEST_F(conexao, a_missing_file_retries_then_turns_network_mode_off) {
    store::save_setting(store::secao_config, u"RedeLocal"_s, path(u"rede/dados.qntbd"_s));
    store::save_setting(store::secao_config, u"EmRede"_s, u"1"_s);
    store::conectarbanco();
    EXPECT_FALSE(store::conexao);
    EXPECT_EQ(store::tentativasconexao, 20);
    EXPECT_EQ(clock_.sleeps(), 19);
    EXPECT_EQ(clock_.slept_ms(), 19 * 800);
    const auto boxes = prompts_.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].title, u"Erro"_s);
    EXPECT_EQ(boxes[0].style, platform::critical);
    EXPECT_TRUE(boxes[0].text.startsWith(mensagem)) << qPrintable(boxes[0].text);
    EXPECT_GT(boxes[0].text.size(), mensagem.size());
    EXPECT_EQ(store::setting(store::secao_config, u"EmRede"_s, QString()), u"0"_s);
    EXPECT_EQ(store::setting(store::secao_config, u"RedeLocal"_s, QString()), u"SemRede"_s);
    EXPECT_EQ(store::setting(store::secao_config, u"BackupID"_s, QString()), u"0"_s);
    // the next connection uses the local file
    prompts_.clear();
    store::conectarbanco();
    EXPECT_TRUE(store::conexao);
    EXPECT_TRUE(prompts_.records().empty());
}

TEST_F(conexao, files_that_are_not_data_files_fail_the_same_way) {
    const QByteArray contents[] = {QByteArray("SQLite format 3\0", 16) + QByteArray(4080, '\0'),
                                   QByteArray(5000, '\x5a'), QByteArray()};
    for (const QByteArray& c : contents) {
        QFile f(path(u"dados.qntbd"_s));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(c);
        f.close();
        prompts_.clear();
        store::conectarbanco();
        EXPECT_FALSE(store::conexao);
        ASSERT_EQ(prompts_.boxes().size(), 1u);
        EXPECT_TRUE(prompts_.boxes()[0].text.startsWith(mensagem));
    }
}

TEST_F(conexao, network_path_is_used_as_it_stands) {
    QFile::copy(path(u"dados.qntbd"_s), path(u"compartilhado.qntbd"_s));
    store::save_setting(store::secao_config, u"RedeLocal"_s, path(u"compartilhado.qntbd"_s));
    QFile::remove(path(u"dados.qntbd"_s));
    store::conectarbanco();
    EXPECT_TRUE(store::conexao);
    EXPECT_EQ(store::caminho_dados(store::arquivo_dados), path(u"compartilhado.qntbd"_s));
}

} // namespace
