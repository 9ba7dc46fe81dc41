#include "platform/row_table.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(row_table, cells_come_back_as_written_through_order_changes) {
    platform::row_table t;
    t.add_row({u"1"_s, u"Água e energia"_s, QString(), u"R$ 1.234,56"_s});
    t.add_cell(QByteArrayView("2"));
    t.add_cell(QByteArrayView("\xc3\xa9 \xe2\x82\xac")); // "é €" as stored UTF-8
    t.end_row();
    t.add_row({});
    // a long cell and many rows cross the block boundary
    const QString longo(300000, u'ç');
    for (int i = 0; i < 5; ++i)
        t.add_row({QString::number(i + 3), longo});

    ASSERT_EQ(t.size(), 8u);
    EXPECT_EQ(t.row(0), (QStringList{u"1"_s, u"Água e energia"_s, QString(), u"R$ 1.234,56"_s}));
    EXPECT_EQ(t.text(1, 1), u"é €"_s);
    EXPECT_EQ(t.cell_count(2), 0);
    EXPECT_EQ(t.text(2, 0), QString());
    EXPECT_EQ(t.text(0, 9), QString());
    EXPECT_EQ(t.text(7, 1), longo);

    // rows not written are left out of an order; a changed cell keeps its place
    t.set_order({7, 0, 99, 1});
    ASSERT_EQ(t.size(), 3u);
    t.set_text(1, 5, u"novo"_s);
    EXPECT_EQ(t.row(1),
              (QStringList{u"1"_s, u"Água e energia"_s, QString(), u"R$ 1.234,56"_s, QString(), u"novo"_s}));
    EXPECT_EQ(t.text(0, 0), u"7"_s);
    EXPECT_EQ(t.text(2, 0), u"2"_s);
    t.remove(0);
    EXPECT_EQ(t.text(0, 0), u"1"_s);
    EXPECT_EQ(t.size(), 2u);
}
