#include "random/indicator.h"

#include "random/random_state.h"
#include "reference/random_plain.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace korvel::test
{

namespace
{

using doubles = std::vector<double>;

doubles cellsOf(const matrix<double>& out)
{
    return doubles(out.data, out.data + out.nbElem);
}

using Indicator = RandomState;

} // namespace

TEST_F(Indicator, MarksARange)
{
    matrix<double> out(5, 1, 9.0);
    GenerateIndicator(&out, 5, 2, 3);
    EXPECT_EQ(cellsOf(out), (doubles{0, 1, 1, 0, 0}));
    GenerateIndicator(&out, 5, 1, 5);
    EXPECT_EQ(cellsOf(out), doubles(5, 1.0));
    GenerateIndicator(&out, 5, 4, 4);
    EXPECT_EQ(cellsOf(out), (doubles{0, 0, 0, 1, 0}));
    GenerateIndicator(&out, 5, 3, 2);
    EXPECT_EQ(cellsOf(out), doubles(5, 0.0));
}

TEST_F(Indicator, LeavesOutPositionsThatAreNotThere)
{
    matrix<double> out(3, 1, 9.0);
    GenerateIndicator(&out, 3, -2, 1);
    EXPECT_EQ(cellsOf(out), (doubles{1, 0, 0}));
    GenerateIndicator(&out, 3, 3, 8);
    EXPECT_EQ(cellsOf(out), (doubles{0, 0, 1}));
    EXPECT_EQ(out.oobValue, 1.0);
    GenerateIndicator(&out, 5, 2, 1);
    EXPECT_EQ(cellsOf(out), doubles(3, 0.0));
    EXPECT_EQ(out.oobValue, 0.0);
}

TEST_F(Indicator, ClearsAsManyElementsAsItIsTold)
{
    matrix<double> out(4, 1, 9.0);
    GenerateIndicator(&out, 2, 1, 1);
    EXPECT_EQ(cellsOf(out), (doubles{1, 0, 9, 9}));
    GenerateIndicator(&out, 0, 1, 0);
    EXPECT_EQ(cellsOf(out), (doubles{1, 0, 9, 9}));
}

TEST_F(Indicator, ARandomSubsetIsThatOfTheSmallestDraws)
{
    for (const int algorithm : {0, 1}) {
        for (const int n : {1, 2, 10, 33, 3000}) {
            processSource.algo = algorithm;
            plain_source source(algorithm, 4000 + n);
            doubles draws;
            for (int i = 0; i < n; ++i) {
                draws.push_back(source.uniform());
            }
            std::vector<std::size_t> order(draws.size());
            std::iota(order.begin(), order.end(), std::size_t{0});
            std::stable_sort(order.begin(), order.end(),
                             [&](std::size_t a, std::size_t b) { return draws[a] < draws[b]; });
            const int expectedNext = source.nextSeed();
            for (const int k : {0, 1, n / 2, n}) {
                doubles expected(draws.size());
                for (int rank = 0; rank < k; ++rank) {
                    expected[order[static_cast<std::size_t>(rank)]] = 1.0;
                }
                matrix<double> out(n, 1, 9.0);
                int seed = 4000 + n;
                int next = 0;
                GenerateRandomIndicator(&out, n, k, &seed, 1, &next);
                ASSERT_EQ(cellsOf(out), expected) << "n " << n << ", k " << k;
                EXPECT_EQ(next, expectedNext);
            }
        }
    }
}

TEST_F(Indicator, ASubsetOutsideTheRangeIsNoneOrAll)
{
    matrix<double> out(6, 1, 9.0);
    int seed = 1;
    int next = 0;
    GenerateRandomIndicator(&out, 6, -3, &seed, 1, &next);
    EXPECT_EQ(cellsOf(out), doubles(6, 0.0));
    GenerateRandomIndicator(&out, 6, 99, &seed, 1, &next);
    EXPECT_EQ(cellsOf(out), doubles(6, 1.0));
}

TEST_F(Indicator, EqualDrawsCountInTheirOrder)
{
    // Both states 0 after every step: all draws are equal.
    setStates(0, 0, 0);
    exchangeLocalClock([](SYSTEMTIME& time) {
        time = {};
        time.wYear = 1899;
        time.wMonth = 12;
        time.wDay = 30;
        return true;
    });
    matrix<double> out(5, 1, 9.0);
    int seed = 0;
    int next = 0;
    GenerateRandomIndicator(&out, 5, 2, &seed, 1, &next);
    EXPECT_EQ(cellsOf(out), (doubles{1, 1, 0, 0, 0}));
}

TEST_F(Indicator, OfNothingSeedsAllTheSame)
{
    for (const int n : {0, -5}) {
        matrix<double> out(2, 1, 9.0);
        int seed = 12345;
        int next = 0;
        GenerateRandomIndicator(&out, n, 1, &seed, 1, &next);
        EXPECT_EQ(cellsOf(out), doubles(2, 9.0));
        EXPECT_EQ(next, 12345);
    }
}

TEST_F(Indicator, WithoutASeedReportsTheOneInUse)
{
    setStates(0, 493972830, 1);
    matrix<double> out(4, 1, 9.0);
    int seed = 0;
    int next = 0;
    GenerateRandomIndicator(&out, 4, 2, &seed, 0, &next);
    EXPECT_EQ(seed, 493972830);
}

TEST_F(Indicator, DrawsAlsoForElementsThatAreNotThere)
{
    matrix<double> out(2, 1, 9.0);
    int seed = 12345;
    int next = 0;
    GenerateRandomIndicator(&out, 5, 0, &seed, 1, &next);
    plain_source source(0, 12345);
    for (int i = 0; i < 5; ++i) {
        source.raw();
    }
    EXPECT_EQ(next, source.nextSeed());
    EXPECT_EQ(cellsOf(out), doubles(2, 0.0));
}

} // namespace korvel::test
