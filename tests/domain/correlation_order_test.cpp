#include "domain/correlation_order.h"

#include "linalg/symmetric_eigen.h"
#include "support/random_tables.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;
using numbers = std::vector<double>;
using words = std::vector<text>;
using ints = std::vector<int>;

/** A table of three variables with what goes with it. */
struct correlations {
    numbers cells{1, 0.2, 0.9, 0.2, 1, -0.3, 0.9, -0.3, 1};
    words labels{u"a", u"b", u"c"};
    numbers pValues{0, 1, 2, 1, 11, 12, 2, 12, 22};
    ints flags{0, 1, 2, 1, 11, 12, 2, 12, 22};

    void reorder(int method)
    {
        matrix<double> corr(3, 3, cells.data(), true);
        matrix<text> names(3, 1, labels.data());
        matrix<double> p(3, 3, pValues.data(), true);
        matrix<int> f(3, 3, flags.data(), true);
        ReOrderCorrelations(&corr, 3, method, &names, &p, &f);
    }
};

} // namespace

TEST(CorrelationOrder, ByTheLargestCellComparesTheFirstVariableWithTheOthers)
{
    correlations x;
    x.reorder(1);
    // The keys are 0.9 for the first variable, and 1.0, that on the diagonal, for all others.
    EXPECT_EQ(x.labels, (words{u"b", u"c", u"a"}));
    EXPECT_EQ(x.cells, (numbers{1, -0.3, 0.2, -0.3, 1, 0.9, 0.2, 0.9, 1}));
    EXPECT_EQ(x.pValues, (numbers{11, 12, 1, 12, 22, 2, 1, 2, 0}));
    EXPECT_EQ(x.flags, (ints{11, 12, 1, 12, 22, 2, 1, 2, 0}));
    correlations large;
    large.cells[6] = 1.5;
    large.reorder(1);
    EXPECT_EQ(large.labels, (words{u"a", u"b", u"c"})) << "all keys are 1.5";
}

TEST(CorrelationOrder, ByVarianceLooksAtTheFirstRow)
{
    correlations x;
    x.reorder(2);
    // The variance of 0.2 and 0.9 is 0.245, that of 1, 0.2 and 0.9 is 0.19.
    EXPECT_EQ(x.labels, (words{u"a", u"b", u"c"}));
    correlations alike;
    alike.cells[3] = 0.2;
    alike.cells[6] = 0.3;
    alike.reorder(2);
    // That of 0.2 and 0.3 is 0.005, with the 1 it is 0.19.
    EXPECT_EQ(alike.labels, (words{u"b", u"c", u"a"}));
    correlations equal;
    equal.cells[3] = 0.5;
    equal.cells[6] = 0.5;
    equal.reorder(2);
    EXPECT_EQ(equal.labels, (words{u"b", u"c", u"a"})) << "the diagonal is missing, not 0";
    correlations apart;
    apart.cells[3] = 0.2;
    apart.cells[6] = 0.8;
    apart.reorder(2);
    // 0.18 and 0.1733: each variable counts once.
    EXPECT_EQ(apart.labels, (words{u"a", u"b", u"c"}));
}

TEST(CorrelationOrder, ByTheFirstEigenvectorSortsItsCells)
{
    correlations x;
    matrix<double> values;
    matrix<double> vectors;
    const matrix<double> table(3, 3, x.cells.data(), false);
    ASSERT_EQ(M_Eigen(table, values, vectors, 3, -1), 0);
    std::vector<std::size_t> order{0, 1, 2};
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return vectors.data[a] > vectors.data[b]; });
    const words names = x.labels;
    x.reorder(3);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(x.labels[i], names[order[i]]);
    }
    EXPECT_NE(x.labels, names);
    correlations other;
    other.cells = {1, 0.3, 0.6, 0.3, 1, -0.9, 0.6, -0.9, 1};
    other.reorder(3);
    // The vector of the largest value is (-0.27, 0.61, -0.74).
    EXPECT_EQ(other.labels, (words{u"b", u"a", u"c"}));
    correlations incomplete;
    incomplete.cells[3] = missing;
    incomplete.reorder(3);
    EXPECT_EQ(incomplete.labels, names) << "not with a missing cell";
    EXPECT_EQ(incomplete.cells[1], missing) << "the table is transposed";
}

TEST(CorrelationOrder, StaysWhereTheEigenvectorsDoNotConverge)
{
    correlations x;
    x.cells = {1, 0, 1, 0, 1, 0, 1, 0, std::numeric_limits<double>::infinity()};
    matrix<double> values;
    matrix<double> vectors;
    const matrix<double> table(3, 3, x.cells.data(), false);
    ASSERT_EQ(M_Eigen(table, values, vectors, 3, -1), -1);
    ASSERT_GT(vectors.data[1], vectors.data[0]) << "what there is by then would move the second variable up";
    x.reorder(3);
    EXPECT_EQ(x.labels, (words{u"a", u"b", u"c"}));
    EXPECT_EQ(x.cells, (numbers{1, 0, 1, 0, 1, 0, 1, 0, 1}));
    EXPECT_EQ(x.flags, (ints{0, 1, 2, 1, 11, 12, 2, 12, 22}));
}

TEST(CorrelationOrder, StaysByAnyOtherMethod)
{
    for (const int method : {0, 4, -1}) {
        correlations x;
        const correlations before;
        x.cells[0] = 7;
        x.cells[4] = missing;
        x.reorder(method);
        EXPECT_EQ(x.labels, before.labels);
        EXPECT_EQ(x.cells, before.cells) << "with the diagonal of 1";
        EXPECT_EQ(x.pValues, before.pValues);
    }
}

TEST(CorrelationOrder, TransposesWhatIsNotSymmetric)
{
    correlations x;
    x.pValues = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    x.flags = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    x.reorder(0);
    EXPECT_EQ(x.pValues, (numbers{1, 4, 7, 2, 5, 8, 3, 6, 9}));
    EXPECT_EQ(x.flags, (ints{1, 4, 7, 2, 5, 8, 3, 6, 9}));
    correlations moved;
    moved.pValues = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    moved.reorder(1);
    EXPECT_EQ(moved.pValues, (numbers{5, 8, 2, 6, 9, 3, 4, 7, 1})) << "in the order 2, 3, 1";
}

TEST(CorrelationOrder, OfNoVariablesDoesNothing)
{
    matrix<double> none(0, 1, 0.0);
    matrix<text> names(0, 1, text());
    matrix<int> flags(0, 1);
    for (int method = 0; method <= 3; ++method) {
        ReOrderCorrelations(&none, 0, method, &names, &none, &flags);
    }
    EXPECT_EQ(none.nbElem, 0U);
}
