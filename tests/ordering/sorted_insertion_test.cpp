#include "ordering/sorted_insertion.h"

#include "support/bits.h"
#include "support/random_cells.h"

#include <algorithm>
#include <vector>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

template <class Insert>
numbers after(Insert insert, const numbers& cells, double val, short int bSort = 0)
{
    auto x = vectorOf(cells);
    insert(&x, static_cast<int>(cells.size()), val, bSort);
    return {x.data, x.data + x.nbElem};
}

struct given {
    double val;
    numbers largest;
    numbers smallest;
};

} // namespace

TEST(SortedInsertion, KeepsTheLargestOrTheSmallest)
{
    for (const given& value : std::vector<given>{
             {2.5, {2, 2.5, 3}, {1, 2, 2.5}},
             {0.5, {1, 2, 3}, {0.5, 1, 2}},
             {9, {2, 3, 9}, {1, 2, 3}},
             {1.5, {1.5, 2, 3}, {1, 1.5, 2}},
             {1, {1, 2, 3}, {1, 1, 2}},
             {2, {2, 2, 3}, {1, 2, 2}},
             {3, {2, 3, 3}, {1, 2, 3}},
             {notANumber, {1, 2, 3}, {1, 2, 3}},
             {infinite, {2, 3, infinite}, {1, 2, 3}},
             {MISSING_DBL, {1, 2, 3}, {MISSING_DBL, 1, 2}},
         }) {
        EXPECT_EQ(after(V_InsertValueLow, {1, 2, 3}, value.val), value.largest) << value.val;
        EXPECT_EQ(after(V_InsertValueUp, {1, 2, 3}, value.val), value.smallest) << value.val;
    }
}

TEST(SortedInsertion, SortsFirstWhenAskedTo)
{
    EXPECT_EQ(after(V_InsertValueLow, {3, 1, 2}, 2.5, -1), (numbers{2, 2.5, 3}));
    EXPECT_EQ(after(V_InsertValueUp, {3, 1, 2}, 2.5, -1), (numbers{1, 2, 2.5}));
    EXPECT_EQ(after(V_InsertValueLow, {3, 1, 2}, 0.5, -1), (numbers{1, 2, 3}))
        << "also when nothing is inserted";
}

TEST(SortedInsertion, WalksThroughAVectorThatIsNotSorted)
{
    // Each element below the value is replaced by the next one, or by the value when the next one is not
    // below it.
    EXPECT_EQ(after(V_InsertValueLow, {1, 6, 2, 7}, 4, 0), (numbers{4, 6, 4, 7}));
    EXPECT_EQ(after(V_InsertValueUp, {1, 6, 2, 7}, 4, 0), (numbers{1, 4, 2, 4}));
    EXPECT_EQ(after(V_InsertValueLow, {3, 1, 2}, 2.5, 1), (numbers{3, 1, 2})) << "only -1 sorts";
    EXPECT_EQ(after(V_InsertValueLow, {3, 1, 2}, 3, 0), (numbers{3, 1, 2})) << "equal to the first";
    EXPECT_EQ(after(V_InsertValueUp, {2, 3, 1}, 1, 0), (numbers{2, 3, 1})) << "equal to the last";
    EXPECT_EQ(after(V_InsertValueLow, {1, 5, 3}, 3, 0), (numbers{3, 5, 3})) << "not above the last";
    EXPECT_EQ(after(V_InsertValueUp, {3, 1, 5}, 3, 0), (numbers{3, 1, 3})) << "not below the first";
}

TEST(SortedInsertion, StoresTheValueItselfBesideAnEqualOne)
{
    EXPECT_SAME_BITS(after(V_InsertValueLow, {-1, -0.0}, 0.0)[0], 0.0);
    EXPECT_SAME_BITS(after(V_InsertValueLow, {-1, 0.0}, -0.0)[0], -0.0);
    EXPECT_SAME_BITS(after(V_InsertValueUp, {-0.0, 1}, 0.0)[1], 0.0);
    EXPECT_SAME_BITS(after(V_InsertValueUp, {0.0, 1}, -0.0)[1], -0.0);
}

TEST(SortedInsertion, OfOneElementOrNone)
{
    EXPECT_EQ(after(V_InsertValueLow, {2}, 3), numbers{3});
    EXPECT_EQ(after(V_InsertValueLow, {2}, 1), numbers{2});
    EXPECT_EQ(after(V_InsertValueUp, {2}, 1), numbers{1});
    EXPECT_EQ(after(V_InsertValueUp, {2}, 3), numbers{2});
    EXPECT_EQ(after(V_InsertValueLow, {}, 3, -1), numbers{});
    EXPECT_EQ(after(V_InsertValueUp, {}, 3, -1), numbers{});
}

TEST(SortedInsertion, KeepsTheTopOfAllThatIsSeen)
{
    random_cells cells(11, odd_cells::none);
    for (const int n : {1, 2, 3, 8, 33}) {
        numbers seen;
        for (int i = 0; i < n; ++i) {
            seen.push_back(cells.value());
        }
        auto low = vectorOf(seen);
        auto up = vectorOf(seen);
        V_InsertValueLow(&low, n, seen[0], -1);
        V_InsertValueUp(&up, n, seen[0], -1);
        seen.push_back(seen[0]);
        for (int k = 0; k < 200; ++k) {
            seen.push_back(cells.integer(0, 3) == 0 ? seen[0] : cells.value());
            V_InsertValueLow(&low, n, seen.back(), 0);
            V_InsertValueUp(&up, n, seen.back(), 0);
        }
        std::sort(seen.begin(), seen.end());
        EXPECT_TRUE(std::equal(low.data, low.data + n, seen.end() - n)) << n;
        EXPECT_TRUE(std::equal(up.data, up.data + n, seen.begin())) << n;
    }
}
