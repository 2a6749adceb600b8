#include "containers/element_types.h"

#include <limits>

using namespace korvel::test;

namespace
{

template <class T>
class MatrixAccess : public ::testing::Test
{
};
TYPED_TEST_SUITE(MatrixAccess, all_elements);

} // namespace

TYPED_TEST(MatrixAccess, LinearReadsInsideReachTheBlock)
{
    const auto m = numbered<TypeParam>(2, 3);
    for (int k = 0; k < 6; ++k) {
        EXPECT_EQ(m[k], element<TypeParam>(1 + k));
    }
}

TYPED_TEST(MatrixAccess, LinearReadsOutsideReachTheSpareSlot)
{
    const auto m = numbered<TypeParam>(3, 1);
    for (const std::int64_t k :
         {std::int64_t{3}, std::int64_t{5}, std::int64_t{-1}, std::int64_t{1} << 32,
          std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()}) {
        EXPECT_EQ(m[k], outside<TypeParam>()) << k;
        EXPECT_EQ(&m[k], &m.oobValue) << k;
    }
    const matrix<TypeParam> empty;
    EXPECT_EQ(&empty[0], &empty.oobValue);
}

TYPED_TEST(MatrixAccess, ALinearWriteInsideLeavesTheSpareSlot)
{
    auto m = numbered<TypeParam>(2, 2);
    m[3] = element<TypeParam>(9);
    EXPECT_EQ(m.data[3], element<TypeParam>(9));
    EXPECT_EQ(m.oobValue, outside<TypeParam>());
}

TYPED_TEST(MatrixAccess, ALinearWriteOutsideLandsInTheSpareSlot)
{
    auto m = numbered<TypeParam>(2, 2);
    m[4] = element<TypeParam>(8);
    EXPECT_EQ(m.oobValue, element<TypeParam>(8));
    m[-1] = element<TypeParam>(9);
    EXPECT_EQ(m.oobValue, element<TypeParam>(9));
    EXPECT_EQ(linear(m), elements<TypeParam>(4));
    EXPECT_EQ(m[100], element<TypeParam>(9));
}

TYPED_TEST(MatrixAccess, RowAndColumnReadColumnMajor)
{
    const auto m = numbered<TypeParam>(2, 3);
    EXPECT_EQ(m.getElement(0, 0), element<TypeParam>(1));
    EXPECT_EQ(m.getElement(1, 0), element<TypeParam>(2));
    EXPECT_EQ(m.getElement(0, 2), element<TypeParam>(5));
    EXPECT_EQ(m.vbget(1, 1), element<TypeParam>(1));
    EXPECT_EQ(m.vbget(2, 3), element<TypeParam>(6));
}

TYPED_TEST(MatrixAccess, RowAndColumnPastTheUpperBoundsReachTheSpareSlot)
{
    const auto m = numbered<TypeParam>(2, 3);
    EXPECT_EQ(&m.getElement(2, 0), &m.oobValue);
    EXPECT_EQ(&m.getElement(0, 3), &m.oobValue);
    EXPECT_EQ(&m.getElement(std::numeric_limits<int>::max(), std::numeric_limits<int>::max()), &m.oobValue);
    EXPECT_EQ(&m.vbget(3, 1), &m.oobValue);
    EXPECT_EQ(&m.vbget(1, 4), &m.oobValue);
}

TYPED_TEST(MatrixAccess, ANegativeRowOrColumnPassesTheTest)
{
    auto m = numbered<TypeParam>(2, 3);
    EXPECT_EQ(&m.getElement(-1, 1), &m.data[1]);
    EXPECT_EQ(&m.vbget(0, 2), &m.data[1]);

    // The block seen from its second column on: column -1 reaches the first one.
    auto* middle = m.data + 2;
    const auto view = viewOf(2, 2, middle);
    EXPECT_EQ(&view.getElement(0, -1), m.data);
    EXPECT_EQ(&view.getElement(-1, 0), m.data + 1);
    m.setElement(-1, 1, element<TypeParam>(9));
    EXPECT_EQ(m.data[1], element<TypeParam>(9));
}

TYPED_TEST(MatrixAccess, EveryStoreLeavesItsValueInTheSpareSlot)
{
    auto m = numbered<TypeParam>(2, 2);
    m.setElement(1, 0, element<TypeParam>(7));
    EXPECT_EQ(m.data[1], element<TypeParam>(7));
    EXPECT_EQ(m.oobValue, element<TypeParam>(7));
    m.vbset(1, 2, element<TypeParam>(8));
    EXPECT_EQ(m.data[2], element<TypeParam>(8));
    EXPECT_EQ(m.oobValue, element<TypeParam>(8));
    EXPECT_EQ(m.spareValue, TypeParam{});
}

TYPED_TEST(MatrixAccess, AStoreOutsideOnlyReachesTheSpareSlot)
{
    auto m = numbered<TypeParam>(2, 2);
    m.setElement(2, 0, element<TypeParam>(7));
    EXPECT_EQ(m.oobValue, element<TypeParam>(7));
    m.setElement(0, 2, element<TypeParam>(8));
    EXPECT_EQ(m.oobValue, element<TypeParam>(8));
    m.vbset(3, 1, element<TypeParam>(9));
    EXPECT_EQ(m.oobValue, element<TypeParam>(9));
    EXPECT_EQ(linear(m), elements<TypeParam>(4));
}

TYPED_TEST(MatrixAccess, AnElementCanBeStoredFromItsOwnSpareSlot)
{
    auto m = numbered<TypeParam>(2, 2);
    m.oobValue = element<TypeParam>(9);
    m.setElement(0, 0, m.oobValue);
    EXPECT_EQ(m.data[0], element<TypeParam>(9));
    m.setElement(1, 1, m.data[1]);
    EXPECT_EQ(m.data[3], element<TypeParam>(2));
    EXPECT_EQ(m.oobValue, element<TypeParam>(2));
}

TEST(MatrixAccess, ReadPastTheEndGivesTheLastValueSet)
{
    matrix<double> m(3, 1, 2.0);
    EXPECT_EQ(m[5], -1.0);
    m.setElement(0, 0, 7.0);
    EXPECT_EQ(m[5], 7.0);
}
