// Letters of random comparisons against what they are defined by, looked up pair by pair.

#include "domain/comparison_letters.h"
#include "support/random_cells.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

/** Random means and comparisons of k levels, and their letters in the order of the means. */
struct drawn_letters {
    int k;
    matrix<double> means;
    matrix<int> significance;
    matrix<int> order;
    matrix<text> labels;
    int groups = 0;

    drawn_letters(random_cells& cells, int levels, bool isDescending)
        : k(levels), means(levels, 1, 0.0), significance(levels, levels), order(levels, 1),
          labels(levels, levels, text())
    {
        const int share = cells.integer(1, 9);
        for (int i = 0; i < k; ++i) {
            means.data[i] = cells.integer(0, 20);
            for (int j = 0; j < k; ++j) {
                significance.setElement(i, j, cells.integer(0, 9) < share ? cells.integer(1, 3) : 0);
            }
        }
        short int success = 0;
        GetCompMatrices(means, k, 0, significance, 0, order, &labels, &groups, &success,
                        isDescending ? 1 : 0);
        EXPECT_EQ(success, -1);
    }

    bool has(int position, int letter) const { return !labels.getElement(position, letter).empty(); }

    bool areDifferent(int position, int other) const
    {
        const int a = order.data[position];
        const int b = order.data[other];
        return significance.vbget(std::max(a, b), std::min(a, b)) != 0;
    }

    /** Whether nothing from `position` down to `other` differs from the level at `position`. */
    bool areAlike(int position, int other) const
    {
        for (int t = position + 1; t <= other; ++t) {
            if (areDifferent(position, t)) {
                return false;
            }
        }
        return true;
    }

    /** The same by the letters, one of them left out. */
    bool shareOneBut(int leftOut, int position, int other) const
    {
        for (int letter = 0; letter < groups; ++letter) {
            if (letter != leftOut && has(position, letter) && has(other, letter)) {
                return true;
            }
        }
        return false;
    }

    int firstPositionOf(int letter) const
    {
        int position = 0;
        while (position < k && !has(position, letter)) {
            ++position;
        }
        return position;
    }
};

template <class Check>
void forRandomLetters(Check check)
{
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, odd_cells::none);
        check(drawn_letters(cells, cells.integer(1, 12), seed % 2 == 0));
    }
}

} // namespace

TEST(ComparisonLettersDefinition, AreSharedByLevelsThatDoNotDiffer)
{
    forRandomLetters([](const drawn_letters& drawn) {
        for (int a = 0; a < drawn.k; ++a) {
            for (int b = a; b < drawn.k; ++b) {
                EXPECT_EQ(drawn.shareOneBut(-1, a, b), drawn.areAlike(a, b)) << a << ", " << b;
            }
        }
    });
}

TEST(ComparisonLettersDefinition, CouldNotDoWithoutOne)
{
    forRandomLetters([](const drawn_letters& drawn) {
        for (int letter = 0; letter < drawn.groups; ++letter) {
            bool isNeeded = false;
            for (int a = 0; a < drawn.k; ++a) {
                for (int b = a; b < drawn.k; ++b) {
                    isNeeded = isNeeded || (drawn.areAlike(a, b) && !drawn.shareOneBut(letter, a, b));
                }
            }
            EXPECT_TRUE(isNeeded) << "letter " << letter;
        }
    });
}

TEST(ComparisonLettersDefinition, RunInOrderOfFirstUse)
{
    forRandomLetters([](const drawn_letters& drawn) {
        for (int letter = 0; letter < drawn.groups; ++letter) {
            const int first = drawn.firstPositionOf(letter);
            ASSERT_LT(first, drawn.k);
            EXPECT_EQ(drawn.labels.getElement(first, letter), text(1, static_cast<char16_t>(u'A' + letter)));
            if (letter > 0) {
                EXPECT_LE(drawn.firstPositionOf(letter - 1), first);
            }
        }
        EXPECT_TRUE(std::is_sorted(drawn.means.data, drawn.means.data + drawn.k) ||
                    std::is_sorted(drawn.means.data, drawn.means.data + drawn.k, std::greater<>()));
    });
}

TEST(ComparisonLettersDefinition, AreTheSameInTheOrderOfTheLevels)
{
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        random_cells cells(seed, odd_cells::none);
        const drawn_letters drawn(cells, cells.integer(1, 12), false);
        // Level order[i] stands in row i of one form, and in its own row of the other.
        matrix<double> means(drawn.k, 1, 0.0);
        for (int i = 0; i < drawn.k; ++i) {
            means.data[drawn.order.data[i] - 1] = drawn.means.data[i];
        }
        matrix<text> labels(drawn.k, drawn.k, text());
        matrix<int> order(drawn.k, 1);
        int groups = 0;
        short int success = 0;
        matrix<int> significance(drawn.significance);
        GetCompMatrices(means, drawn.k, 0, significance, -1, order, &labels, &groups, &success, 0);
        EXPECT_EQ(groups, drawn.groups);
        for (int i = 0; i < drawn.k; ++i) {
            EXPECT_EQ(order.data[i], i + 1);
            for (int j = 0; j < drawn.k; ++j) {
                EXPECT_EQ(labels.getElement(drawn.order.data[i] - 1, j), drawn.labels.getElement(i, j));
            }
        }
    }
}
