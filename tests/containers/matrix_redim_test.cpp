#include "containers/element_types.h"
#include "support/automation_watch.h"
#include "support/host_arrays.h"

#include <boost/numeric/conversion/cast.hpp>
#include <new>

using namespace korvel::test;

namespace
{

template <class T>
class MatrixRedim : public ::testing::Test
{
};
TYPED_TEST_SUITE(MatrixRedim, all_elements);

template <class T>
class AttachedMatrixRedim : public ::testing::Test
{
};
TYPED_TEST_SUITE(AttachedMatrixRedim, numeric_elements);

} // namespace

TYPED_TEST(MatrixRedim, AnOwnedBlockThatIsLargeEnoughStays)
{
    auto m = numbered<TypeParam>(2, 3);
    const TypeParam* block = m.data;
    m.Redim(3, 2);
    expectShape(m, 3, 2, 6);
    EXPECT_EQ(m.data, block);
    EXPECT_EQ(linear(m), elements<TypeParam>(6));

    m.Redim(2, 1);
    expectShape(m, 2, 1, 2);
    EXPECT_EQ(m.data, block);
    EXPECT_EQ(m.capacity, 6u);

    m.Redim(1, 6);
    EXPECT_EQ(m.data, block);
    EXPECT_EQ(linear(m), elements<TypeParam>(6));
}

TYPED_TEST(MatrixRedim, ATooSmallOwnedBlockIsReplaced)
{
    auto m = numbered<TypeParam>(2, 3);
    m.Redim(7, 1);
    expectShape(m, 7, 1, 7);
    EXPECT_EQ(m.capacity, 7u);
    EXPECT_TRUE(m.bOwner);
    m.Redim(4, 2, element<TypeParam>(3));
    EXPECT_EQ(m.capacity, 8u);
    EXPECT_EQ(linear(m), std::vector<TypeParam>(8, element<TypeParam>(3)));
}

TYPED_TEST(MatrixRedim, AnEmptyObjectGetsABlock)
{
    matrix<TypeParam> m;
    m.Redim(2, 2, element<TypeParam>(5));
    expectShape(m, 2, 2, 4);
    EXPECT_EQ(m.capacity, 4u);
    EXPECT_EQ(linear(m), std::vector<TypeParam>(4, element<TypeParam>(5)));
}

TYPED_TEST(MatrixRedim, AColumnCountBelowOneBecomesOne)
{
    for (const int cols : {0, -1, -100}) {
        auto m = numbered<TypeParam>(1, 2);
        m.Redim(2, cols);
        expectShape(m, 2, 1, 2);
        EXPECT_EQ(linear(m), elements<TypeParam>(2));
    }
}

TYPED_TEST(MatrixRedim, TheSameShapeKeepsEverything)
{
    auto m = numbered<TypeParam>(2, 3);
    const TypeParam* block = m.data;
    m.Redim(2, 3);
    EXPECT_EQ(m.data, block);
    EXPECT_EQ(linear(m), elements<TypeParam>(6));
    m.capacity = 0; // which only a new shape asks for
    m.Redim(2, 3, element<TypeParam>(4));
    EXPECT_EQ(m.data, block);
    EXPECT_EQ(linear(m), std::vector<TypeParam>(6, element<TypeParam>(4)));
}

TYPED_TEST(MatrixRedim, TheValueMayBeAnElementOfTheOldBlock)
{
    auto m = numbered<TypeParam>(2, 1);
    m.Redim(100, 1, m.data[1]);
    EXPECT_EQ(linear(m), std::vector<TypeParam>(100, element<TypeParam>(2)));
}

TYPED_TEST(MatrixRedim, TheSpareSlotsStay)
{
    auto m = numbered<TypeParam>(2, 1);
    m.oobValue = element<TypeParam>(8);
    m.spareValue = element<TypeParam>(9);
    m.Redim(3, 3, element<TypeParam>(1));
    EXPECT_EQ(m.oobValue, element<TypeParam>(8));
    EXPECT_EQ(m.spareValue, element<TypeParam>(9));
}

TYPED_TEST(MatrixRedim, ABorrowedObjectStaysAsItIs)
{
    auto values = elements<TypeParam>(6);
    auto m = viewOf(2, 2, values.data());
    m.Redim(3, 2);
    expectShape(m, 2, 2, 4);
    EXPECT_EQ(m.capacity, 4u);
    EXPECT_EQ(m.data, values.data());
    EXPECT_FALSE(m.bOwner);
    EXPECT_EQ(values, elements<TypeParam>(6));

    m.Redim(1, 1, element<TypeParam>(9));
    expectShape(m, 2, 2, 4);
    auto expected = elements<TypeParam>(6);
    std::fill_n(expected.begin(), 4, element<TypeParam>(9));
    EXPECT_EQ(values, expected);
}

TYPED_TEST(MatrixRedim, AViewOfANegativeCountHasNothingToFill)
{
    auto values = elements<TypeParam>(6);
    auto m = viewOf(-1, 3, values.data() + 3);
    m.Redim(-1, 3, element<TypeParam>(9));
    expectShape(m, -1, 3, static_cast<std::uint64_t>(-3));
    EXPECT_EQ(values, elements<TypeParam>(6));
}

TYPED_TEST(MatrixRedim, ACountThatCannotBeHadFails)
{
    auto m = numbered<TypeParam>(2, 2);
    EXPECT_THROW(m.Redim(65536, 32768), std::bad_alloc);
    EXPECT_THROW(m.Redim(-1, 1), std::bad_alloc);
    m.Redim(2, 1, element<TypeParam>(1));
    EXPECT_EQ(linear(m), std::vector<TypeParam>(2, element<TypeParam>(1)));
}

TYPED_TEST(AttachedMatrixRedim, GrowsTheCallersArray)
{
    const automation_watch watch;
    {
        const host_array array({2, 2}, elements<TypeParam>(4));
        matrix<TypeParam> m(array.get());
        m.Redim(3, 4, element<TypeParam>(6));
        expectShape(m, 3, 4, 12);
        EXPECT_EQ(array.count(0), 3u);
        EXPECT_EQ(array.count(1), 4u);
        EXPECT_EQ(m.data, array->pvData);
        EXPECT_FALSE(m.bOwner);
        EXPECT_EQ(array.template numbers<TypeParam>(12), std::vector<TypeParam>(12, element<TypeParam>(6)));
        EXPECT_TRUE(watch.blocks(2, 1));
    }
    EXPECT_TRUE(watch.nothingAlive());
    EXPECT_TRUE(watch.arrays(1, 1));
}

TYPED_TEST(AttachedMatrixRedim, ShrinksTheCallersArrayInItsBlock)
{
    const host_array array({2, 3}, elements<TypeParam>(6));
    void* block = array->pvData;
    matrix<TypeParam> m(array.get());
    m.Redim(2, 2);
    expectShape(m, 2, 2, 4);
    EXPECT_EQ(array.count(0), 2u);
    EXPECT_EQ(array.count(1), 2u);
    EXPECT_EQ(array->pvData, block);
    EXPECT_EQ(linear(m), elements<TypeParam>(4));
    // An array keeps no capacity: back to the old count means a fresh block.
    m.Redim(2, 3, element<TypeParam>(1));
    EXPECT_EQ(m.data, array->pvData);
    EXPECT_EQ(linear(m), std::vector<TypeParam>(6, element<TypeParam>(1)));
}

TYPED_TEST(AttachedMatrixRedim, LowerBoundsStay)
{
    const host_array array(elementType<TypeParam>(), {2, 2}, -3);
    matrix<TypeParam> m(array.get());
    m.Redim(5, 6);
    EXPECT_EQ(array->rgsabound[0].lLbound, -3);
    SAFEARRAYBOUND* bounds = &array->rgsabound[0];
    EXPECT_EQ(bounds[1].lLbound, -3);
}

TYPED_TEST(AttachedMatrixRedim, AVectorTakesAnotherLengthButNoSecondColumn)
{
    const host_array array({2}, elements<TypeParam>(2));
    matrix<TypeParam> m(array.get());
    m.Redim(5, 0, element<TypeParam>(2));
    expectShape(m, 5, 1, 5);
    EXPECT_EQ(array.count(0), 5u);

    void* block = array->pvData;
    m.Redim(2, 2);
    expectShape(m, 2, 2, 4);
    EXPECT_EQ(array.count(0), 5u);
    EXPECT_EQ(m.data, block);
}

TYPED_TEST(AttachedMatrixRedim, ATableOfOneColumnKeepsItsTwoDimensions)
{
    const host_array array({2, 3}, elements<TypeParam>(6));
    matrix<TypeParam> m(array.get());
    m.Redim(4, 1);
    expectShape(m, 4, 1, 4);
    EXPECT_EQ(array->cDims, 2);
    EXPECT_EQ(array.count(0), 4u);
    EXPECT_EQ(array.count(1), 1u);
}

TYPED_TEST(AttachedMatrixRedim, TheArraysShapeDecidesNotTheObjects)
{
    const host_array array({2, 2}, elements<TypeParam>(4));
    matrix<TypeParam> m(array.get());
    m.nbrows = 1;
    m.nbcols = 1;
    m.nbElem = 1;
    void* block = array->pvData;
    m.Redim(2, 2);
    expectShape(m, 2, 2, 4);
    EXPECT_EQ(array->pvData, block);
    EXPECT_EQ(linear(m), elements<TypeParam>(4));

    m.nbrows = 3;
    m.nbElem = 6;
    m.Redim(3, 2);
    EXPECT_EQ(array.count(0), 3u);
    EXPECT_EQ(m.data, array->pvData);
}

TYPED_TEST(AttachedMatrixRedim, AFixedArrayStaysWhileTheCountsGoOn)
{
    const host_array array({2, 3}, elements<TypeParam>(6));
    array->fFeatures |= FADF_FIXEDSIZE;
    void* block = array->pvData;
    matrix<TypeParam> m(array.get());
    m.Redim(1, 2);
    expectShape(m, 1, 2, 2);
    EXPECT_EQ(array.count(0), 2u);
    EXPECT_EQ(array.count(1), 3u);
    EXPECT_EQ(m.data, block);
    EXPECT_FALSE(m.bOwner);
    m.Redim(4, 4);
    expectShape(m, 4, 4, 16);
    EXPECT_EQ(m.data, block);
    EXPECT_EQ(array.template numbers<TypeParam>(6), elements<TypeParam>(6));
}

TYPED_TEST(AttachedMatrixRedim, AnArrayOfThreeDimensionsIsNotResized)
{
    const host_array array({2, 3, 2}, elements<TypeParam>(12));
    matrix<TypeParam> m(array.get());
    void* block = array->pvData;
    m.Redim(2, 2);
    expectShape(m, 2, 2, 4);
    EXPECT_EQ(array.count(1), 3u);
    EXPECT_EQ(m.data, block);
}

TYPED_TEST(AttachedMatrixRedim, AnArrayThatCannotBeHadIsLeftAlone)
{
    const host_array array({2, 2}, elements<TypeParam>(4));
    matrix<TypeParam> m(array.get());
    void* block = array->pvData;
    m.Redim(0x7FFFFFFF, 0x7FFFFFFF);
    EXPECT_EQ(array->pvData, block);
    EXPECT_EQ(array.count(0), 2u);
    EXPECT_EQ(array.count(1), 2u);
    expectShape(m, 0x7FFFFFFF, 0x7FFFFFFF, 1);
    EXPECT_EQ(array.template numbers<TypeParam>(4), elements<TypeParam>(4));
}

TYPED_TEST(AttachedMatrixRedim, ADestroyedObjectLeavesTheArray)
{
    const automation_watch watch;
    const host_array array({2}, elements<TypeParam>(2));
    {
        const matrix<TypeParam> m(array.get());
    }
    EXPECT_TRUE(watch.arrays(1, 0));
    EXPECT_TRUE(watch.blocks(1, 0));
    EXPECT_EQ(array.template numbers<TypeParam>(2), elements<TypeParam>(2));
}

TEST(AttachedMatrixRedim, AnArrayWithTooLargeACountOverflows)
{
    const host_array array({2, 2}, elements<double>(4));
    matrix<double> m(array.get());
    array.count(1) = 0x80000000;
    EXPECT_THROW(m.Redim(2, 2), boost::numeric::positive_overflow);
    array.count(1) = 2;
    expectShape(m, 2, 2, 4);
}
