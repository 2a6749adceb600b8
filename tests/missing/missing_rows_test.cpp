#include "missing/missing_rows.h"

#include "reference/missing.h"
#include "support/near_tables.h"

#include <algorithm>
#include <vector>

using namespace korvel::test;

namespace
{

using flags = std::vector<short int>;
using numbers = std::vector<double>;
using ints = std::vector<int>;
constexpr double missing = MISSING_DBL;

/** 4 by 2: row i of column j is 10 j + i. */
const numbers table{11, 12, 13, 14, 21, 22, 23, 24};

numbers compressed(flags removed)
{
    numbers cells = table;
    matrix<double> x(4, 2, cells.data(), true);
    auto* changed = &x;
    M_RemoveRowsWithMissing2(changed, 4, 2, removed.data());
    return cells;
}

numbers copied(flags flagged, int removed)
{
    const matrix<double> x(4, 2, numbers(table).data(), false);
    numbers cells(static_cast<std::size_t>(2 * (4 - removed)), 70);
    matrix<double> out(4 - removed, 2, cells.data(), true);
    korvel::copyRowsKept(x, 4, 2, removed, flagged.data(), out);
    return cells;
}

template <class T, class Insert>
std::vector<T> spread(Insert insert, std::vector<T> cells, int n, flags flagged)
{
    const int rows = static_cast<int>(flagged.size());
    const int p = n > 0 ? static_cast<int>(cells.size()) / n : 1;
    matrix<T> x(n, p, cells.data(), true);
    std::vector<T> result(static_cast<std::size_t>(rows * p), T{70});
    matrix<T> out(rows, p, result.data(), true);
    insert(&x, n, p, flagged.data(), rows - n, &out);
    return result;
}

/** Flags of which about `share` in ten are set, mostly in runs. */
flags flagsOf(random_cells& cells, int n, int share)
{
    flags made;
    bool isSet = false;
    while (static_cast<int>(made.size()) < n) {
        isSet = cells.integer(0, 2) == 0 ? isSet : cells.integer(0, 9) < share;
        made.push_back(isSet ? static_cast<short int>(cells.integer(0, 1) == 0 ? -1 : 3) : short{0});
    }
    return made;
}

template <class T, class Insert>
void expectPlainInsertion(random_cells& cells, int rows, int cols, Insert insert)
{
    flags flagged = flagsOf(cells, rows, cells.integer(0, 3) * 3);
    const int kept = static_cast<int>(std::count(flagged.begin(), flagged.end(), 0));
    matrix<T> x = nearTable<T>(cells, kept, cols);
    matrix<T> result = nearTable<T>(cells, rows, cols);
    const matrix<T> before = twinOf(x);
    matrix<T> expected = twinOf(result);
    korvel::reference::insertRows(x, kept, cols, flagged, rows - kept, expected);
    insert(&x, kept, cols, flagged.data(), rows - kept, &result);
    expectSame(result, expected);
    expectSame(x, before);
}

} // namespace

TEST(MissingRows, MoveUpInPlace)
{
    EXPECT_EQ(compressed({0, 0, 0, 0}), table);
    EXPECT_EQ(compressed({-1, 0, 0, 0}), (numbers{12, 13, 14, 14, 22, 23, 24, 24}));
    EXPECT_EQ(compressed({0, 1, 0, 7}), (numbers{11, 13, 13, 14, 21, 23, 23, 24}))
        << "any flag, and the rest stays";
    EXPECT_EQ(compressed({-1, -1, -1, -1}), table) << "all of it stays";
    EXPECT_EQ(compressed({-1, -1, -1, 0}), (numbers{14, 12, 13, 14, 24, 22, 23, 24}));
    std::vector<text> words{u"a", u"b", u"c"};
    matrix<text> texts(3, 1, words.data());
    auto* changed = &texts;
    flags second{0, -1, 0};
    M_RemoveRowsWithMissing2(changed, 3, 1, second.data());
    EXPECT_EQ(words, (std::vector<text>{u"a", u"c", u"c"}));
}

TEST(MissingRows, AreLeftOutOfACopy)
{
    EXPECT_EQ(copied({0, -1, 0, -1}, 2), (numbers{11, 13, 21, 23}));
    EXPECT_EQ(copied({0, 0, 0, 0}, 0), table);
    EXPECT_EQ(copied({-1, -1, -1, -1}, 4), numbers{});
    EXPECT_EQ(copied({0, -1, 0, -1}, 1), (numbers{11, 13, 13, 21, 23, 23})) << "goes on with the third row";
    EXPECT_EQ(copied({0, -1, 0, -1}, 3), (numbers{11, 21})) << "the last is left out";
    EXPECT_EQ(copied({0, 0, 0, 0}, 4), numbers{});
    EXPECT_EQ(copied({-1, -1, -1, -1}, 2), (numbers{11, 12, 21, 22})) << "the first as they stand";
    flags cells{-1, 0, 5, 0};
    matrix<short int> x(4, 1, cells.data(), false);
    flags result{9, 9};
    matrix<short int> out(2, 1, result.data(), true);
    flags flagged{0, 1, 0, 1};
    RemoveRowsWithMissingBool(&x, 4, 1, 2, flagged.data(), &out);
    EXPECT_EQ(result, (flags{-1, 5}));
    EXPECT_EQ(korvel::countKept(flagged.data(), 4), 2);
    EXPECT_EQ(korvel::countKept(nullptr, 0), 0);
}

TEST(MissingRows, AreSpreadAgain)
{
    EXPECT_EQ(spread<double>(M_InsertMissing, {1, 2, 11, 12}, 2, {0, -1, 0}),
              (numbers{1, missing, 2, 11, missing, 12}));
    EXPECT_EQ(spread<double>(M_InsertMissing, {1, 2, 11, 12}, 2, {7, 0, 0, -1}),
              (numbers{missing, 1, 2, missing, missing, 11, 12, missing}));
    EXPECT_EQ(spread<double>(M_InsertMissing, {1, 2}, 2, {0, 0}), (numbers{1, 2})) << "a plain copy";
    EXPECT_EQ(spread<double>(M_InsertMissing, {}, 0, {-1, -1}), (numbers{missing, missing}));
    EXPECT_EQ(spread<double>(M_InsertMissing, {1}, 1, {0, 0}), (numbers{1, -1}))
        << "a row outside reads as -1";
    EXPECT_EQ(spread<int>(M_InsertMissingLng, {1, 2}, 2, {-1, 0, 0}), (ints{MISSING_LNG, 1, 2}));
}

TEST(MissingRows, AreSpreadAsByThePlainLoop)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        for (const int longer : {0, 7, 40}) {
            expectPlainInsertion<double>(cells, rows + longer, cols, M_InsertMissing);
            expectPlainInsertion<int>(cells, rows + longer, cols, M_InsertMissingLng);
        }
    });
}

TEST(MissingRows, TakenOutAndSpreadGiveTheTableBack)
{
    forRandomVectors([](random_cells& cells, int n, int) {
        const auto x = cells.values(n);
        auto flagged = cells.flags(n);
        const int kept = korvel::countKept(flagged.data(), n);
        matrix<double> shorter(kept, 1, 0.0);
        korvel::copyRowsKept(x, n, 1, n - kept, flagged.data(), shorter);
        matrix<double> longer(n, 1, 0.0);
        M_InsertMissing(&shorter, kept, 1, flagged.data(), n - kept, &longer);
        for (int i = 0; i < n; ++i) {
            const double expected = flagged[static_cast<std::size_t>(i)] == 0 ? x.data[i] : missing;
            EXPECT_TRUE(std::equal(&expected, &expected + 1, longer.data + i,
                                   [](double a, double b) { return a == b || (a != a && b != b); }));
        }
    });
}
