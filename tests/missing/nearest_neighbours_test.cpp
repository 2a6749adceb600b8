#include "missing/nearest_neighbours.h"

#include "support/bits.h"
#include "support/special_values.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;
using numbers = std::vector<double>;
using words = std::vector<text>;
using shorts = std::vector<short int>;

/** Three groups of columns, each given column after column, with the flags of their rows. */
struct survey {
    int rows;
    shorts flags;
    numbers primary;
    numbers second;
    words third;

    /** Fills the flagged rows. The statistics are those of the tables themselves, with all weights 1. */
    void fill(const matrix<double>* weights = nullptr)
    {
        matrix<double> a(rows, columnsOf(primary), primary.data(), true);
        matrix<double> b(rows, columnsOf(second), second.data(), true);
        matrix<text> c(rows, columnsOf(third), third.data());
        matrix<double>* first = primary.empty() ? nullptr : &a;
        matrix<double>* middle = second.empty() ? nullptr : &b;
        matrix<text>* last = third.empty() ? nullptr : &c;
        EstimateRowsWithMissingNN(first, rows, first, rows, columnsOf(primary), flags.data(), middle, middle,
                                  columnsOf(second), last, last, columnsOf(third),
                                  const_cast<matrix<double>*>(weights));
    }

    template <class T>
    int columnsOf(const std::vector<T>& cells) const
    {
        return static_cast<int>(cells.size()) / rows;
    }
};

} // namespace

TEST(NearestNeighbours, GiveTheirValueTheEarlierOfEquals)
{
    survey x{4, {0, -1, 0, 0}, {4, 5, 7, 6, 10, missing, 30, 40}, {}, {}};
    x.fill();
    EXPECT_EQ(x.primary, (numbers{4, 5, 7, 6, 10, 10, 30, 40})) << "rows 1 and 4 are as far";
    survey late{4, {0, -1, 0, 0}, {4, 5, 7, 5.5, 10, missing, 30, 40}, {}, {}};
    late.fill();
    EXPECT_EQ(late.primary[5], 40) << "the last row is nearer";
}

TEST(NearestNeighbours, AreMeasuredInVariances)
{
    // The second column has a variance of 100/3, the first one of 1/3: row 1 is at 3 in all, row 3 at 0.75.
    survey x{4, {0, -1, 0, 0}, {0, 1, 1, 1, 50, 50, 45, 60, 7, missing, 8, 9}, {}, {}};
    x.fill();
    EXPECT_EQ(x.primary[9], 8);
}

TEST(NearestNeighbours, AreMeasuredInWeightedVariances)
{
    // With these weights the second column varies little, and its difference counts for more.
    survey x{4, {0, -1, 0, 0}, {0, 1, 1, 1, 50, 50, 45, 60, 7, missing, 8, 9}, {}, {}};
    const numbers weights{1, 1, 1e-9, 1e-9};
    const matrix<double> w(4, 1, const_cast<double*>(weights.data()), true);
    x.fill(&w);
    EXPECT_EQ(x.primary[9], 7);
}

TEST(NearestNeighbours, MustHaveAllOtherCells)
{
    survey x{4, {0, -1, 0, 0}, {1, 1, 1, missing, missing, 2, missing, 2, 10, missing, 30, 50}, {}, {}};
    x.fill();
    EXPECT_EQ(x.primary[9], 30) << "the mean: every candidate lacks something";
    survey second{3, {0, -1, 0}, {1, 1, 2, 10, missing, 20}, {missing, 5, 6}, {}};
    second.fill();
    EXPECT_EQ(second.primary[4], 20) << "the nearer one lacks a number of the second group";
    survey third{3, {0, -1, 0}, {1, 1, 2, 10, missing, 20}, {}, {u"", u"b", u"c"}};
    third.fill();
    EXPECT_EQ(third.primary[4], 20) << "the nearer one lacks a text";
}

TEST(NearestNeighbours, MayLackTheTargetOnlyWithoutOtherGroups)
{
    survey x{3, {0, -1, 0}, {1, 1, 2, missing, missing, 20}, {}, {}};
    x.fill();
    EXPECT_SAME_BITS(x.primary[4], missing);
    survey second{3, {0, -1, 0}, {1, 1, 2, missing, missing, 20}, {5, 5, 6}, {}};
    second.fill();
    EXPECT_EQ(second.primary[4], 20);
    survey third{3, {0, -1, 0}, {1, 1, 2, missing, missing, 20}, {}, {u"a", u"a", u"b"}};
    third.fill();
    EXPECT_EQ(third.primary[4], 20);
    survey target{3, {0, -1, 0}, {}, {1, 1, 2, missing, missing, 20}, {}};
    target.fill();
    EXPECT_EQ(target.second[4], 20) << "a candidate must have all numbers of the second group";
}

TEST(NearestNeighbours, AreNoneWhenNothingWasCompared)
{
    survey x{3, {0, -1, 0}, {10, missing, 20}, {}, {u"a", u"a", u"a"}};
    x.fill();
    EXPECT_EQ(x.primary[1], 15) << "equal texts are not a comparison";
    survey constant{3, {0, -1, 0}, {4, 4, 4, 10, missing, 20}, {}, {}};
    constant.fill();
    EXPECT_EQ(constant.primary[4], 15) << "nor is a column without variance";
    survey differing{3, {0, -1, 0}, {10, missing, 20}, {}, {u"a", u"a", u"b"}};
    differing.fill();
    EXPECT_EQ(differing.primary[1], 20) << "a different text is one, also when it is farther than none";
    survey own{3, {0, -1, 0}, {10, missing, 20}, {}, {u"a", u"", u"b"}};
    own.fill();
    EXPECT_EQ(own.primary[1], 15) << "an empty text of the row is not";
}

TEST(NearestNeighbours, SeeWhatWasFilledBefore)
{
    // Nothing can be compared for the first target, so it takes the mean, 15. For the second target that is
    // compared: row 4 is the nearest, and the mean would be 4.
    survey x{4, {0, -1, 0, 0}, {10, missing, 19, 16, 1, missing, 2, 9}, {}, {}};
    x.fill();
    EXPECT_EQ(x.primary, (numbers{10, 15, 19, 16, 1, 9, 2, 9}));
    survey second{4, {0, -1, 0, 0}, {}, {10, missing, 19, 16, 1, missing, 2, 9}, {}};
    second.fill();
    EXPECT_EQ(second.second, (numbers{10, 15, 19, 16, 1, 9, 2, 9}));
    survey third{4, {0, -1, 0, 0}, {}, {10, missing, 19, 16}, {u"a", u"", u"b", u"c"}};
    third.fill();
    EXPECT_EQ(third.third[1], u"c") << "by the number that was filled, 15";
}

TEST(NearestNeighbours, OfTheSecondGroupKnowNoPrimaryColumn)
{
    survey x{3, {0, -1, 0}, {1, 9, 9}, {5, 5, 6, 10, missing, 20}, {}};
    x.fill();
    EXPECT_EQ(x.second[4], 10) << "row 3 is the same in the primary column";
    survey lacking{3, {0, -1, 0}, {missing, 9, 9}, {5, 5, 6, 10, missing, 20}, {}};
    lacking.fill();
    EXPECT_EQ(lacking.second[4], 10) << "and row 1 may lack it";
    survey texts{3, {0, -1, 0}, {}, {5, 5, 5, 10, missing, 20}, {u"a", u"b", u"b"}};
    texts.fill();
    EXPECT_EQ(texts.second[4], 10) << "row 3 was not compared, row 1 has a different text";
    survey fallback{3, {0, -1, 0}, {}, {10, missing, 20}, {u"", u"b", u"b"}};
    fallback.fill();
    EXPECT_EQ(fallback.second[1], 15);
}

TEST(NearestNeighbours, GiveTexts)
{
    survey x{3, {0, -1, 0}, {1, 9, 9}, {5, 5.9, 6}, {u"a", u"", u"b"}};
    x.fill();
    EXPECT_EQ(x.third[1], u"b");
    survey texts{4, {0, -1, 0, 0}, {}, {}, {u"a", u"b", u"c", u"c", u"x", u"", u"y", u"z"}};
    texts.fill();
    EXPECT_EQ(texts.third[5], u"x") << "all are as far";
    survey mode{4, {0, -1, 0, 0}, {}, {}, {u"b", u"b", u"b", u"b", u"x", u"", u"y", u"y"}};
    mode.fill();
    EXPECT_EQ(mode.third[5], u"y") << "none was compared";
    survey empty{3, {0, -1, 0}, {}, {1, 2, 3}, {u"", u"", u"c"}};
    empty.fill();
    EXPECT_EQ(empty.third[1], u"c") << "an empty text is not given";
}

TEST(NearestNeighbours, OfTextsMayLackTheNumberInTheSameColumn)
{
    // Rows 1 and 3 differ from row 2 in the last text; row 1, without its first number, comes first.
    const words third{u"a", u"", u"b", u"r", u"s", u"t"};
    survey unvaried{3, {0, -1, 0}, {}, {missing, 4, 4}, third};
    unvaried.fill();
    EXPECT_EQ(unvaried.third[1], u"a") << "the column has no variance, so it is not compared";
    survey varied{3, {0, -1, 0}, {}, {missing, 4, 5}, third};
    varied.fill();
    EXPECT_EQ(varied.third[1], u"b") << "compared with nothing, the distance is infinite";
    survey other{3, {0, -1, 0}, {}, {missing, 4, 4}, {u"r", u"s", u"t", u"a", u"", u"b"}};
    other.fill();
    EXPECT_EQ(other.third[4], u"b") << "the column of the number is not that of the text";
}

TEST(NearestNeighbours, AreRowsWithoutFlag)
{
    survey x{5, {0, 7, 1, 0, 0}, {1, 2, 2, 4, missing, 10, missing, 30, 40, missing}, {}, {}};
    x.fill();
    EXPECT_EQ(x.primary, (numbers{1, 2, 2, 4, missing, 10, 10, 30, 40, missing}))
        << "row 3 is flagged and gives nothing, row 5 is not and stays";
    survey none{2, {-1, -1}, {1, 2, 5, missing}, {}, {}};
    none.fill();
    EXPECT_EQ(none.primary[3], 5) << "no candidate: the mean";
    numbers cells{1, missing};
    matrix<double> a(2, 1, cells.data(), true);
    auto* table = &a;
    matrix<double>* noNumbers = nullptr;
    matrix<text>* noTexts = nullptr;
    EstimateRowsWithMissingNN(table, 2, table, 2, 1, nullptr, nullptr, noNumbers, 0, nullptr, noTexts, 0,
                              nullptr);
    EXPECT_EQ(cells, (numbers{1, missing})) << "without flags no row is";
}

TEST(NearestNeighbours, AreNoneAtAnInfiniteDistanceOrANaN)
{
    survey distant{3, {0, -1, 0}, {infinite, 1, 2, 10, missing, 20}, {}, {}};
    const numbers weights{0, 1, 1};
    const matrix<double> w(3, 1, const_cast<double*>(weights.data()), true);
    distant.fill(&w);
    EXPECT_EQ(distant.primary[4], 20);
    survey unknown{3, {0, -1, 0}, {notANumber, 1, 2, 10, missing, 20}, {}, {}};
    unknown.fill(&w);
    EXPECT_EQ(unknown.primary[4], 20) << "a NaN is a cell, but at no distance";
    survey only{3, {0, -1, 0}, {notANumber, 1, 1, 10, missing, missing}, {}, {}};
    only.fill();
    EXPECT_EQ(only.primary[4], 10) << "the mean";
}

TEST(NearestNeighbours, FillWhatIsBelowTheSentinel)
{
    survey x{3, {0, -1, 0}, {1, 1, 2, 10, belowSentinel, 20}, {}, {}};
    const numbers weights{1, 0, 1};
    const matrix<double> w(3, 1, const_cast<double*>(weights.data()), true);
    x.fill(&w);
    EXPECT_EQ(x.primary[4], 10);
}

TEST(NearestNeighbours, LearnFromOneTableAndFillAnother)
{
    // The variances of the first table make row 3 the nearer one; by their own it would be row 1.
    numbers learnt{0, 100, 50, 50.1, 1, 3};
    numbers cells{0, 1, 1, 50, 50, 45, 7, missing, 8};
    learnt.resize(6);
    matrix<double> statistics(2, 3, learnt.data(), true);
    matrix<double> filled(3, 3, cells.data(), true);
    auto* table = &filled;
    shorts flags{0, -1, 0};
    matrix<double>* noNumbers = nullptr;
    matrix<text>* noTexts = nullptr;
    EstimateRowsWithMissingNN(&statistics, 2, table, 3, 3, flags.data(), nullptr, noNumbers, -1, nullptr,
                              noTexts, -1, nullptr);
    EXPECT_EQ(cells[7], 7);
    EXPECT_EQ(filled.oobValue, 7) << "the last value stored";
    shorts all{-1, -1, -1};
    cells[7] = missing;
    EstimateRowsWithMissingNN(&statistics, 2, table, 3, 3, all.data(), nullptr, noNumbers, 0, nullptr,
                              noTexts, 0, nullptr);
    EXPECT_EQ(cells[7], 2) << "the mean of the other table";
}

TEST(NearestNeighbours, MayBeAtAnyFiniteDistance)
{
    // The variance is 1e-300, so the distance is 1e306.
    numbers learnt{0, std::sqrt(2e-300), 1, 3};
    numbers cells{1000, 0, 7, missing};
    matrix<double> statistics(2, 2, learnt.data(), true);
    matrix<double> filled(2, 2, cells.data(), true);
    auto* table = &filled;
    shorts flags{0, -1};
    matrix<double>* noNumbers = nullptr;
    matrix<text>* noTexts = nullptr;
    EstimateRowsWithMissingNN(&statistics, 2, table, 2, 2, flags.data(), nullptr, noNumbers, 0, nullptr,
                              noTexts, 0, nullptr);
    EXPECT_EQ(cells[3], 7);
}

TEST(NearestNeighbours, AreFoundAmongDistancesTooSmallForNormalNumbers)
{
    // Distances are counted in units of the smallest double. All variances are the double next to 0.8, which
    // is a little more than 0.8. So a square of six units gives 7, and not 7.5, which would be rounded to 8;
    // one of eighteen gives 22. The first row is at 22 units, the last candidate at 3 times 7.
    const double s = std::sqrt(1.6);
    ASSERT_EQ(s * s / 2, 0.8);
    const double unit = std::ldexp(1.0, -537);
    constexpr int rows = 10;
    numbers cells(4 * rows, 1.0);
    for (std::size_t j = 0; j < 3; ++j) {
        cells[j * rows] = j == 0 ? std::sqrt(18.0) * unit : 0.0;
        cells[j * rows + 8] = std::sqrt(6.0) * unit;
        cells[j * rows + 9] = 0.0;
    }
    for (std::size_t i = 0; i < rows; ++i) {
        cells[3 * rows + i] = i == 9 ? missing : static_cast<double>(i);
    }
    numbers learnt{0, s, 0, s, 0, s, 0, 1};
    matrix<double> statistics(2, 4, learnt.data(), true);
    matrix<double> filled(rows, 4, cells.data(), true);
    auto* table = &filled;
    shorts flags(rows);
    flags[9] = -1;
    matrix<double>* noNumbers = nullptr;
    matrix<text>* noTexts = nullptr;
    EstimateRowsWithMissingNN(&statistics, 2, table, rows, 4, flags.data(), nullptr, noNumbers, 0, nullptr,
                              noTexts, 0, nullptr);
    EXPECT_EQ(cells.back(), 8);
}

TEST(NearestNeighbours, ComparePrimaryTextsToo)
{
    words primary{u"a", u"b", u"b", u"x", u"", u"y", u"p", u"p", u"q"};
    numbers second{5, 5, 6};
    matrix<text> a(3, 3, primary.data());
    matrix<double> b(3, 1, second.data(), true);
    matrix<text>* first = &a;
    matrix<double>* middle = &b;
    matrix<text>* last = nullptr;
    shorts flags{0, -1, 0};
    EstimateRowsWithMissingNNStr(&a, 3, first, 3, 3, flags.data(), &b, middle, 1, nullptr, last, 0, nullptr);
    EXPECT_EQ(primary[4], u"x") << "one text differs; of row 3 one text and one number do";
    primary = {u"a", u"a", u"a", u"x", u"", u"y", u"", u"r", u""};
    second = {missing, 5, missing};
    EstimateRowsWithMissingNNStr(&a, 3, first, 3, 2, flags.data(), &b, middle, 1, nullptr, last, 0, nullptr);
    EXPECT_EQ(primary[4], u"x") << "no candidate has a number: the mode, the first of equals";
    primary = {u"", u"a", u"b", u"x", u"", u"y", u"", u"r", u""};
    EstimateRowsWithMissingNNStr(&a, 3, first, 3, 2, flags.data(), nullptr, middle, 0, nullptr, last, 0,
                                 nullptr);
    EXPECT_EQ(primary[4], u"y") << "row 1 lacks the other text";
}
