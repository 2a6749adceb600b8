#include "domain/horizontal_format.h"

#include "support/random_cells.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;
using numbers = std::vector<double>;

/** Two variables of two subjects at three times, and what becomes of them. */
struct measures {
    std::vector<int> subjects{2, 1, 1, 2, 1, 2};
    std::vector<int> times{1, 3, 1, 2, 2, 3};
    std::vector<numbers> columns{{21, 13, 11, 22, 12, 23}, {210, 130, 110, 220, 120, 230}};
    cST_MVect<double> wide{2, 6};
    matrix<text> labels{2, 1, text(u"label")};
    matrix<text> outLabels{2, 1, text()};

    int transform(int n = 6, int v = 2, int subjectCount = 2, int timeCount = 3)
    {
        cST_MVect<double> table(6, static_cast<int>(columns.size()));
        for (std::size_t j = 0; j < columns.size(); ++j) {
            std::copy(columns[j].begin(), columns[j].end(), table.Vectors[j].Vect.data);
        }
        auto subjectOf = vectorOf(subjects);
        auto timeOf = vectorOf(times);
        return CheckAndTransformToHorizontalFormat(table, n, v, subjectOf, timeOf, wide, subjectCount,
                                                   timeCount, labels, outLabels);
    }

    std::vector<numbers> cells() const
    {
        std::vector<numbers> found;
        for (const auto& column : wide.Vectors) {
            found.emplace_back(column.Vect.data, column.Vect.data + 2);
        }
        return found;
    }
};

} // namespace

TEST(HorizontalFormat, HasAColumnForEachTimeAndVariable)
{
    measures x;
    EXPECT_EQ(x.transform(), 0);
    EXPECT_EQ(x.cells(),
              (std::vector<numbers>{{11, 21}, {110, 210}, {12, 22}, {120, 220}, {13, 23}, {130, 230}}));
    EXPECT_EQ(x.outLabels.data[0], u"label");
    EXPECT_EQ(x.outLabels.data[1], u"label");
}

TEST(HorizontalFormat, RefusesASubjectTwiceAtATime)
{
    measures x;
    x.times[3] = 1;
    EXPECT_EQ(x.transform(), 2);
    EXPECT_TRUE(x.outLabels.data[0].empty()) << "labels come last";
    EXPECT_EQ(x.cells()[0], (numbers{11, 21})) << "the first value stands";
}

TEST(HorizontalFormat, RefusesAnIncompleteDesign)
{
    measures x;
    EXPECT_EQ(x.transform(5), 2);
    EXPECT_EQ(x.cells()[4], (numbers{13, missing})) << "what is there was stored";
    EXPECT_TRUE(x.outLabels.data[0].empty());
    measures empty;
    empty.columns[1][2] = missing;
    EXPECT_EQ(empty.transform(), 2) << "a missing value is not there";
    measures first;
    first.columns[0][0] = missing;
    EXPECT_EQ(first.transform(), 2) << "nor in the first column";
    EXPECT_EQ(measures().transform(0), 2);
    EXPECT_EQ(measures().transform(0, 2, 0), 0) << "without subjects nothing is missing";
}

TEST(HorizontalFormat, RefusesWhatIsNotInTheWideTable)
{
    for (const int wrong : {0, -1, 4}) {
        measures x;
        x.times[5] = wrong;
        EXPECT_EQ(x.transform(), 2) << wrong;
        measures y;
        y.subjects[5] = wrong;
        EXPECT_EQ(y.transform(), 2) << wrong;
    }
    measures next;
    next.subjects = {1, 1, 1, 2, 2, 2};
    next.times = {1, 2, 3, 1, 2, 3};
    for (auto& column : next.wide.Vectors) {
        column.Vect.data[1] = missing;
    }
    EXPECT_EQ(next.transform(6, 2, 1), 2) << "the second subject has a row, and is not asked for";
    EXPECT_EQ(next.cells()[0][1], missing);
    EXPECT_EQ(measures().transform(6, 3), 2) << "there is no third variable";
    EXPECT_EQ(measures().transform(6, 2, 2, 4), 2) << "nor a fourth time";
}

TEST(HorizontalFormat, TakesSomeVariables)
{
    measures x;
    EXPECT_EQ(x.transform(6, 1), 0);
    EXPECT_EQ(x.cells()[0], (numbers{11, 21}));
    EXPECT_EQ(x.cells()[2], (numbers{13, 23}));
    EXPECT_EQ(x.cells()[3], (numbers{0, 0})) << "the other columns stay";
}

TEST(HorizontalFormat, LeavesRowsBehindTheLastSubject)
{
    measures x;
    x.wide.Vectors[0].Vect.data[1] = 5.0;
    x.wide.Vectors[1].Vect.data[1] = missing;
    x.subjects = {1, 1, 1, 1, 1, 1};
    x.times = {1, 2, 3, 9, 9, 9};
    EXPECT_EQ(x.transform(3, 2, 1), 0);
    EXPECT_EQ(x.cells()[0], (numbers{21, 5}));
    EXPECT_EQ(x.cells()[1], (numbers{210, missing})) << "nor is it asked for";
}
