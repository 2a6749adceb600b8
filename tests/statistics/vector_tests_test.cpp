#include "statistics/vector_tests.h"

#include "support/random_cells.h"

#include <cmath>
#include <functional>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;
using vector_test = std::function<short int(matrix<double>*, int)>;
constexpr double missing = MISSING_DBL;

const vector_test isPositive = [](auto* x, int n) { return V_IsPositive(x, n, 0); };
const vector_test isStrictlyPositive = [](auto* x, int n) { return V_IsPositive(x, n, -1); };

short int holds(const vector_test& test, const numbers& cells)
{
    auto x = vectorOf(cells);
    return test(&x, static_cast<int>(cells.size()));
}

/** What the tests of one vector say about it, in the order of `tests`. */
struct given {
    numbers cells;
    std::vector<short int> expected;
};

const std::vector<std::pair<std::string, vector_test>> tests{
    {"IsPositive", isPositive},
    {"strictly", isStrictlyPositive},
    {"IsWeights", V_IsWeights},
    {"IsCWeights", V_IsCWeights},
    {"IsIndicator", V_IsIndicator},
    {"Is01", V_Is01},
    {"IsIn01", [](auto* x, int n) { return M_IsIn01(x, n, 1); }},
};

} // namespace

TEST(VectorTests, SayEachItsOwn)
{
    for (const given& vector : std::vector<given>{
             {{}, {-1, -1, 0, 0, 0, -1, -1}},
             {{0, 1, 1}, {-1, 0, -1, -1, -1, -1, -1}},
             {{0, 0}, {-1, 0, 0, 0, 0, -1, -1}},
             {{0, 1, missing}, {-1, 0, -1, -1, 0, 0, 0}},
             {{1, missing}, {-1, -1, -1, -1, 0, 0, 0}},
             {{missing, missing}, {-1, -1, 0, 0, 0, 0, 0}},
             {{0.5, 1}, {-1, -1, -1, 0, 0, 0, -1}},
             {{2, 3}, {-1, -1, -1, -1, 0, 0, 0}},
             {{1, -1e-300}, {0, 0, 0, 0, 0, 0, 0}},
             {{-0.0, 1}, {-1, 0, -1, -1, -1, -1, -1}},
             {{notANumber, 1}, {0, 0, 0, 0, 0, 0, 0}},
             {{infinite, 1}, {-1, -1, -1, 0, 0, 0, 0}},
             {{belowSentinel, 1}, {0, 0, 0, 0, 0, 0, 0}},
             {{1e-320, 0}, {-1, 0, -1, -1, 0, 0, -1}},
             {{1.0000000000000002}, {-1, -1, -1, -1, 0, 0, 0}},
         }) {
        for (std::size_t k = 0; k < tests.size(); ++k) {
            EXPECT_EQ(holds(tests[k].second, vector.cells), vector.expected[k])
                << tests[k].first << ::testing::PrintToString(vector.cells);
        }
    }
}

TEST(VectorTests, PositiveIsStrictForEveryValueButZero)
{
    auto x = vectorOf<double>({0, 1});
    EXPECT_EQ(V_IsPositive(&x, 2, 0), -1);
    EXPECT_EQ(V_IsPositive(&x, 2, -1), 0);
    EXPECT_EQ(V_IsPositive(&x, 2, 1), 0);
    EXPECT_EQ(V_IsPositive(&x, 3, 0), 0) << "the element outside reads as -1";
}

TEST(VectorTests, WholeMeansWithinATolerance)
{
    for (const auto& [cell, expected] : std::vector<std::pair<double, short int>>{
             {3.0, -1},
             {3.0 + 9e-13, -1},
             {3.0 - 9e-13, -1},
             {3.0 + 2e-12, 0},
             {3.0 - 2e-12, 0},
             {0.5, 0},
             {1e-12, -1},
             {1.1e-12, 0},
             {1e300, -1},
             {0x1p52 + 1, -1},
             {0x1p51 + 0.5, 0},
             {0x1p52 - 0.5, 0},
             {0x1p53, -1},
             {4503599627370497, -1},
         }) {
        EXPECT_EQ(holds(V_IsCWeights, {cell}), expected) << cell;
        EXPECT_EQ(holds(V_IsCWeights, {cell, 1, cell}), expected) << cell;
        const double negative = -cell;
        EXPECT_EQ(korvel::isWholeTable(vectorOf<double>({negative, 2, negative}), 3, 1), expected) << cell;
    }
    EXPECT_EQ(korvel::isWholeTable(vectorOf<double>({missing, 1}), 2, 1), -1) << "the sentinel is an integer";
    EXPECT_EQ(korvel::isWholeTable(vectorOf<double>({infinite, 1}), 2, 1), 0);
    EXPECT_EQ(korvel::isWholeTable(vectorOf<double>({notANumber, 1}), 2, 1), 0);
    EXPECT_EQ(korvel::isWholeTable(vectorOf<double>({0.5}), 0, 1), -1);
}

TEST(VectorTests, WeightsThatAreAll1)
{
    struct weights {
        numbers cells;
        short int valid;
        short int all1;
    };
    for (const weights& given : std::vector<weights>{
             {{}, 0, -1},
             {{1, 1, 1}, -1, -1},
             {{1, missing, 1}, -1, -1},
             {{missing}, 0, -1},
             {{1, 2}, -1, 0},
             {{0, 0}, 0, 0},
             {{1, 0}, -1, 0},
             {{1, -1}, 0, 0},
             {{-1, 1}, 0, 0},
             {{1, notANumber}, 0, 0},
         }) {
        auto x = vectorOf(given.cells);
        short int all1 = 77;
        EXPECT_EQ(V_IsWeightsAndAll1(&x, static_cast<int>(given.cells.size()), all1), given.valid)
            << ::testing::PrintToString(given.cells);
        EXPECT_EQ(all1, given.all1) << ::testing::PrintToString(given.cells);
    }
}

TEST(VectorTests, AnIntervalMayBeOpenAndMayPassOverMissing)
{
    struct interval {
        numbers cells;
        short int bOpen;
        short int bSkipMissing;
        short int expected;
    };
    for (const interval& given : std::vector<interval>{
             {{2, 5, 3}, 0, 0, -1},
             {{2, 5, 3}, -1, 0, 0},
             {{2, 5, 3}, 1, 0, -1},
             {{2.5, 4.5}, -1, 0, -1},
             {{5.5}, 0, 0, 0},
             {{1.5}, 0, 0, 0},
             {{3, missing}, 0, 0, 0},
             {{3, missing}, 0, 1, 0},
             {{3, missing}, 0, -1, -1},
             {{3, missing}, -1, -1, -1},
             {{3, notANumber}, 0, -1, 0},
             {{3, belowSentinel}, 0, -1, 0},
             {{}, 0, 0, -1},
         }) {
        auto x = vectorOf(given.cells);
        EXPECT_EQ(
            V_IsInInterval(&x, static_cast<int>(given.cells.size()), 2, 5, given.bOpen, given.bSkipMissing),
            given.expected)
            << ::testing::PrintToString(given.cells);
    }
    auto x = vectorOf<double>({missing, 0});
    EXPECT_EQ(V_IsInInterval(&x, 2, belowSentinel, 0, 0, 0), -1) << "compared like the others";
}

TEST(VectorTests, IndicatorsInAColumnOfChunks)
{
    auto first = vectorOf<double>({0, 1, 0});
    auto second = vectorOf<double>({0, 0, 0});
    matrix<double>* chunks[]{&first, &second};
    EXPECT_EQ(M_IsIndicatorSPV(chunks, 3, 1), -1);
    EXPECT_EQ(M_IsIndicatorSPV(chunks, 1, 1), 0) << "no 1 in the first row";
    EXPECT_EQ(M_IsIndicatorSPV(chunks, 3, 2), 0);
    EXPECT_EQ(M_IsIndicatorSPV(chunks, 0, 1), 0);
}

TEST(VectorTests, OfTables)
{
    numbers cells{0, 1, 0.5, 1, 2, 3};
    matrix<double> x(2, 3, cells.data(), false);
    EXPECT_EQ(M_IsIn01(&x, 2, 2), -1);
    EXPECT_EQ(M_IsIn01(&x, 2, 3), 0);
    EXPECT_EQ(M_IsIn01(&x, 3, 1), 0) << "a row outside reads as -1";
    x.data[1] = -4;
    const std::vector<short int> second{0, 7};
    EXPECT_EQ(korvel::isPositive(x, 2, 3, nullptr, 0), 0);
    EXPECT_EQ(korvel::isPositive(x, 2, 3, second.data(), 0), -1) << "the row is left out";
    EXPECT_EQ(korvel::isPositive(x, 2, 3, second.data(), -1), 0) << "the first has a 0";
    EXPECT_EQ(korvel::isPositive(x, 1, 3, nullptr, 0), -1);
    EXPECT_EQ(korvel::isPositive(x, 2, 0, nullptr, 0), -1);
    const std::vector<short int> none{0, 0};
    EXPECT_EQ(korvel::isPositive(x, 2, 3, none.data(), 0), 0);
}

TEST(VectorTests, CompareVectors)
{
    auto a = vectorOf<double>({1, 2, 3});
    auto b = vectorOf<double>({1, 3, 4});
    EXPECT_EQ(V_V1inferiorV2(&a, 3, &b), -1) << "equal values pass";
    EXPECT_EQ(V_V1inferiorV2(&b, 3, &a), 0);
    EXPECT_EQ(V_V1inferiorV2(&b, 1, &a), -1);
    EXPECT_EQ(V_V1inferiorV2(&b, 0, &a), -1);
    numbers cells{1, 1, 3, 0, 2, 3};
    matrix<double> m(3, 2, cells.data(), false);
    EXPECT_EQ(V_V1GreaterThanMatCols(&a, 3, &m, 2), -1) << "equal values pass";
    m.data[4] = 2.5;
    EXPECT_EQ(V_V1GreaterThanMatCols(&a, 3, &m, 2), 0);
    EXPECT_EQ(V_V1GreaterThanMatCols(&a, 3, &m, 1), -1);
    EXPECT_EQ(V_V1GreaterThanMatCols(&a, 1, &m, 2), -1);
    EXPECT_EQ(V_V1GreaterThanMatCols(&a, 0, &m, 2), -1);
    m.data[4] = notANumber;
    EXPECT_EQ(V_V1GreaterThanMatCols(&a, 3, &m, 2), 0);
    auto gap = vectorOf<double>({missing, 2, 3});
    EXPECT_EQ(V_V1inferiorV2(&gap, 3, &b), -1) << "the sentinel is compared like a number";
    EXPECT_EQ(V_V1inferiorV2(&b, 1, &gap), 0);
}

TEST(VectorTests, FindValues)
{
    auto x = vectorOf<int>({3, MISSING_LNG, 5});
    EXPECT_EQ(V_FindLng(&x, 3, 5), -1);
    EXPECT_EQ(V_FindLng(&x, 2, 5), 0);
    EXPECT_EQ(V_FindLng(&x, 3, MISSING_LNG), -1);
    EXPECT_EQ(V_FindLng(&x, 0, 3), 0);
    EXPECT_EQ(V_FindLng(&x, 4, -1), -1) << "the element outside";
    std::vector<text> words{u"a", u"", u"bc"};
    matrix<text> texts(3, 1, words.data());
    EXPECT_EQ(V_FindStr(&texts, 3, u"bc"), -1);
    EXPECT_EQ(V_FindStr(&texts, 3, u"b"), 0);
    EXPECT_EQ(V_FindStr(&texts, 3, u""), -1);
    EXPECT_EQ(V_FindStr(&texts, 2, u"bc"), 0);
    EXPECT_EQ(V_FindStr(&texts, 0, u"a"), 0);
}

TEST(VectorTests, CountTrueFlags)
{
    std::vector<short int> flags{-1, 1, 0, -1, 7, -1};
    EXPECT_EQ(V_NbTrue(flags.data(), 3), 1) << "-1, 1, 0";
    EXPECT_EQ(V_NbTrue(flags.data(), 6), 3);
    EXPECT_EQ(V_NbTrue(nullptr, 0), 0);
    EXPECT_EQ(V_NbTrueFromTo(flags.data(), 2, 4), 1);
    EXPECT_EQ(V_NbTrueFromTo(flags.data(), 4, 4), 1);
    EXPECT_EQ(V_NbTrueFromTo(flags.data(), 4, 3), 0);
    EXPECT_EQ(korvel::countTrue(vectorOf<short int>({-1, 1, -1}), 5), 2);
}

TEST(VectorTests, EqualThePlainLoops)
{
    const auto plain = [](const matrix<double>& x, int n, auto isGood) {
        short int good = -1;
        for (int i = 0; i < n; ++i) {
            if (!isGood(x[i])) {
                good = 0;
            }
        }
        return good;
    };
    forRandomVectors([&](random_cells& cells, int n, int held) {
        auto x = cells.values(held);
        // Mostly good cells, so that the one that fails may stand anywhere.
        const int bad = n > 0 ? cells.integer(0, 2 * n) : 0;
        for (int i = 0; i < held; ++i) {
            x.data[i] = i == bad ? x.data[i] : cells.integer(0, 1);
        }
        EXPECT_EQ(V_IsPositive(&x, n, 0), plain(x, n, [](double v) { return v == missing || v >= 0.0; }));
        EXPECT_EQ(V_IsPositive(&x, n, -1), plain(x, n, [](double v) { return v == missing || v > 0.0; }));
        EXPECT_EQ(V_Is01(&x, n), plain(x, n, [](double v) { return v == 0.0 || v == 1.0; }));
        EXPECT_EQ(M_IsIn01(&x, n, 1), plain(x, n, [](double v) { return 0.0 <= v && v <= 1.0; }));
        EXPECT_EQ(V_IsInInterval(&x, n, 0, 1, -1, -1),
                  plain(x, n, [](double v) { return v == missing || (0.0 < v && v < 1.0); }));
        EXPECT_EQ(korvel::isWholeTable(x, n, 1),
                  plain(x, n, [](double v) { return std::fabs(v - std::round(v)) <= 1e-12; }));
        double sum = 0.0;
        for (int i = 0; i < n; ++i) {
            sum += x[i] == missing ? 0.0 : x[i];
        }
        const bool weights = sum > 0.0 && V_IsPositive(&x, n, 0) != 0;
        EXPECT_EQ(V_IsWeights(&x, n), weights ? -1 : 0);
        EXPECT_EQ(V_IsIndicator(&x, n), sum > 0.0 && V_Is01(&x, n) != 0 ? -1 : 0);
    });
}
