#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

/** Results for two variables of three rows, in tables of some width. */
struct two_variables {
    text_block data{{u"10", u"9", u"10", u"b", u"", u"a"}};
    guarded<double> weights{1, 2, 4};
    text_block modes{{u"?", u"?"}};
    guarded<double> modeFrequencies{7, 7};
    guarded<int> counts{7, 7};
    text_block names;
    guarded<double> frequencies;
    guarded<double> sums;
    int total = 7;

    explicit two_variables(std::size_t width)
        : names(texts(2 * width, u"?")), frequencies(doubles(2 * width, 7.0)), sums(doubles(2 * width, 7.0))
    {
    }
};

} // namespace

TEST(FlatCategoryInfo, FillsTablesAsWideAsThereAreRows)
{
    for (const auto info : {VB_M_InfoQuali, Cpp_M_InfoQualiNoMiss}) {
        two_variables x(3);
        EXPECT_EQ(info(x.data.data(), 3, 2, x.modes.data(), x.modeFrequencies.data(), x.counts.data(),
                       x.names.data(), x.frequencies.data(), x.weights.data(), &x.total, -1),
                  0);
        EXPECT_EQ(x.modes.values(), (texts{u"10", u"a"}));
        EXPECT_EQ(valuesOf(x.modeFrequencies), (doubles{5, 4}));
        EXPECT_EQ(valuesOf(x.counts), (ints{2, 2}));
        EXPECT_EQ(x.names.values(), (texts{u"9", u"a", u"10", u"b", u"", u""}));
        EXPECT_EQ(valuesOf(x.frequencies), (doubles{2, 4, 5, 1, 0, 0}));
        EXPECT_EQ(x.total, 4);
        EXPECT_EQ(x.data.values(), (texts{u"10", u"9", u"10", u"b", u"", u"a"}));
    }
}

TEST(FlatCategoryInfo, ReadsTextsUpToTheirFirstNul)
{
    two_variables x(3);
    text_block data({u"a", texts::value_type(u"a\0b", 3), u"?", texts::value_type(u"\0b", 2), u"b", u"b"});
    SysFreeString(data.data()[2]);
    data.data()[2] = nullptr;
    VB_M_InfoQuali(data.data(), 3, 2, x.modes.data(), x.modeFrequencies.data(), x.counts.data(),
                   x.names.data(), x.frequencies.data(), x.weights.data(), &x.total, 0);
    EXPECT_EQ(x.names.values(), (texts{u"a", u"b", u"", u"", u"", u""}));
    EXPECT_EQ(valuesOf(x.frequencies), (doubles{3, 6, 0, 0, 0, 0}));
    EXPECT_EQ(Cpp_GetMaxCat(data.data(), 3, 2, x.counts.data()), 1);
}

TEST(FlatCategoryInfo, IsListedOverItsOwnTexts)
{
    two_variables x(3);
    VB_M_InfoQuali(x.data.data(), 3, 2, x.modes.data(), x.modeFrequencies.data(), x.counts.data(),
                   x.data.data(), x.frequencies.data(), x.weights.data(), &x.total, -1);
    EXPECT_EQ(x.data.values(), (texts{u"9", u"a", u"10", u"b", u"", u""}));
}

TEST(FlatCategoryInfo, FillsTablesOfAWidth)
{
    two_variables x(2);
    EXPECT_EQ(VB_M_InfoQuali2(x.data.data(), 3, 2, 2, x.counts.data(), x.modes.data(),
                              x.modeFrequencies.data(), x.names.data(), x.frequencies.data(),
                              x.weights.data(), &x.total, 0),
              0);
    EXPECT_EQ(x.names.values(), (texts{u"10", u"b", u"9", u"a"}));
    EXPECT_EQ(valuesOf(x.frequencies), (doubles{5, 1, 2, 4}));
    EXPECT_EQ(x.modes.values(), (texts{u"10", u"a"}));
    EXPECT_EQ(valuesOf(x.counts), (ints{2, 2}));
    EXPECT_EQ(x.total, 4);
}

TEST(FlatCategoryInfo, KeepsNoMoreCategoriesThanThereIsRoom)
{
    two_variables x(1);
    VB_M_InfoQuali2(x.data.data(), 3, 2, 1, x.counts.data(), x.modes.data(), x.modeFrequencies.data(),
                    x.names.data(), x.frequencies.data(), x.weights.data(), &x.total, 0);
    EXPECT_EQ(x.names.values(), (texts{u"10", u"b"}));
    EXPECT_EQ(valuesOf(x.counts), (ints{2, 2}));
}

TEST(FlatCategoryInfo, OfAFixedNumber)
{
    two_variables x(3);
    EXPECT_EQ(Cpp_M_InfoQuali3(x.data.data(), 3, 2, 3, 3, x.modes.data(), x.modeFrequencies.data(),
                               x.names.data(), x.frequencies.data(), x.sums.data(), x.weights.data(),
                               &x.total, -1),
              0);
    EXPECT_EQ(x.names.values(), (texts{u"", u"", u"9", u"a", u"10", u"b"}));
    EXPECT_EQ(valuesOf(x.frequencies), (doubles{0, 0, 1, 1, 2, 1}));
    EXPECT_EQ(valuesOf(x.sums), (doubles{0, 0, 2, 4, 5, 1}));
    EXPECT_EQ(x.modes.values(), (texts{u"10", u"b"}));
    EXPECT_EQ(valuesOf(x.modeFrequencies), (doubles{2, 1}));
    EXPECT_EQ(x.total, 6);
}

TEST(FlatCategoryInfo, OfNoRowsWritesNoTable)
{
    two_variables x(0);
    VB_M_InfoQuali(x.data.data(), 0, 2, x.modes.data(), x.modeFrequencies.data(), x.counts.data(),
                   x.names.data(), x.frequencies.data(), x.weights.data(), &x.total, -1);
    EXPECT_EQ(valuesOf(x.counts), (ints{1, 1}));
    EXPECT_EQ(x.modes.values(), (texts{u"", u""}));
    EXPECT_TRUE(x.frequencies.intact());
    EXPECT_EQ(x.total, 2);
}
