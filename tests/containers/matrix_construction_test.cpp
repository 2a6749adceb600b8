#include "containers/element_types.h"
#include "support/automation_watch.h"
#include "support/host_arrays.h"

#include <boost/numeric/conversion/cast.hpp>
#include <new>
#include <type_traits>

using namespace korvel::test;

namespace
{

template <class T>
class MatrixConstruction : public ::testing::Test
{
};
TYPED_TEST_SUITE(MatrixConstruction, all_elements);

template <class T>
class NumericMatrixConstruction : public ::testing::Test
{
};
TYPED_TEST_SUITE(NumericMatrixConstruction, numeric_elements);

/** The fields that every constructor sets alike. */
template <class T>
void expectFreshSlots(const matrix<T>& m)
{
    EXPECT_EQ(m.oobValue, outside<T>());
    EXPECT_EQ(m.spareValue, T{});
    EXPECT_EQ(m.firstElem, 0);
}

template <class T>
void expectOwned(const matrix<T>& m)
{
    EXPECT_TRUE(m.bOwner);
    EXPECT_EQ(m.capacity, m.nbElem);
    EXPECT_NE(m.data, nullptr);
    EXPECT_EQ(m.safeArray, nullptr);
    expectFreshSlots(m);
}

} // namespace

TYPED_TEST(MatrixConstruction, DefaultIsEmpty)
{
    const matrix<TypeParam> m;
    expectShape(m, 0, 0, 0);
    EXPECT_EQ(m.capacity, 0u);
    EXPECT_EQ(m.data, nullptr);
    EXPECT_TRUE(m.bOwner);
    EXPECT_EQ(m.safeArray, nullptr);
    expectFreshSlots(m);
}

TYPED_TEST(MatrixConstruction, ValueFillsEveryElement)
{
    const TypeParam seven = element<TypeParam>(7);
    const matrix<TypeParam> m(3, 2, seven);
    expectShape(m, 3, 2, 6);
    expectOwned(m);
    EXPECT_EQ(linear(m), std::vector<TypeParam>(6, seven));
}

TYPED_TEST(MatrixConstruction, OwnedTablesHaveAtLeastOneColumn)
{
    for (const int cols : {0, -1, -7}) {
        const matrix<TypeParam> m(3, cols, element<TypeParam>(1));
        expectShape(m, 3, 1, 3);
        expectOwned(m);
        EXPECT_EQ(linear(m), std::vector<TypeParam>(3, element<TypeParam>(1)));
    }
    expectShape(matrix<TypeParam>(0, 0, TypeParam{}), 0, 1, 0);
    expectShape(matrix<TypeParam>(0, 5, TypeParam{}), 0, 5, 0);
}

TYPED_TEST(MatrixConstruction, ACountThatTurnsNegativeCannotBeHad)
{
    EXPECT_THROW(matrix<TypeParam>(65536, 32768, TypeParam{}), std::bad_alloc);
    EXPECT_THROW(matrix<TypeParam>(-1, 1, TypeParam{}), std::bad_alloc);
    EXPECT_EQ(korvel::elementCount(65536, 32768), 0xFFFFFFFF80000000u);
    EXPECT_EQ(korvel::elementCount(46341, 46341), 0xFFFFFFFF80001219u);
    EXPECT_EQ(korvel::elementCount(46340, 46340), 2147395600u);
}

TYPED_TEST(MatrixConstruction, CopyIsDeepAndAttachedToNothing)
{
    matrix<TypeParam> source = numbered<TypeParam>(2, 3);
    source.oobValue = element<TypeParam>(9);
    source.spareValue = element<TypeParam>(8);
    const matrix<TypeParam> copy(source);
    expectShape(copy, 2, 3, 6);
    expectOwned(copy);
    EXPECT_NE(copy.data, source.data);
    EXPECT_EQ(linear(copy), elements<TypeParam>(6));
}

TYPED_TEST(MatrixConstruction, CopyOfNothingHasOneColumn)
{
    const matrix<TypeParam> nothing;
    const matrix<TypeParam> copy(nothing);
    expectShape(copy, 0, 1, 0);
    EXPECT_TRUE(copy.bOwner);
}

TYPED_TEST(MatrixConstruction, CopyOfATableWithoutItsBlockIsZero)
{
    const auto source = viewOf(2, 2, static_cast<TypeParam*>(nullptr));
    const matrix<TypeParam> copy(source);
    expectShape(copy, 2, 2, 4);
    expectOwned(copy);
    EXPECT_EQ(linear(copy), std::vector<TypeParam>(4));
}

TYPED_TEST(MatrixConstruction, CopyOfAViewOfNoColumnsReadsNoneOfThem)
{
    auto values = elements<TypeParam>(3);
    const auto source = viewOf(3, 0, values.data());
    const matrix<TypeParam> copy(source);
    expectShape(copy, 3, 1, 3);
    EXPECT_EQ(linear(copy), std::vector<TypeParam>(3));
}

TYPED_TEST(MatrixConstruction, CopyOfAViewOwnsItsElements)
{
    auto values = elements<TypeParam>(6);
    const auto view = viewOf(3, 2, values.data());
    const matrix<TypeParam> m(view);
    values.assign(6, TypeParam{});
    expectShape(m, 3, 2, 6);
    expectOwned(m);
    EXPECT_EQ(linear(m), elements<TypeParam>(6));
}

TYPED_TEST(NumericMatrixConstruction, BorrowingTakesBothCountsAsTheyAre)
{
    auto values = elements<TypeParam>(6);
    {
        const matrix<TypeParam> m(3, 2, values.data(), true);
        expectShape(m, 3, 2, 6);
        EXPECT_EQ(m.data, values.data());
        EXPECT_FALSE(m.bOwner);
        EXPECT_EQ(m.capacity, 6u);
        EXPECT_EQ(m.safeArray, nullptr);
        expectFreshSlots(m);
    }
    EXPECT_EQ(values, elements<TypeParam>(6));

    const matrix<TypeParam> noColumn(3, 0, values.data(), true);
    expectShape(noColumn, 3, 0, 0);
    EXPECT_EQ(noColumn.capacity, 0u);
    const matrix<TypeParam> negative(3, -1, values.data(), true);
    expectShape(negative, 3, -1, static_cast<std::uint64_t>(-3));
}

TYPED_TEST(NumericMatrixConstruction, NotBorrowingCopies)
{
    auto values = elements<TypeParam>(6);
    const matrix<TypeParam> m(3, 2, values.data(), false);
    expectShape(m, 3, 2, 6);
    expectOwned(m);
    EXPECT_NE(m.data, values.data());
    values.assign(6, TypeParam{});
    EXPECT_EQ(linear(m), elements<TypeParam>(6));
}

TYPED_TEST(NumericMatrixConstruction, ACopyOfNoColumnsIsOneColumnOfZeros)
{
    auto values = elements<TypeParam>(3);
    for (const int cols : {0, -1}) {
        const matrix<TypeParam> m(3, cols, values.data(), false);
        expectShape(m, 3, 1, 3);
        EXPECT_EQ(linear(m), std::vector<TypeParam>(3));
    }
}

TEST(MatrixConstruction, TheThirdIntegerOfADoubleTableSaysWhetherItIsZeroed)
{
    const matrix<double> zeroed(2, 3, 0);
    expectShape(zeroed, 2, 3, 6);
    expectOwned(zeroed);
    EXPECT_EQ(linear(zeroed), std::vector<double>(6, 0.0));

    const matrix<double> asAllocated(2, 0, 1);
    expectShape(asAllocated, 2, 1, 2);
    expectOwned(asAllocated);
    EXPECT_EQ(linear(matrix<double>(3, -1, 0)), std::vector<double>(3, 0.0));
}

TEST(MatrixConstruction, IntegerTablesHaveOnlyTheZeroingForm)
{
    const matrix<int> integers(2, 3);
    expectShape(integers, 2, 3, 6);
    expectOwned(integers);
    EXPECT_EQ(linear(integers), std::vector<int>(6, 0));

    const matrix<short int> flags(4, 0);
    expectShape(flags, 4, 1, 4);
    expectOwned(flags);
    EXPECT_EQ(linear(flags), std::vector<short int>(4, 0));

    static_assert(!std::is_constructible_v<matrix<double>, int, int>);
    static_assert(!std::is_constructible_v<matrix<text>, int, int>);
}

TEST(MatrixConstruction, OtherRowCountTakesTheFirstElementsInLinearOrder)
{
    const matrix<double> source = numbered<double>(3, 2);
    const matrix<double> shorter(2, source);
    expectShape(shorter, 2, 2, 4);
    expectOwned(shorter);
    EXPECT_EQ(linear(shorter), elements<double>(4));

    const matrix<double> longer(4, source);
    expectShape(longer, 4, 2, 8);
    EXPECT_EQ(linear(longer), (std::vector<double>{1, 2, 3, 4, 5, 6, 0, 0}));

    expectShape(matrix<double>(2, matrix<double>()), 2, 1, 2);
}

TYPED_TEST(NumericMatrixConstruction, AttachingWrapsTheArraysOwnBlock)
{
    const automation_watch watch;
    {
        const host_array vector({3}, elements<TypeParam>(3));
        const matrix<TypeParam> m(vector.get());
        expectShape(m, 3, 1, 3);
        EXPECT_EQ(m.data, vector->pvData);
        EXPECT_EQ(m.safeArray, vector.get());
        EXPECT_FALSE(m.bOwner);
        EXPECT_EQ(m.capacity, 0u);
        expectFreshSlots(m);

        const host_array table(elementType<TypeParam>(), {3, 2}, -5);
        const matrix<TypeParam> two(table.get());
        expectShape(two, 3, 2, 6);
        EXPECT_EQ(two.data, table->pvData);

        const host_array solid({2, 3, 4}, elements<TypeParam>(24));
        expectShape(matrix<TypeParam>(solid.get()), 2, 3, 6);

        const host_array noRow(elementType<TypeParam>(), {2, 0});
        expectShape(matrix<TypeParam>(noRow.get()), 2, 0, 0);
    }
    EXPECT_TRUE(watch.nothingAlive());
}

TYPED_TEST(NumericMatrixConstruction, AttachingToNoArrayOrNoDataIsEmpty)
{
    const matrix<TypeParam> none(static_cast<SAFEARRAY*>(nullptr));
    expectShape(none, 0, 0, 0);
    EXPECT_TRUE(none.bOwner);
    EXPECT_EQ(none.safeArray, nullptr);

    SAFEARRAY withoutData{};
    withoutData.cDims = 1;
    withoutData.rgsabound[0] = {3, 1};
    const matrix<TypeParam> m(&withoutData);
    expectShape(m, 3, 1, 3);
    EXPECT_EQ(m.data, nullptr);
    EXPECT_FALSE(m.bOwner);
    EXPECT_EQ(m.safeArray, &withoutData);
}

TYPED_TEST(NumericMatrixConstruction, AnArrayOfNoDimensionsIsOneCell)
{
    TypeParam cell = element<TypeParam>(5);
    SAFEARRAY scalar{};
    scalar.pvData = &cell;
    const matrix<TypeParam> m(&scalar);
    expectShape(m, 1, 1, 1);
    EXPECT_EQ(m[0], element<TypeParam>(5));
}

TYPED_TEST(MatrixConstruction, ACountAbove31BitsOverflows)
{
    const host_array table(elementType<TypeParam>(), {2, 3});
    for (const std::size_t dimension : {0u, 1u}) {
        const ULONG count = table.count(dimension);
        for (const ULONG huge : {ULONG{0x80000000}, ULONG{0xFFFFFFFF}}) {
            table.count(dimension) = huge;
            try {
                const matrix<TypeParam> m(table.get());
                ADD_FAILURE() << "constructed";
            } catch (const boost::numeric::positive_overflow& overflow) {
                EXPECT_STREQ(overflow.what(), "bad numeric conversion: positive overflow");
            }
        }
        table.count(dimension) = count;
    }
}

TEST(MatrixConstruction, OnlyTheFirstTwoDimensionsCanOverflow)
{
    const host_array solid(VT_R8, {2, 3, 4});
    solid.count(2) = 0x80000000;
    expectShape(matrix<double>(solid.get()), 2, 3, 6);
    solid.count(2) = 4;
}

TEST(MatrixConstruction, TheLargest31BitCountIsTaken)
{
    SAFEARRAY descriptor{};
    descriptor.cDims = 1;
    descriptor.rgsabound[0] = {0x7FFFFFFF, 0};
    expectShape(matrix<double>(&descriptor), 0x7FFFFFFF, 1, 0x7FFFFFFF);
}
