#include "shell/tips.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString write_file(const QTemporaryDir& dir, const QByteArray& bytes) {
    const QString p = dir.path() + u"/dicas.txt"_s;
    QFile f(p);
    f.open(QIODevice::WriteOnly | QIODevice::Truncate);
    f.write(bytes);
    return p;
}

} // namespace

TEST(tips, each_line_of_the_file_is_one_tip) {
    QTemporaryDir dir;
    const struct {
        QByteArray bytes;
        QStringList lines;
    } cases[] = {
        {"uma\r\nduas\r\n", {u"uma"_s, u"duas"_s}},
        {"uma\nduas", {u"uma"_s, u"duas"_s}},
        {"uma\rduas\r", {u"uma"_s, u"duas"_s}},
        // empty lines in the middle are tips too
        {"uma\n\n  três  \n", {u"uma"_s, QString(), u"  três  "_s}},
        {"\n", {QString()}},
        {"", {}},
        {"\xEF\xBB\xBF"
         "Cadastre o caixa: saldo e conciliação\n",
         {u"Cadastre o caixa: saldo e conciliação"_s}},
        // a file from an old editor, in the Western code page
        {"Cart\xE3o de cr\xE9"
         "dito\n",
         {u"Cartão de crédito"_s}},
    };
    for (const auto& c : cases) {
        const auto lines = shell::read_tips(write_file(dir, c.bytes));
        ASSERT_TRUE(lines.has_value()) << c.bytes.toStdString();
        EXPECT_EQ(*lines, c.lines) << c.bytes.toStdString();
    }
}

TEST(tips, no_name_no_file_and_a_folder_fail) {
    QTemporaryDir dir;
    EXPECT_FALSE(shell::read_tips(QString()).has_value());
    EXPECT_FALSE(shell::read_tips(dir.path() + u"/nao_existe.txt"_s).has_value());
    EXPECT_FALSE(shell::read_tips(dir.path()).has_value());
}

TEST(tips, missing_file_text) {
    EXPECT_EQ(shell::missing_tips_text(u"/opt/quintara/dicas.txt"_s),
              u"não foi possível encontrar o arquivo de dicas /opt/quintara/dicas.txt\n"
              u"a reinstalação do software pode corrigir o problema. "_s);
}
