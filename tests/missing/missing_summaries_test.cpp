#include "missing/missing_summaries.h"

#include "support/bits.h"
#include "support/random_cells.h"

#include <algorithm>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;
using numbers = std::vector<double>;

} // namespace

TEST(MissingSummaries, SumWhereBothArePresent)
{
    auto x = vectorOf<double>({1, 2, missing, 8});
    auto y = vectorOf<double>({0, missing, 5, notANumber});
    EXPECT_TRUE(sameBits(V_SumIfNotMissing(&x, 4, &y), 9.0));
    EXPECT_TRUE(sameBits(V_SumIfNotMissing(&y, 4, &x), notANumber));
    EXPECT_TRUE(sameBits(V_SumIfNotMissing(&x, 0, &y), missing));
    auto none = vectorOf<double>({missing, missing});
    EXPECT_TRUE(sameBits(V_SumIfNotMissing(&x, 2, &none), 0.0)) << "nothing is there, but n is";
}

TEST(MissingSummaries, SumEqualsThePlainLoop)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.values(n);
        auto y = cells.values(held);
        double sum = 0.0;
        for (int i = 0; i < n; ++i) {
            if (x[i] != missing && y[i] != missing) {
                sum += x[i];
            }
        }
        EXPECT_TRUE(sameBits(V_SumIfNotMissing(&x, n, &y), n < 1 ? missing : sum));
    });
}

TEST(MissingSummaries, CellsAreStrungTogether)
{
    numbers cells{1, missing, missing, missing, 5, notANumber};
    matrix<double> x(2, 3, cells.data(), true);
    numbers counts{10, 0, 0};
    matrix<double> found(3, 1, counts.data(), true);
    numbers strung{70, 70, 70, 70, 70, 70};
    matrix<double> vector(6, 1, strung.data(), true);
    double empty = 4;
    MatToVect_NoMissing(&x, 2, 3, &found, empty, &vector);
    EXPECT_EQ(counts, (numbers{11, 0, 2})) << "on top of what they held";
    EXPECT_TRUE(sameBits(empty, 5.0));
    EXPECT_TRUE(sameBits(strung[0], 1) && sameBits(strung[1], 5) && sameBits(strung[2], notANumber));
    EXPECT_TRUE(sameBits(strung[3], 70)) << "what is behind them stays";
    std::fill(cells.begin(), cells.end(), missing);
    counts = {1, 0, 0};
    empty = 0;
    MatToVect_NoMissing(&x, 2, 3, &found, empty, &vector);
    EXPECT_TRUE(sameBits(empty, 2.0)) << "a count that was there is not 0";
}

TEST(MissingSummaries, SmallestOfWhatIsThere)
{
    EXPECT_TRUE(sameBits(korvel::smallestPresent(vectorOf<double>({3, missing, 2}), 3), 2.0));
    EXPECT_TRUE(sameBits(korvel::smallestPresent(vectorOf<double>({missing}), 1), missing));
    cST_MVect<double> table(2, 2);
    table.Vectors[0].Vect.data[0] = missing;
    table.Vectors[0].Vect.data[1] = 5;
    EXPECT_TRUE(sameBits(korvel::smallestPresent(table, 2, 1), 5.0));
    EXPECT_TRUE(sameBits(korvel::smallestPresent(table, 1, 1), missing));
}
