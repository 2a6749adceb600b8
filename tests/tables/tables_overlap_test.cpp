// Routines whose tables may be the same table, or share its block: cells are read as they were before the
// call.

#include "containers/element_types.h"
#include "support/bits.h"
#include "support/random_cells.h"
#include "tables/blocks.h"
#include "tables/cell_maps.h"
#include "tables/columns.h"
#include "tables/merge.h"
#include "tables/row_maps.h"
#include "tables/text_rows.h"

#include <vector>

using namespace korvel::test;

namespace
{

template <class T>
class Overlap : public ::testing::Test
{
};
using element_kinds = ::testing::Types<double, int, short int, text>;
TYPED_TEST_SUITE(Overlap, element_kinds);

} // namespace

TYPED_TEST(Overlap, APartOfAColumnMovesToAnyPlaceInIt)
{
    constexpr int rows = 9;
    for (int from = 1; from <= rows; ++from) {
        for (int to = from; to <= rows; ++to) {
            for (int target = 1; target + (to - from) <= rows; ++target) {
                auto x = numbered<TypeParam>(rows, 2);
                const auto before = numbered<TypeParam>(rows, 2);
                V_Duplicate(&x, 2, from, to, &x, target, 2);
                auto expected = linear(before);
                for (int i = from; i <= to; ++i) {
                    expected[static_cast<std::size_t>(rows + target + i - from - 1)] =
                        before.getElement(i - 1, 1);
                }
                ASSERT_EQ(linear(x), expected) << from << " to " << to << " at " << target;
                ASSERT_EQ(x.oobValue, before.getElement(to - 1, 1));
            }
        }
    }
}

TEST(OverlappingTables, ABlockMovesWithinTheBlockThatTwoTablesShare)
{
    const auto before = numbered<double>(5, 4);
    for (const int row : {1, 2, 3}) {
        for (const int col : {1, 2}) {
            auto x = numbered<double>(5, 4);
            auto sharing = viewOf(5, 4, x.data);
            M_CopyPasteBlock(&x, 2, 4, 1, 3, &sharing, row, col);
            matrix<double> expected(before);
            for (int j = 0; j < 3; ++j) {
                for (int i = 0; i < 3; ++i) {
                    expected.setElement(row - 1 + i, col - 1 + j, before.getElement(1 + i, j));
                }
            }
            EXPECT_EQ(linear(x), linear(expected)) << row << ", " << col;
            EXPECT_EQ(sharing.oobValue, before.getElement(3, 2));
            EXPECT_EQ(x.oobValue, -1.0) << "what is only read keeps its spare slot";
        }
    }
}

TEST(OverlappingTables, WhatIsReadOutsideOfASharedBlockIsTheSpareSlotAsItWas)
{
    auto x = numbered<double>(2, 2); // 1 2, 3 4
    x.oobValue = 8.0;
    M_CopyPasteBlock(&x, 2, 3, 1, 2, &x, 1, 1);
    EXPECT_EQ(linear(x), (std::vector<double>{2, 8, 4, 8}));
    auto words = numbered<text>(2, 1);
    words.oobValue = u"spare";
    M_CopyPasteBlockStr(&words, 2, 3, 1, 1, &words, 1, 1);
    EXPECT_EQ(linear(words), (std::vector<text>{element<text>(2), u"spare"}));
}

TEST(OverlappingTables, MapsOfCellsMayReplaceWhatTheyRead)
{
    const auto expectInPlace = [](auto map) {
        auto x = numbered<double>(3, 4);
        x.data[5] = -2.0;
        auto inPlace = x;
        matrix<double> apart(3, 4, 0.0);
        map(&x, 3, 4, &apart);
        map(&inPlace, 3, 4, &inPlace);
        EXPECT_EQ(linear(inPlace), linear(apart));
        EXPECT_SAME_BITS(inPlace.oobValue, apart.oobValue);
    };
    expectInPlace(M_LogMatrix);
    expectInPlace(M_Log10Matrix);
    expectInPlace(M_SquareRootAij);

    auto x = numbered<double>(2, 3);
    auto weights = vectorOf<double>({1, 10, 100});
    matrix<double> apart(2, 1, 0.0);
    ComputeNewVar(&x, 2, 3, &weights, &apart);
    ComputeNewVar(&x, 2, 3, &weights, &x);
    EXPECT_EQ(linear(x), (std::vector<double>{apart.data[0], apart.data[1], 3, 4, 5, 6}));
}

TEST(OverlappingTables, JoinedTextsMayReplaceTheFirstColumn)
{
    auto x = numbered<text>(2, 3);
    matrix<text> apart(2, 1, text());
    M_MergeStringsByRow(&x, 2, 3, &apart);
    const auto before = linear(x);
    M_MergeStringsByRow(&x, 2, 3, &x);
    EXPECT_EQ(linear(x),
              (std::vector<text>{apart.data[0], apart.data[1], before[2], before[3], before[4], before[5]}));
}

TEST(OverlappingTables, ATableIsMergedWithItself)
{
    auto x = numbered<double>(2, 2); // 1 2, 3 4
    matrix<double> out;
    auto* result = &out;
    HMergeTables(&x, 2, 2, &x, 2, 2, result);
    EXPECT_EQ(linear(out), (std::vector<double>{1, 2, 3, 4, 1, 2, 3, 4}));
    auto vector = numbered<double>(4, 1);
    VMergeVectors(&vector, 4, &vector, 3, &out);
    EXPECT_EQ(linear(out), (std::vector<double>{1, 2, 3, 4, 1, 2, 3}));

    auto wide = numbered<double>(2, 4); // 1 2, 3 4, 5 6, 7 8
    HMergeTables(&wide, 2, 2, &wide, 2, 2);
    EXPECT_EQ(linear(wide), (std::vector<double>{1, 2, 3, 4, 1, 2, 3, 4}));
    auto tall = numbered<double>(6, 1);
    VMergeVectors2(&tall, 3, &tall, 3);
    EXPECT_EQ(linear(tall), (std::vector<double>{1, 2, 3, 1, 2, 3}));
}
