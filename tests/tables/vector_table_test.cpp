#include "tables/vector_table.h"

#include "containers/element_types.h"
#include "reference/table_maps.h"
#include "tables/map_twins.h"

#include <gtest/gtest.h>
#include <utility>

using namespace korvel::test;
namespace plain = korvel::reference;

TEST(VectorTable, BetweenTableAndVectorAreThePlainLoops)
{
    forRandomTables([](random_tables given) {
        table x = given.input();
        table v = given.vector();
        table pattern = given.input();
        const auto [rows, cols] = std::pair{given.rows, given.cols};
        expectAlike(
            given.vector(), [&, r = rows, c = cols](table& out) { MatToVect(&x, r, c, &out); },
            [&, r = rows, c = cols](table& out) { plain::toVector(x, r, c, out); });
        expectAlike(
            given.input(), [&, r = rows, c = cols](table& out) { VectToMat(&v, &pattern, r, c, &out); },
            [&, r = rows, c = cols](table& out) { plain::toTable(v, pattern, r, c, out); });
        expectAlike(
            given.vector(), [&, r = rows, c = cols](table& out) { M_CopyTabletoVectorByRow(&x, r, c, &out); },
            [&, r = rows, c = cols](table& out) { plain::toVectorByRow(x, r, c, out); });
        expectAlike(
            given.input(), [&, r = rows, c = cols](table& out) { M_CopyVectortoTableByRow(&v, r, c, &out); },
            [&, r = rows, c = cols](table& out) { plain::toTableByRow(v, r, c, out); });
    });
}

TEST(VectorTable, TheDiagonalBecomesAVector)
{
    const auto x = numbered<double>(2, 3); // 1 2, 3 4, 5 6
    matrix<double> v(7, 1, 9.0);
    M_DiagToVect(x, 2, 3, v);
    EXPECT_EQ(v.nbrows, 2);
    EXPECT_EQ(v.nbcols, 1);
    EXPECT_EQ(v.data[0], 1.0);
    EXPECT_EQ(v.data[1], 4.0);
    EXPECT_EQ(v.oobValue, 4.0);
    M_DiagToVect(x, 3, 3, v);
    EXPECT_EQ(v.nbrows, 3);
    EXPECT_EQ(v.data[2], -1.0) << "a cell that the table does not have";
    M_DiagToVect(x, -1, 3, v);
    EXPECT_EQ(v.nbElem, 0u);
}

TEST(VectorTable, TextsAreLaidOutByRow)
{
    matrix<text> x(2, 3, text());
    for (int k = 0; k < 6; ++k) {
        x.data[k] = text(1, static_cast<char16_t>(u'a' + k));
    }
    matrix<text> v(6, 1, text());
    M_CopyTabletoVectorByRow(&x, 2, 3, &v);
    EXPECT_EQ(std::vector<text>(v.data, v.data + 6), (std::vector<text>{u"a", u"c", u"e", u"b", u"d", u"f"}));
    matrix<text> back(2, 3, text());
    M_CopyVectortoTableByRow(&v, 2, 3, &back);
    EXPECT_EQ(std::vector<text>(back.data, back.data + 6), std::vector<text>(x.data, x.data + 6));
}
