#include "platform/widgets/list_view.h"

#include <QApplication>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Rows whose every character fits in a byte are kept a byte a character, the others two bytes:
// both read back as they went in, also after an edit, a removal and a sort.
TEST(list_view_rows, texts_read_back_as_they_went_in) {
    list_view l;
    l.add_column(u"Código"_s, 600);
    l.add_column(u"Descrição"_s, 1200);
    l.add_column(u"Valor"_s, 900, list_view::tag_number);
    const std::vector<QStringList> rows = {
        {u"3"_s, u"Manutenção ÿ"_s, u"R$ 1.234,56"_s},
        {u"1"_s, u"Aluguel € 🙂"_s, u"R$ 2,00"_s},
        {u"2"_s, QString(), u"R$ -5,00"_s},
        {u"4"_s, u"sem acento"_s}, // a short row: the missing cell reads empty
    };
    l.add_rows(std::vector<QStringList>(rows));
    ASSERT_EQ(l.row_count(), 4);
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 3; ++c)
            EXPECT_EQ(l.text(r, c), rows[std::size_t(r)].value(c)) << r << " " << c;

    l.set_text(0, 1, u"Ônibus → centro"_s);
    EXPECT_EQ(l.text(0, 1), u"Ônibus → centro"_s);
    EXPECT_EQ(l.text(0, 2), u"R$ 1.234,56"_s);
    l.remove_row(2);
    l.ordenarlista(2); // by amount, ascending
    const QStringList order = {l.text(0, 0), l.text(1, 0), l.text(2, 0)};
    EXPECT_EQ(order, (QStringList{u"4"_s, u"1"_s, u"3"_s}));
    EXPECT_EQ(l.text(1, 1), u"Aluguel € 🙂"_s);
    l.ordenarlista(1); // a new column sorts ascending, without regard to case
    EXPECT_EQ(l.text(0, 1), u"Aluguel € 🙂"_s);
    l.clear_rows();
    EXPECT_EQ(l.row_count(), 0);
}

} // namespace
