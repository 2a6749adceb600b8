#include "statistics/conditional_summaries.h"

#include "reference/conditional_summaries.h"
#include "support/bits.h"
#include "support/random_cells.h"

#include <cmath>
#include <string>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

using numbers = std::vector<double>;
constexpr double missing = MISSING_DBL;

struct rows {
    numbers y;
    numbers g;
    numbers w;
};

struct summary {
    std::string name;
    double (*of)(matrix<double>* y, int n, matrix<double>* g, matrix<double>* w, double val);
};

const std::vector<summary> summaries{
    {"NbIf", [](auto*, int n, auto* g, auto*, double val) { return V_NbIf(g, n, val); }},
    {"NbIfW", [](auto*, int n, auto* g, auto* w, double val) { return V_NbIfW(g, n, w, val); }},
    {"SumIf", [](auto* y, int n, auto* g, auto*, double val) { return V_SumIf(y, n, g, val); }},
    {"MeanIf", [](auto* y, int n, auto* g, auto*, double val) { return V_MeanIf(y, n, g, val); }},
    {"SumIfW", [](auto* y, int n, auto* g, auto* w, double val) { return V_SumIfW(y, n, g, w, val); }},
    {"MeanIfW", [](auto* y, int n, auto* g, auto* w, double val) { return V_MeanIfW(y, n, g, w, val); }},
    {"MaxIf", [](auto* y, int n, auto* g, auto*, double val) { return V_MaxIf(y, n, g, val); }},
    {"MinIf", [](auto* y, int n, auto* g, auto*, double val) { return V_MinIf(y, n, g, val); }},
    {"VarIf", [](auto* y, int n, auto* g, auto*, double val) { return V_VarIf(y, n, g, val, 0); }},
    {"VarIf -1", [](auto* y, int n, auto* g, auto*, double val) { return V_VarIf(y, n, g, val, -1); }},
    {"VarIfW", [](auto* y, int n, auto* g, auto* w, double val) { return V_VarIfW(y, n, g, w, val, 0); }},
    {"VarIfW -1", [](auto* y, int n, auto* g, auto* w, double val) { return V_VarIfW(y, n, g, w, val, -1); }},
};

/** Expects the results of all summaries, in their order. */
void expectAll(const rows& given, double val, const numbers& expected)
{
    auto y = vectorOf(given.y);
    auto g = vectorOf(given.g);
    auto w = vectorOf(given.w);
    for (std::size_t k = 0; k < summaries.size(); ++k) {
        EXPECT_TRUE(sameBits(summaries[k].of(&y, static_cast<int>(given.y.size()), &g, &w, val), expected[k]))
            << summaries[k].name;
    }
}

} // namespace

TEST(ConditionalSummaries, OfAGroup)
{
    const rows given{{1, 7, 3, missing, 100}, {1, 2, 1, 1, missing}, {0.5, 4, 1.5, 8, 16}};
    // NbIf, NbIfW, SumIf, MeanIf, SumIfW, MeanIfW, MaxIf, MinIf, VarIf twice, VarIfW twice
    expectAll(given, 1.0, {3, 10, 4, 2, 5, 2.5, 3, 1, 1, 2, 0.75, 1.5});
    expectAll(given, 2.0, {1, 4, 7, 7, 28, 7, 7, 7, 0, missing, 0, 0});
}

TEST(ConditionalSummaries, OfAGroupThatIsNotThere)
{
    const rows given{{1, 7, 3, missing, 100}, {1, 2, 1, 1, missing}, {0.5, 4, 1.5, 8, 16}};
    numbers nothing(summaries.size(), missing);
    nothing[0] = 0.0;
    nothing[1] = 0.0;
    expectAll(given, 3.0, nothing);
    expectAll({{}, {}, {}}, 1.0, nothing);
}

TEST(ConditionalSummaries, OfTheRowsWithoutACode)
{
    // Counting and the variance take the sentinel for a code like the others.
    const rows given{{1, 7, 5, missing, 100}, {missing, 2, missing, missing, 0}, {1, 1, 2, 4, 1}};
    expectAll(given, missing,
              {3, 7, missing, missing, missing, missing, missing, missing, 4, 8, missing, missing});
}

TEST(ConditionalSummaries, SeeWeightsEachInItsWay)
{
    const rows given{{2, 10, 4, 6}, {1, 1, 1, 1}, {1, -1, 0, 3}};
    auto y = vectorOf(given.y);
    auto g = vectorOf(given.g);
    auto w = vectorOf(given.w);
    EXPECT_TRUE(sameBits(V_NbIfW(&g, 4, &w, 1.0), 4.0)) << "only positive ones";
    EXPECT_TRUE(sameBits(V_SumIfW(&y, 4, &g, &w, 1.0), 20.0)) << "only positive ones";
    EXPECT_TRUE(sameBits(V_MeanIfW(&y, 4, &g, &w, 1.0), 10.0 / 3.0)) << "all of them";
    auto none = vectorOf<double>({1, -1, 0, 0});
    EXPECT_TRUE(sameBits(V_MeanIfW(&y, 4, &g, &none, 1.0), missing));
    auto zeros = vectorOf<double>({0, 0, 0, 0});
    EXPECT_TRUE(sameBits(V_SumIfW(&y, 4, &g, &zeros, 1.0), missing));
    EXPECT_TRUE(sameBits(V_NbIfW(&g, 4, &zeros, 1.0), 0.0));
    auto gaps = vectorOf<double>({missing, notANumber, 2, 1});
    EXPECT_TRUE(sameBits(V_NbIfW(&g, 4, &gaps, 1.0), 3.0));
    EXPECT_TRUE(sameBits(V_SumIfW(&y, 4, &g, &gaps, 1.0), 14.0));
}

TEST(ConditionalSummaries, AFirstWeightOfZeroMakesTheVarianceANan)
{
    auto y = vectorOf<double>({1, 3});
    auto g = vectorOf<double>({1, 1});
    auto w = vectorOf<double>({0, 2});
    EXPECT_TRUE(sameBits(V_VarIfW(&y, 2, &g, &w, 1.0, 0), notANumber));
    EXPECT_TRUE(sameBits(V_VarIfSup0W(&y, 2, &g, &w, 0), notANumber));
}

TEST(ConditionalSummaries, TheThreeVariancesDiffer)
{
    auto y = vectorOf<double>({2, 6});
    auto g = vectorOf<double>({1, 1});
    auto w = vectorOf<double>({1, 3});
    EXPECT_TRUE(sameBits(V_VarIf(&y, 2, &g, 1.0, 0), 4.0));
    EXPECT_TRUE(sameBits(V_VarIfW(&y, 2, &g, &w, 1.0, 0), 3.0));
    EXPECT_TRUE(sameBits(V_VarIfSup0W(&y, 2, &g, &w, 0), 9.0));
    EXPECT_TRUE(sameBits(V_VarIf(&y, 2, &g, 1.0, -1), 8.0));
    EXPECT_TRUE(sameBits(V_VarIfW(&y, 2, &g, &w, 1.0, -1), 4.0));
    EXPECT_TRUE(sameBits(V_VarIfSup0W(&y, 2, &g, &w, -1), 12.0));
    EXPECT_TRUE(sameBits(V_VarIf(&y, 2, &g, 1.0, 1), 4.0)) << "only -1 is true";
}

TEST(ConditionalSummaries, VarIfSup0WTakesCodesAboveItsTolerance)
{
    auto y = vectorOf<double>({1, 3, 50, 60, notANumber, belowSentinel});
    auto g = vectorOf<double>({2, 7, 1e-12, -1, 1, 1});
    auto w = vectorOf<double>({2, 2, 2, 2, 2, 2});
    EXPECT_TRUE(sameBits(V_VarIfSup0W(&y, 6, &g, &w, 0), 7.0 / 4.0)) << "1 and 6";
    EXPECT_TRUE(sameBits(V_VarIfW(&y, 6, &g, &w, 1.0, 0), notANumber)) << "which keeps a NaN";
}

TEST(ConditionalSummaries, ExtremesStartFromTheEndsOfTheScale)
{
    auto g = vectorOf<double>({1, 1});
    auto low = vectorOf<double>({belowSentinel, -infinite});
    EXPECT_TRUE(sameBits(V_MaxIf(&low, 2, &g, 1.0), missing));
    EXPECT_TRUE(sameBits(V_MinIf(&low, 2, &g, 1.0), -infinite));
    auto high = vectorOf<double>({infinite, largest});
    EXPECT_TRUE(sameBits(V_MinIf(&high, 2, &g, 1.0), missing));
    const double start = -MISSING_DBL;
    auto atStart = vectorOf<double>({start, start});
    EXPECT_TRUE(sameBits(V_MinIf(&atStart, 2, &g, 1.0), missing));
    atStart.data[1] = std::nextafter(start, 0.0);
    EXPECT_TRUE(sameBits(V_MinIf(&atStart, 2, &g, 1.0), atStart.data[1]));
    EXPECT_TRUE(sameBits(V_MaxIf(&high, 2, &g, 1.0), infinite));
    auto unordered = vectorOf<double>({notANumber, notANumber});
    EXPECT_TRUE(sameBits(V_MinIf(&unordered, 2, &g, 1.0), missing));
    EXPECT_TRUE(sameBits(V_MaxIf(&unordered, 2, &g, 1.0), missing));
}

TEST(ConditionalSummaries, OfIntegers)
{
    auto codes = vectorOf<int>({4, MISSING_LNG, 4, 2147483647});
    EXPECT_TRUE(sameBits(V_NbIf(&codes, 4, 4), 2.0));
    EXPECT_TRUE(sameBits(V_NbIf(&codes, 4, MISSING_LNG), 1.0));
    auto y = vectorOf<double>({0.5, 8, 1.5, 3});
    EXPECT_TRUE(sameBits(V_SumIf(&y, 4, &codes, 4), 2.0));
    EXPECT_TRUE(sameBits(V_SumIf(&y, 4, &codes, 2147483647), 3.0));
    EXPECT_TRUE(sameBits(V_SumIf(&y, 4, &codes, MISSING_LNG), missing)) << "no group";
    EXPECT_TRUE(sameBits(V_SumIf(&y, 4, &codes, 5), missing));
    EXPECT_TRUE(sameBits(V_MaxIf(&y, 4, &codes, 4), 1.5));
    EXPECT_TRUE(sameBits(V_MinIf(&y, 4, &codes, 4), 0.5));
    auto counts = vectorOf<int>({-3, 8, MISSING_LNG, 9});
    EXPECT_TRUE(sameBits(V_MaxIf(&counts, 4, &codes, 4), -3.0));
    EXPECT_TRUE(sameBits(V_MinIf(&counts, 4, &codes, 4), -3.0)) << "a missing integer does not count";
    EXPECT_TRUE(sameBits(V_MaxIf(&counts, 4, &codes, 5), missing));
}

TEST(ConditionalSummaries, EqualThePlainLoops)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto y = cells.values(held);
        auto w = cells.weights(n);
        auto g = cells.values(n);
        for (int i = 0; i < n; ++i) {
            g.data[i] = cells.integer(0, 3) == 0 ? g.data[i] : cells.integer(0, 2);
        }
        for (const double val : {0.0, 1.0, 2.0, missing, notANumber}) {
            for (const short int unbiased : {short{0}, short{-1}}) {
                EXPECT_TRUE(
                    sameBits(V_VarIf(&y, n, &g, val, unbiased), reference::varIf(y, n, g, val, unbiased)));
                EXPECT_TRUE(sameBits(V_VarIfW(&y, n, &g, &w, val, unbiased),
                                     reference::varIfW(y, n, g, w, val, unbiased)));
                EXPECT_TRUE(sameBits(V_VarIfSup0W(&y, n, &g, &w, unbiased),
                                     reference::varIfSup0W(y, n, g, w, unbiased)));
            }
            EXPECT_TRUE(sameBits(V_NbIf(&g, n, val), reference::nbIf(g, n, val)));
            EXPECT_TRUE(sameBits(V_NbIfW(&g, n, &w, val), reference::nbIfW(g, n, w, val)));
            EXPECT_TRUE(sameBits(V_SumIf(&y, n, &g, val), reference::sumIf(y, n, g, val)));
            EXPECT_TRUE(sameBits(V_MeanIf(&y, n, &g, val), reference::meanIf(y, n, g, val)));
            EXPECT_TRUE(sameBits(V_SumIfW(&y, n, &g, &w, val), reference::sumIfW(y, n, g, w, val)));
            EXPECT_TRUE(sameBits(V_MeanIfW(&y, n, &g, &w, val), reference::meanIfW(y, n, g, w, val)));
            EXPECT_TRUE(sameBits(V_MaxIf(&y, n, &g, val), reference::maxIf(y, n, g, val)));
            EXPECT_TRUE(sameBits(V_MinIf(&y, n, &g, val), reference::minIf(y, n, g, val)));
        }
    });
}
