#include "shell/column_layout.h"

#include "platform/settings.h"
#include "support/fixture.h"
#include "support/golden.h"

#include <QFile>

using namespace Qt::StringLiterals;
using shell::ledger;

namespace {

class column_layout : public support::fixture {
protected:
    QString read_file(const QString& name) {
        QFile f(path(name));
        if (!f.open(QIODevice::ReadOnly)) return {};
        return QString::fromUtf8(f.readAll());
    }
    void write_file(const QString& name, const QByteArray& bytes) {
        QFile f(path(name));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(bytes);
    }
};

} // namespace

TEST(column_defs, the_columns_of_the_three_lists) {
    QString out;
    for (const ledger which : shell::all_ledgers) {
        out += shell::traits(which).lista + u":\n"_s;
        for (const auto& c : shell::ledger_columns(which))
            out += u"  %1 \"%2\" %3 tag %4%5\n"_s.arg(c.key, c.heading, c.default_width)
                       .arg(c.tag)
                       .arg(c.align == Qt::AlignRight ? u" right"_s : QString());
    }
    EXPECT_TRUE(support::matches_golden(u"shell/ledger_columns.txt"_s, out));
}

TEST_F(column_layout, a_missing_file_gives_the_defaults) {
    const auto l = shell::read_layout(ledger::pagar);
    EXPECT_EQ(l, shell::default_layout(ledger::pagar));
    ASSERT_EQ(l.widths.size(), 10u);
    EXPECT_EQ(l.widths[0], 0.0);
    EXPECT_EQ(l.widths[1], double(1319.8111f));
    EXPECT_EQ(l.widths[9], double(3240.0003f));
    EXPECT_EQ(l.positions, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    const auto b = shell::read_layout(ledger::bancario);
    EXPECT_EQ(b.widths[2], double(2940.0948f));
    EXPECT_EQ(b.positions.size(), 8u);
    EXPECT_FALSE(QFile::exists(path(u"pagar.ini"_s)));
}

TEST_F(column_layout, written_layout_reads_back) {
    shell::column_layout l = shell::default_layout(ledger::receber);
    l.widths[1] = 1500;
    l.widths[4] = 2345.678;
    l.positions = {1, 3, 2, 4, 5, 6, 7, 8, 10, 9};
    shell::write_layout(ledger::receber, l);

    const QString text = read_file(u"receber.ini"_s);
    EXPECT_TRUE(text.startsWith(u"[TAMANHO]\nid=0\ndata=1500\ndescricao=4190,173\ndocumento=1839,685\n"
                                u"fornecedor=2345,678\n"_s))
        << qPrintable(text);
    EXPECT_TRUE(text.contains(u"[POSICAO]\nposicao1=1\nposicao2=3\nposicao3=2\n"_s)) << qPrintable(text);
    EXPECT_TRUE(text.contains(u"posicao10=9\n"_s));
    EXPECT_FALSE(QFile::exists(path(u"pagar.ini"_s)));

    const auto back = shell::read_layout(ledger::receber);
    EXPECT_EQ(back.positions, l.positions);
    EXPECT_EQ(back.widths[1], 1500.0);
    EXPECT_EQ(back.widths[4], double(2345.678f));
    // a second save of what was read changes nothing
    shell::write_layout(ledger::receber, back);
    EXPECT_EQ(read_file(u"receber.ini"_s), text);

    shell::column_layout m = shell::default_layout(ledger::bancario);
    m.positions = {1, 2, 3, 4, 5, 6, 8, 7};
    shell::write_layout(ledger::bancario, m);
    EXPECT_TRUE(read_file(u"bancario.ini"_s).contains(u"info=2839,748\n"_s));
    EXPECT_EQ(shell::read_layout(ledger::bancario).positions, m.positions);
}

TEST_F(column_layout, corrupt_files_and_values_fall_back_to_the_defaults) {
    write_file(u"pagar.ini"_s, QByteArray("\x00\xff\xfe garbage\n=\n[[[\n", 18));
    EXPECT_EQ(shell::read_layout(ledger::pagar), shell::default_layout(ledger::pagar));

    write_file(u"pagar.ini"_s, "[TAMANHO]\ndata=largo\nvalor=\ndescricao=1319.8111\n[POSICAO]\n"
                               "posicao1=x\nposicao2=0\nposicao3=11\nposicao4=3,4\nposicao5=7\n");
    const auto l = shell::read_layout(ledger::pagar);
    const auto d = shell::default_layout(ledger::pagar);
    EXPECT_EQ(l.widths[1], d.widths[1]);
    EXPECT_EQ(l.widths[6], d.widths[6]);
    // written under another locale: the point reads as a thousands mark
    EXPECT_EQ(l.widths[2], double(13198111.0f));
    EXPECT_EQ(l.positions[0], 1);
    EXPECT_EQ(l.positions[1], 2);
    EXPECT_EQ(l.positions[2], 3);
    EXPECT_EQ(l.positions[3], 3);
    EXPECT_EQ(l.positions[4], 7);
}

// A layout file costs one read to load and one read and one write to save, whatever its size.
TEST_F(column_layout, a_layout_is_read_and_written_in_one_pass) {
    QByteArray big = "[TAMANHO]\ndata=2000\n";
    for (int i = 0; i < 20000; ++i)
        big += "lixo" + QByteArray::number(i) + "=x\n";
    write_file(u"pagar.ini"_s, big);
    const int reads = platform::ini_reads(), writes = platform::ini_writes();
    shell::column_layout l = shell::read_layout(ledger::pagar);
    EXPECT_EQ(l.widths[1], 2000.0);
    EXPECT_EQ(platform::ini_reads() - reads, 1);
    l.widths[1] = 1500;
    shell::write_layout(ledger::pagar, l);
    EXPECT_EQ(platform::ini_reads() - reads, 2);
    EXPECT_EQ(platform::ini_writes() - writes, 1);
    EXPECT_EQ(shell::read_layout(ledger::pagar).widths[1], 1500.0);
    EXPECT_TRUE(read_file(u"pagar.ini"_s).contains(u"lixo19999=x"_s));
}
