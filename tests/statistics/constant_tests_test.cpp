#include "statistics/constant_tests.h"

#include "support/random_cells.h"

#include <algorithm>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;

template <class T>
struct given {
    std::vector<T> cells;
    short int everyCell;
    short int presentCells;
};

template <class T>
matrix<T> cellsOf(const std::vector<T>& cells)
{
    matrix<T> made(static_cast<int>(cells.size()), 1, T{});
    std::copy(cells.begin(), cells.end(), made.data);
    return made;
}

template <class T, class Test>
void expectTests(Test test, const std::vector<given<T>>& cases)
{
    for (std::size_t k = 0; k < cases.size(); ++k) {
        auto x = cellsOf(cases[k].cells);
        const int n = static_cast<int>(cases[k].cells.size());
        EXPECT_EQ(test(&x, n, short{0}), cases[k].everyCell) << k;
        EXPECT_EQ(test(&x, n, short{1}), cases[k].everyCell) << k << ": only -1 is true";
        EXPECT_EQ(test(&x, n, short{-1}), cases[k].presentCells) << k;
    }
}

} // namespace

TEST(ConstantTests, OfNumbers)
{
    const auto test = [](auto* x, int n, short int skip) { return V_IsConstant(x, n, skip, 1); };
    expectTests<double>(test, {
                                  {{}, -1, -1},
                                  {{3}, -1, -1},
                                  {{3, 3, 3}, -1, -1},
                                  {{3, 3, 4}, 0, 0},
                                  {{missing, 3, 3}, 0, -1},
                                  {{3, missing, 3, 4}, 0, 0},
                                  {{missing, missing}, -1, -1},
                                  {{missing, 3, missing}, 0, -1},
                                  {{0.0, -0.0}, -1, -1},
                                  {{notANumber}, -1, -1},
                                  {{notANumber, notANumber}, 0, 0},
                                  {{notANumber, missing}, 0, -1},
                                  {{belowSentinel, missing}, 0, -1},
                                  {{3, 3.0000000000000004}, 0, 0},
                              });
}

TEST(ConstantTests, OfIntegers)
{
    expectTests<int>(V_IsConstantLng, {
                                          {{}, -1, -1},
                                          {{3, 3}, -1, -1},
                                          {{3, 4}, 0, 0},
                                          {{MISSING_LNG, 3, 3}, 0, -1},
                                          {{MISSING_LNG, MISSING_LNG}, -1, -1},
                                          {{3, MISSING_LNG, 4}, 0, 0},
                                      });
}

TEST(ConstantTests, OfTexts)
{
    expectTests<text>(V_IsConstantStr, {
                                           {{}, -1, -1},
                                           {{u"a", u"a"}, -1, -1},
                                           {{u"a", u"A"}, 0, 0},
                                           {{u"", u"a", u"a"}, 0, -1},
                                           {{u"", u""}, -1, -1},
                                           {{u"a", u"", u"b"}, 0, 0},
                                           {{u"a", u"a "}, 0, 0},
                                       });
}

TEST(ConstantTests, OfFlags)
{
    short int flags[]{-1, -1, 1, 0};
    EXPECT_EQ(V_IsConstantBool(flags, 0), -1);
    EXPECT_EQ(V_IsConstantBool(flags, 2), -1);
    EXPECT_EQ(V_IsConstantBool(flags, 3), 0) << "two ways to be true";
    EXPECT_EQ(V_IsConstantBool(flags + 3, 1), -1);
    EXPECT_EQ(V_IsConstantBool(nullptr, 0), -1);
}

TEST(ConstantTests, OfAColumn)
{
    std::vector<double> cells{1, 1, 1, 2, 2, missing, 5, 6, 7};
    matrix<double> x(3, 3, cells.data(), false);
    EXPECT_EQ(V_IsConstant(&x, 3, 0, 1), -1);
    EXPECT_EQ(V_IsConstant(&x, 3, 0, 2), 0);
    EXPECT_EQ(V_IsConstant(&x, 3, -1, 2), -1);
    EXPECT_EQ(V_IsConstant(&x, 3, -1, 3), 0);
    EXPECT_EQ(V_IsConstant(&x, 1, 0, 3), -1) << "one row";
    EXPECT_EQ(V_IsConstant(&x, 3, 0, 4), -1) << "outside all cells read alike";
    EXPECT_EQ(V_IsConstant(&x, 4, 0, 1), 0) << "the row outside reads as -1";
}

TEST(ConstantTests, OfAllCellsOfATable)
{
    std::vector<double> cells{4, 4, missing, 4};
    matrix<double> x(2, 2, cells.data(), false);
    EXPECT_EQ(M_IsConstant(&x, 1, 0), 0);
    EXPECT_EQ(M_IsConstant(&x, 1, -1), -1);
    x.data[3] = 5;
    EXPECT_EQ(M_IsConstant(&x, 1, -1), 0) << "the last cell counts whatever the argument says";
    EXPECT_EQ(M_IsConstant(&x, 0, -1), 0);
    matrix<double> empty;
    EXPECT_EQ(M_IsConstant(&empty, 3, 0), -1);
}

TEST(ConstantTests, OfEachColumn)
{
    std::vector<double> cells{1, missing, 1, 2, 2, 2, 5, 6, 5};
    matrix<double> x(3, 3, cells.data(), false);
    EXPECT_EQ(M_EachColIsConstant(&x, 3, 2), -1) << "each by itself, missing cells passed over";
    EXPECT_EQ(M_EachColIsConstant(&x, 3, 3), 0);
    EXPECT_EQ(M_EachColIsConstant(&x, 1, 3), -1);
    EXPECT_EQ(M_EachColIsConstant(&x, 0, 3), -1);
    EXPECT_EQ(M_EachColIsConstant(&x, 3, 0), -1);
    matrix3D<matrix<double>> chunks(2, 3, 2, 7.0);
    EXPECT_EQ(M_EachColIsConstant(&chunks, 3, 2), -1);
    chunks.setElement(1, 2, missing);
    EXPECT_EQ(M_EachColIsConstant(&chunks, 3, 2), -1);
    chunks.setElement(1, 2, 8.0);
    EXPECT_EQ(M_EachColIsConstant(&chunks, 3, 2), 0);
    EXPECT_EQ(M_EachColIsConstant(&chunks, 3, 1), -1);
}

TEST(ConstantTests, FindTheOneThatDiffersAnywhere)
{
    for (const int n : {1, 2, 255, 256, 257, 258, 700}) {
        std::vector<double> cells(static_cast<std::size_t>(n), 2.0);
        std::vector<int> counts(static_cast<std::size_t>(n), 2);
        for (int i = 0; i < n; ++i) {
            cells[static_cast<std::size_t>(i)] = 3.0;
            counts[static_cast<std::size_t>(i)] = 3;
            auto x = vectorOf(cells);
            auto y = vectorOf(counts);
            for (const short int skip : {short{0}, short{-1}}) {
                EXPECT_EQ(V_IsConstant(&x, n, skip, 1), n == 1 ? -1 : 0) << n << ' ' << i;
                EXPECT_EQ(V_IsConstantLng(&y, n, skip), n == 1 ? -1 : 0) << n << ' ' << i;
            }
            cells[static_cast<std::size_t>(i)] = missing;
            counts[static_cast<std::size_t>(i)] = MISSING_LNG;
            auto gap = vectorOf(cells);
            auto countGap = vectorOf(counts);
            EXPECT_EQ(V_IsConstant(&gap, n, -1, 1), -1);
            EXPECT_EQ(V_IsConstantLng(&countGap, n, -1), -1);
            EXPECT_EQ(V_IsConstant(&gap, n, 0, 1), n == 1 ? -1 : 0);
            cells[static_cast<std::size_t>(i)] = 2.0;
            counts[static_cast<std::size_t>(i)] = 2;
        }
    }
}
