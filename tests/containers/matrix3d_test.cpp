#include "containers/matrix3d.h"
#include "containers/sparse_matrix.h"

#include "containers/views.h"
#include "support/allocations.h"
#include "support/automation_watch.h"
#include "support/bits.h"
#include "support/caller_memory.h"

#include <boost/numeric/conversion/cast.hpp>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

Hostarray** reference(SAFEARRAY*& array)
{
    return reinterpret_cast<Hostarray**>(&array);
}

/** Chunk k of `n`, of 3 elements, holds 10 k, 10 k + 1 and 10 k + 2. */
template <class Table>
Table filled(int n)
{
    Table table;
    for (int k = 0; k < n; ++k) {
        table.chunks.emplace_back(3, 1, 0.0);
        for (int i = 0; i < 3; ++i) {
            table.chunks.back()[i] = 10.0 * k + i;
        }
    }
    return table;
}

/** The place of a virtual operation among those of its class. */
template <class Member>
std::intptr_t placeOf(Member member)
{
    std::intptr_t code = 0;
    static_assert(sizeof(member) >= sizeof(code));
    std::memcpy(&code, &member, sizeof(code));
#if !defined(__aarch64__) // there another word marks a virtual operation
    code -= 1;
#endif
    return code / static_cast<std::intptr_t>(sizeof(void*));
}

} // namespace

TEST(Matrix3D, TakesACountBelowNoneForNone)
{
    SAFEARRAY* none = nullptr;
    for (const int n : {0, -1, -2147483647 - 1}) {
        EXPECT_TRUE((matrix3D<matrix<double>>(n, reinterpret_cast<Hostarray**>(&none)).chunks.empty()));
        EXPECT_TRUE((matrix3D<matrix<double>>(n, 2, n, 7.0).chunks.empty()));
        EXPECT_TRUE((matrix3D<statistics_matrix<double>>(n, 2, n, 7.0).chunks.empty()));
    }
}

TEST(Matrix3D, HasFourVirtualOperationsInTheirOrder)
{
    using base = matrix3DBase<matrix<double>>;
    EXPECT_EQ(placeOf(&base::getElement), 0);
    EXPECT_EQ(placeOf(&base::vbget), 1);
    EXPECT_EQ(placeOf(&base::setElement), 2);
    EXPECT_EQ(placeOf(&base::vbset), 3);
    static_assert(std::is_abstract_v<base> && !std::has_virtual_destructor_v<base>);
    static_assert(std::is_base_of_v<base, matrix3D<matrix<double>>>);
    static_assert(std::is_base_of_v<base, matrix3DVect<matrix<double>>>);
}

TEST(Matrix3D, ReadsByColumnAndRow)
{
    auto table = filled<matrix3D<matrix<double>>>(2);
    matrix3DBase<matrix<double>>& base = table;
    EXPECT_SAME_BITS(base.getElement(1, 2), 12.0);
    EXPECT_SAME_BITS(base.vbget(1, 2), 1.0);
    base.setElement(1, 0, 5.0);
    base.vbset(1, 3, 6.0);
    EXPECT_SAME_BITS(table.chunks[1][0], 5.0);
    EXPECT_SAME_BITS(table.chunks[0][2], 6.0);
}

TEST(Matrix3DVect, ReadsByRowAndColumn)
{
    auto table = filled<matrix3DVect<matrix<double>>>(2);
    matrix3DBase<matrix<double>>& base = table;
    EXPECT_SAME_BITS(base.getElement(2, 1), 12.0);
    EXPECT_SAME_BITS(base.vbget(2, 1), 1.0);
    base.setElement(0, 1, 5.0);
    base.vbset(3, 1, 6.0);
    EXPECT_SAME_BITS(table.chunks[1][0], 5.0);
    EXPECT_SAME_BITS(table.chunks[0][2], 6.0);
}

TEST(Matrix3D, UsesTheSpareSlotOfTheChunk)
{
    auto table = filled<matrix3D<matrix<double>>>(2);
    EXPECT_SAME_BITS(table.getElement(1, 3), -1.0);
    EXPECT_SAME_BITS(table.getElement(1, -1), -1.0) << "the element number is unsigned";
    table.setElement(1, 0, 4.0);
    EXPECT_SAME_BITS(table.getElement(1, 3), 4.0) << "a store inside reaches the slot too";
    EXPECT_SAME_BITS(table.getElement(0, 3), -1.0) << "of its own chunk only";
    table.setElement(1, 3, 8.0);
    table.setElement(0, -1, 9.0);
    EXPECT_SAME_BITS(table.getElement(1, 7), 8.0);
    EXPECT_SAME_BITS(table.getElement(0, 7), 9.0);
    EXPECT_SAME_BITS(table.vbget(2, 4), 8.0);
    for (int i = 0; i < 3; ++i) {
        EXPECT_SAME_BITS(table.getElement(0, i), i);
    }

    auto byRow = filled<matrix3DVect<matrix<double>>>(2);
    byRow.vbset(4, 2, 7.0);
    EXPECT_SAME_BITS(byRow.getElement(-1, 1), 7.0);
    EXPECT_SAME_BITS(byRow.getElement(3, 0), -1.0);
}

TEST(Matrix3D, ATriangleHoldsItsColumnsFromTheDiagonalDown)
{
    // Cell (i, j), 1-based, of the table is 10 i + j.
    constexpr int order = 3;
    matrix3D<matrix<double>> table;
    for (int c = 1; c <= order; ++c) {
        table.chunks.emplace_back(order - c + 1, 1, 0.0);
        for (int r = 1; r <= order - c + 1; ++r) {
            table.vbset(c, r, 10.0 * (c + r - 1) + c);
        }
    }
    EXPECT_SAME_BITS(table.vbget(2, 1), 22.0) << "the diagonal";
    for (int i = 1; i <= order; ++i) {
        for (int j = 1; j <= i; ++j) {
            EXPECT_SAME_BITS(table.vbget(j, i - j + 1), 10.0 * i + j);
            EXPECT_SAME_BITS(korvel::reading(table).triangle(order).get(j - 1, i - 1), 10.0 * i + j);
        }
    }
}

TEST(Matrix3D, MakesChunksOfItsOwn)
{
    matrix3D<matrix<double>> table(3, 2, 99, 0.5);
    matrix3D<statistics_matrix<double>> withBuffers(3, 2, 3, 0.5);
    ASSERT_EQ(table.chunks.size(), 3u);
    ASSERT_EQ(withBuffers.chunks.size(), 3u);
    for (int c = 0; c < 3; ++c) {
        const matrix<double>& chunk = table.chunks[static_cast<std::size_t>(c)];
        EXPECT_EQ(chunk.nbrows, 2);
        EXPECT_EQ(chunk.nbcols, 1);
        EXPECT_TRUE(chunk.bOwner);
        EXPECT_SAME_BITS(table.getElement(c, 1), 0.5);
        EXPECT_SAME_BITS(withBuffers.getElement(c, 1), 0.5);
    }
    withBuffers.vbset(2, 1, 4.0);
    EXPECT_SAME_BITS(withBuffers.getElement(1, 0), 4.0);
    EXPECT_SAME_BITS(withBuffers.vbget(2, 3), 4.0);
    EXPECT_TRUE((matrix3D<matrix<double>>(0, 2, 0, 0.5).chunks.empty()));
}

TEST(Matrix3D, IsMovedWithItsChunks)
{
    matrix3D<statistics_matrix<double>> table(1, 2, 1, 0.5);
    const double* block = table.chunks[0].data;
    const matrix3D<statistics_matrix<double>> taken = std::move(table);
    EXPECT_EQ(taken.chunks[0].data, block);
}

TEST(Matrix3D, AttachesToTheColumnsOfRecords)
{
    caller_memory caller;
    SAFEARRAY* first = caller.array(numbers{1.0, 2.0});
    SAFEARRAY* third = caller.array({2, 2}, numbers{3.0, 4.0, 5.0, 6.0});
    const std::vector<Hostarray> records{{first, nullptr}, {nullptr, nullptr}, {third, nullptr}};
    SAFEARRAY* array = caller.array(records);

    const automation_watch watch;
    const auto before = allocationCount();
    {
        matrix3D<matrix<double>> table(3, reference(array));
        EXPECT_LE(allocationCount() - before, 2) << "descriptors and the list of columns, but no numbers";
        ASSERT_EQ(table.chunks.size(), 3u);
        EXPECT_EQ(table.chunks[0].data, first->pvData);
        EXPECT_EQ(table.chunks[0].safeArray, first);
        EXPECT_FALSE(table.chunks[0].bOwner);
        EXPECT_EQ(table.chunks[0].nbrows, 2);
        EXPECT_EQ(table.chunks[1].data, nullptr);
        EXPECT_EQ(table.chunks[1].nbElem, 0u);
        EXPECT_EQ(table.chunks[2].nbcols, 2);
        EXPECT_SAME_BITS(table.getElement(2, 3), 6.0) << "an element number is linear";
        table.setElement(0, 1, 7.0);
    }
    EXPECT_TRUE(watch.arrays(0, 0)) << "the caller's arrays live on";
    EXPECT_EQ(numbersIn<double>(first), (numbers{1.0, 7.0}));
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(Matrix3D, TakesABlockWithoutANullForPlainPointers)
{
    caller_memory caller;
    const std::vector<SAFEARRAY*> columns{caller.array(numbers{1.0}), caller.array(numbers{2.0}),
                                          caller.array(numbers{3.0})};
    SAFEARRAY* array = caller.array(columns);
    matrix3D<matrix<double>> table(3, reference(array));
    for (int c = 0; c < 3; ++c) {
        EXPECT_SAME_BITS(table.getElement(c, 0), c + 1.0);
    }
}

TEST(Matrix3D, TakesRecordsWithBothColumnsForPlainPointers)
{
    caller_memory caller;
    const std::vector<Hostarray> records{{caller.array(numbers{1.0}), caller.texts({u"a"})},
                                         {caller.array(numbers{2.0}), caller.texts({u"b"})}};
    SAFEARRAY* array = caller.array(records);
    const matrix3D<matrix<double>> table(2, reference(array));
    EXPECT_EQ(table.chunks[0].safeArray, records[0].numbers);
    EXPECT_EQ(table.chunks[1].safeArray, records[0].texts);
}

TEST(Matrix3D, TakesOneRecordWithBothColumnsForAPlainPointer)
{
    caller_memory caller;
    const std::vector<Hostarray> records{{caller.array(numbers{1.0}), caller.texts({u"a"})}};
    SAFEARRAY* array = caller.array(records);
    const matrix3D<matrix<double>> table(1, reference(array));
    EXPECT_EQ(table.chunks[0].safeArray, records[0].numbers) << "which is right by luck";
}

TEST(Matrix3D, TakesPointersWithANullAmongThemForRecords)
{
    caller_memory caller;
    const std::vector<SAFEARRAY*> words{caller.array(numbers{1.0}), nullptr, caller.array(numbers{3.0}),
                                        caller.array(numbers{4.0})};
    SAFEARRAY* array = caller.array(words);
    const matrix3D<matrix<double>> table(2, reference(array));
    EXPECT_EQ(table.chunks[0].safeArray, words[0]);
    EXPECT_EQ(table.chunks[1].safeArray, words[2]);
}

TEST(Matrix3D, LooksAtTheFirstWordsOnly)
{
    caller_memory caller;
    // Three words for three chunks; the null of the fourth does not count.
    const std::vector<SAFEARRAY*> words{caller.array(numbers{1.0}), caller.array(numbers{2.0}),
                                        caller.array(numbers{3.0}), nullptr};
    SAFEARRAY* array = caller.array(words);
    const matrix3D<matrix<double>> table(3, reference(array));
    EXPECT_EQ(table.chunks[1].safeArray, words[1]);
    EXPECT_EQ(table.chunks[2].safeArray, words[2]);
}

TEST(Matrix3D, HasEmptyChunksForATableThatIsNotThere)
{
    SAFEARRAY* none = nullptr;
    const matrix3D<matrix<double>> table(2, reference(none));
    ASSERT_EQ(table.chunks.size(), 2u);
    EXPECT_EQ(table.chunks[1].nbElem, 0u);
    EXPECT_EQ(table.chunks[1].safeArray, nullptr);

    caller_memory caller;
    SAFEARRAY* withoutBlock = caller.array(std::vector<Hostarray>{});
    withoutBlock->pvData = nullptr;
    EXPECT_EQ((matrix3D<matrix<double>>(2, reference(withoutBlock)).chunks.size()), 2u);
    EXPECT_TRUE((matrix3D<matrix<double>>(0, reference(none)).chunks.empty()));
}

TEST(Matrix3D, RefusesAColumnWithTooManyRows)
{
    caller_memory caller;
    SAFEARRAY* column = caller.array(numbers{1.0});
    const std::vector<Hostarray> records{{caller.array(numbers{1.0}), nullptr}, {column, nullptr}};
    SAFEARRAY* array = caller.array(records);
    column->rgsabound[0].cElements = 0x80000000u;
    try {
        const matrix3D<matrix<double>> table(2, reference(array));
        FAIL() << "no exception";
    } catch (const boost::numeric::positive_overflow& error) {
        EXPECT_STREQ(error.what(), "bad numeric conversion: positive overflow");
    }
}

TEST(Matrix3D, PassesAFailedAllocationOn)
{
    caller_memory caller;
    const std::vector<Hostarray> records{{caller.array(numbers{1.0}), nullptr}};
    SAFEARRAY* array = caller.array(records);
    for (int allowed = 0; allowed < 2; ++allowed) {
        const allocation_limit limit(allowed);
        EXPECT_THROW((matrix3D<matrix<double>>(1, reference(array))), std::bad_alloc);
        EXPECT_THROW((matrix3D<matrix<double>>(1, 1, 1, 0.0)), std::bad_alloc);
    }
}

TEST(Matrix3DVect, AttachesToTheColumnsOfALabelledTable)
{
    caller_memory caller;
    ST_MVect record = caller.table(
        {caller.column(u"x", numbers{1.0, 2.0}), caller.column(u"y", numbers{4.0})}, {u"x", u"y"});
    columnOf(record, 1).Vect = nullptr;
    const auto before = allocationCount();
    matrix3DVect<matrix<double>> table(record.Vectors);
    EXPECT_EQ(allocationCount() - before, 1) << "the descriptors";
    ASSERT_EQ(table.chunks.size(), 2u);
    EXPECT_EQ(table.chunks[0].data, columnOf(record, 0).Vect->pvData);
    EXPECT_SAME_BITS(table.getElement(1, 0), 2.0);
    EXPECT_EQ(table.chunks[1].nbElem, 0u);
    EXPECT_SAME_BITS(korvel::sumOfElements(table), 3.0);
}

TEST(Matrix3DVect, TakesTheNumberOfRecordsFromTheLeftmostDimension)
{
    caller_memory caller;
    const std::vector<ST_Vect> columns{caller.column(u"a", numbers{1.0}), caller.column(u"b", numbers{2.0})};
    SAFEARRAY* array = caller.array({1, 2}, columns);
    EXPECT_EQ((matrix3DVect<matrix<double>>(array).chunks.size()), 1u);
}

TEST(Matrix3DVect, RefusesAColumnWithTooManyRows)
{
    caller_memory caller;
    ST_MVect record = caller.table({caller.column(u"x", numbers{1.0})}, {u"x"});
    columnOf(record, 0).Vect->rgsabound[0].cElements = 0x80000000u;
    EXPECT_THROW((matrix3DVect<matrix<double>>(record.Vectors)), boost::numeric::positive_overflow);
}

TEST(Matrix3DOfSparse, LinearAccessorsReadNothingAndStoreNothing)
{
    matrix3D<matrixSparse> table;
    table.chunks.emplace_back(2, 2, 5.0, false);
    table.setElement(0, 1, 3.0);
    table.vbset(1, 1, 3.0);
    EXPECT_EQ(table.getElement(0, 1), 0.0);
    EXPECT_EQ(table.vbget(1, 1), 0.0);
    EXPECT_EQ(table.chunks[0].nnz, 4);
}
