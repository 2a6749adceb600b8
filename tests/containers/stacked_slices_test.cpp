#include "containers/stacked_slices.h"

#include "containers/host_chunks.h"
#include "support/allocations.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <array>
#include <limits>
#include <new>
#include <vector>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

/** Room for slices, which are deleted in the end. */
template <class T, std::size_t n>
struct slices {
    std::array<matrix<T>*, n> m{};

    slices() = default;
    slices(const slices&) = delete;
    slices& operator=(const slices&) = delete;
    ~slices() { deletecascade(m.data(), static_cast<int>(n)); }

    matrix<T>& operator[](std::size_t k) { return *m[k]; }
};

template <class T>
std::vector<T> elementsOf(const matrix<T>& m)
{
    return {m.data, m.data + m.nbElem};
}

/** Two slices of 2 by 3; cell (i, j) of slice k is 100 k + 10 i + j. */
numbers flatCells()
{
    numbers flat;
    for (int j = 0; j < 3; ++j) {
        for (int i = 0; i < 2; ++i) {
            for (int k = 0; k < 2; ++k) {
                flat.push_back(100.0 * k + 10.0 * i + j);
            }
        }
    }
    return flat;
}

} // namespace

TEST(StackedSlices, StartAsZeros)
{
    slices<double, 2> made;
    iniSuperMat(made.m.data(), 2, 2, 3);
    for (std::size_t k = 0; k < 2; ++k) {
        EXPECT_EQ(made[k].nbrows, 2);
        EXPECT_EQ(made[k].nbcols, 3);
        EXPECT_EQ(elementsOf(made[k]), numbers(6, 0.0));
        EXPECT_SAME_BITS(made[k].oobValue, -1.0);
    }
    slices<double, 1> narrow;
    iniSuperMat(narrow.m.data(), 1, 2, 0);
    EXPECT_EQ(narrow[0].nbcols, 1);
    EXPECT_EQ(narrow[0].nbElem, 2u);
}

TEST(StackedSlices, RunFastestInTheFlatBlock)
{
    slices<double, 2> made;
    numbers flat{1.0, 2.0, 3.0, 4.0};
    loadSuperMat(made.m.data(), flat.data(), 2, 1, 2);
    EXPECT_EQ(elementsOf(made[0]), (numbers{1.0, 3.0}));
    EXPECT_EQ(elementsOf(made[1]), (numbers{2.0, 4.0}));
}

TEST(StackedSlices, AreLoadedRowBeforeColumnAndKeepTheLastValueInTheSpareSlot)
{
    slices<double, 2> made;
    numbers flat = flatCells();
    loadSuperMat(made.m.data(), flat.data(), 2, 2, 3);
    for (int k = 0; k < 2; ++k) {
        const matrix<double>& slice = made[static_cast<std::size_t>(k)];
        EXPECT_EQ(slice.nbrows, 2);
        for (int i = 0; i < 2; ++i) {
            for (int j = 0; j < 3; ++j) {
                EXPECT_SAME_BITS(slice.getElement(i, j), 100.0 * k + 10.0 * i + j);
            }
        }
        EXPECT_SAME_BITS(slice.oobValue, 100.0 * k + 12.0);
    }
}

TEST(StackedSlices, WithoutColumnsAreMadeButNotFilled)
{
    slices<double, 1> made;
    loadSuperMat(made.m.data(), static_cast<double*>(nullptr), 1, 2, 0);
    EXPECT_EQ(elementsOf(made[0]), numbers(2, 0.0));
    EXPECT_SAME_BITS(made[0].oobValue, -1.0);
}

TEST(StackedSlices, OfTextsAreCopied)
{
    caller_memory caller;
    SAFEARRAY* flat = caller.texts({u"a", u"b", u"", u"d"});
    auto* places = static_cast<OLECHAR**>(flat->pvData);
    slices<text, 2> made;
    loadSuperMat(made.m.data(), places, 2, 2, 1);
    EXPECT_EQ(elementsOf(made[0]), (std::vector<text>{u"a", u""}));
    EXPECT_EQ(elementsOf(made[1]), (std::vector<text>{u"b", u"d"}));
    EXPECT_EQ(made[1].oobValue, u"d");

    made[0].setElement(1, 0, u"c");
    const auto before = numbersIn<BSTR>(flat);
    unloadSuperMat(made.m.data(), places, 2, 2, 1);
    EXPECT_EQ(textsIn(flat), (texts{u"a", u"b", u"c", u"d"}));
    const auto after = numbersIn<BSTR>(flat);
    EXPECT_EQ(after[0], before[0]);
    EXPECT_EQ(after[1], before[1]);
    EXPECT_EQ(after[3], before[3]);
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(StackedSlices, OfIntegersAreConvertedAsTheyAre)
{
    slices<double, 1> made;
    std::array<int, 3> flat{1, MISSING_LNG, -3};
    loadSuperMatLng(made.m.data(), flat.data(), 1, 3, 1);
    EXPECT_EQ(elementsOf(made[0]), (numbers{1.0, -2147483648.0, -3.0}));
    EXPECT_SAME_BITS(made[0].oobValue, -3.0);
}

TEST(StackedSlices, GoBackToTheFlatBlock)
{
    slices<double, 2> made;
    numbers flat = flatCells();
    loadSuperMat(made.m.data(), flat.data(), 2, 2, 3);
    guarded<double> back(numbers(12));
    unloadSuperMat(made.m.data(), back.data(), 2, 2, 3);
    EXPECT_EQ(valuesOf(back), flat);

    // A row that the slices do not have reads as their spare slot.
    guarded<double> tall(numbers(6));
    made[0].oobValue = 7.0;
    unloadSuperMat(made.m.data(), tall.data(), 2, 3, 1);
    EXPECT_EQ(valuesOf(tall), (numbers{0.0, 100.0, 10.0, 110.0, 7.0, 112.0}));
}

TEST(StackedSlices, GoBackToIntegersWithoutTheirFraction)
{
    slices<double, 1> made;
    numbers cells{2.9,          -2.9,
                  MISSING_DBL,  3e9,
                  -3e9,         std::numeric_limits<double>::quiet_NaN(),
                  2147483647.5, -1.7976931348623157e308};
    const int count = static_cast<int>(cells.size());
    loadSuperMat(made.m.data(), cells.data(), 1, count, 1);
    guarded<int> back(std::vector<int>(cells.size()));
    unloadSuperMatLng(made.m.data(), back.data(), 1, count, 1);
    constexpr int least = std::numeric_limits<int>::min();
    EXPECT_EQ(valuesOf(back), (std::vector{2, -2, 0, least, least, least, 2147483647, least}));
}

TEST(StackedSlices, MadeBeforeAFailedAllocationStayWithTheCaller)
{
    numbers flat = flatCells();
    slices<double, 2> zeros;
    slices<double, 2> loaded;
    {
        const allocation_limit limit(3); // the first slice, and the second one without its block
        EXPECT_THROW(iniSuperMat(zeros.m.data(), 2, 2, 3), std::bad_alloc);
    }
    {
        const allocation_limit limit(2);
        EXPECT_THROW(loadSuperMat(loaded.m.data(), flat.data(), 2, 2, 3), std::bad_alloc);
    }
    EXPECT_EQ(elementsOf(zeros[0]), numbers(6, 0.0));
    EXPECT_EQ(zeros.m[1], nullptr);
    EXPECT_EQ(elementsOf(loaded[0]), numbers(6, 0.0)) << "nothing is copied before all slices are there";
    EXPECT_EQ(loaded.m[1], nullptr);
}

TEST(SuperMatSetToValue, ResizesASliceThatIsTooSmall)
{
    slices<double, 3> made;
    made.m = {new matrix<double>(1, 3, 1.0), new matrix<double>(2, 1, 1.0), new matrix<double>(2, 2, 1.0)};
    SuperMatSetToValue(made.m.data(), 3, 2, 2, 5.0);
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_EQ(made[k].nbrows, 2);
        EXPECT_EQ(made[k].nbcols, 2);
        EXPECT_EQ(elementsOf(made[k]), numbers(4, 5.0));
        EXPECT_SAME_BITS(made[k].oobValue, -1.0);
    }
}

TEST(SuperMatSetToValue, SetsTheFirstElementsOfALargerSlice)
{
    slices<double, 1> made;
    made.m = {new matrix<double>(3, 2, 1.0)};
    SuperMatSetToValue(made.m.data(), 1, 2, 2, 5.0);
    EXPECT_EQ(made[0].nbrows, 3);
    EXPECT_EQ(elementsOf(made[0]), (numbers{5.0, 5.0, 5.0, 5.0, 1.0, 1.0})) << "in linear order";
    SuperMatSetToValue(made.m.data(), 1, 0, 2, 6.0);
    SuperMatSetToValue(made.m.data(), 1, -1, -1, 6.0);
    EXPECT_EQ(elementsOf(made[0]), (numbers{5.0, 5.0, 5.0, 5.0, 1.0, 1.0}));
}

TEST(SuperMatSetToValue, FillsABorrowedSliceThatIsTooSmallAsItIs)
{
    guarded<double> block{1.0, 2.0};
    slices<double, 1> made;
    made.m = {new matrix<double>(2, 1, block.data(), true)};
    SuperMatSetToValue(made.m.data(), 1, 3, 1, 5.0);
    EXPECT_EQ(made[0].nbrows, 2);
    EXPECT_EQ(valuesOf(block), (numbers{5.0, 5.0}));
}

TEST(CopyCol, CopiesAChunkIntoAColumn)
{
    slices<double, 2> made;
    made.m = {new matrix<double>(2, 1, 1.0), new matrix<double>(2, 1, 2.0)};
    made[1].setElement(1, 0, 3.0);
    matrix<double> out(3, 2, 0.0);
    CopyCol(made.m.data(), 2, 1, 1, &out);
    EXPECT_EQ(elementsOf(out), (numbers{0.0, 0.0, 0.0, 2.0, 3.0, 0.0}));
    EXPECT_SAME_BITS(out.oobValue, 3.0);
}

TEST(CopyCol, LeavesWhatHasNoRoomInTheSpareSlot)
{
    slices<double, 1> made;
    made.m = {new matrix<double>(3, 1, 1.0)};
    made[0].setElement(2, 0, 9.0);
    matrix<double> out(2, 2, 0.0);
    CopyCol(made.m.data(), 1, 0, 0, &out);
    EXPECT_EQ(elementsOf(out), (numbers{1.0, 1.0, 0.0, 0.0}));
    EXPECT_SAME_BITS(out.oobValue, 9.0);
}

TEST(CopyCol, DoesNothingOutside)
{
    slices<double, 1> made;
    made.m = {new matrix<double>(2, 1, 1.0)};
    matrix<double> out(2, 2, 0.0);
    CopyCol(made.m.data(), 1, 1, 0, &out);
    CopyCol(made.m.data(), 1, -1, 0, &out);
    CopyCol(made.m.data(), 1, 0, -1, &out);
    CopyCol(made.m.data(), 1, 0, 2, &out);
    CopyCol(nullptr, 0, 0, 0, &out);
    EXPECT_EQ(elementsOf(out), numbers(4, 0.0));
    EXPECT_SAME_BITS(out.oobValue, -1.0);
}
