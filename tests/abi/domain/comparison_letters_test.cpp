#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <new>

using namespace korvel::test;

TEST(FlatComparisonLetters, ComeInTheOrderOfTheMeans)
{
    guarded<double> means{3, 1, 2};
    guarded<int> significance{0, 1, 0, 0, 0, 0, 0, 0, 0}; // of the pair (2, 1)
    guarded<int> order{9, 9, 9};
    text_block labels(texts(9, u"old"));
    guarded<int> groups{-5};
    guarded<short int> success{5};
    EXPECT_EQ(Cpp_GetCompMatrices(means.data(), 3, 0, significance.data(), 0, order.data(), labels.data(),
                                  groups.data(), success.data(), 0),
              0);
    EXPECT_EQ(valuesOf(means), (doubles{1, 2, 3}));
    EXPECT_EQ(valuesOf(order), (ints{2, 3, 1}));
    EXPECT_EQ(labels.values(), (texts{u"A", u"A", u"", u"", u"B", u"B", u"", u"", u""}));
    EXPECT_EQ(valuesOf(groups), ints{2});
    EXPECT_EQ(valuesOf(success), shorts{-1});
}

TEST(FlatComparisonLetters, ComeInTheOrderOfTheLevels)
{
    guarded<double> means{50, 60, 70, 3, 1, 2};
    guarded<int> significance{0, 1, 0, 0, 0, 0, 0, 0, 0};
    guarded<int> order{9, 9, 9};
    text_block labels(texts(9, u""));
    guarded<int> groups{-5};
    guarded<short int> success{5};
    EXPECT_EQ(Cpp_GetCompMatrices(means.data(), 3, 2, significance.data(), -1, order.data(), labels.data(),
                                  groups.data(), success.data(), 1),
              0);
    EXPECT_EQ(valuesOf(means), (doubles{50, 60, 70, 3, 1, 2}));
    EXPECT_EQ(valuesOf(order), (ints{1, 2, 3}));
    EXPECT_EQ(labels.values(), (texts{u"A", u"", u"A", u"", u"B", u"B", u"", u"", u""}));
    EXPECT_EQ(valuesOf(significance), (ints{0, 1, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(FlatComparisonLetters, OfNoLevelsAreNone)
{
    guarded<int> groups{-5};
    guarded<short int> success{5};
    EXPECT_EQ(
        Cpp_GetCompMatrices(nullptr, 0, 0, nullptr, 0, nullptr, nullptr, groups.data(), success.data(), 0),
        0);
    EXPECT_EQ(valuesOf(groups), ints{1});
    EXPECT_THROW(
        Cpp_GetCompMatrices(nullptr, -1, 0, nullptr, 0, nullptr, nullptr, groups.data(), success.data(), 0),
        std::bad_alloc);
}

TEST(FlatComparisonLetters, HaveNoMoreThan256Columns)
{
    constexpr int k = 257;
    std::vector<double> means;
    for (int i = 0; i < k; ++i) {
        means.push_back(i);
    }
    guarded<double> values(means);
    guarded<int> significance(ints(k * k, 1));
    guarded<int> order(ints(k, 9));
    text_block labels(texts(k * 256, u""));
    guarded<int> groups{-5};
    guarded<short int> success{5};
    Cpp_GetCompMatrices(values.data(), k, 0, significance.data(), 0, order.data(), labels.data(),
                        groups.data(), success.data(), 0);
    EXPECT_EQ(valuesOf(groups), ints{257});
    EXPECT_EQ(valuesOf(success), shorts{0});
    EXPECT_EQ(labels.values()[255 * k + 255], u"IV");
}
