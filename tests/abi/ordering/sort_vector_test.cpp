#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <boost/numeric/conversion/cast.hpp>
#include <gtest/gtest.h>

using korvel::test::blockOf;
using korvel::test::caller_memory;
using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::ints;
using korvel::test::numbersIn;
using korvel::test::texts;
using korvel::test::textsIn;
using korvel::test::valuesOf;

TEST(FlatSort, Vectors)
{
    caller_memory memory;
    SAFEARRAY* numbers = memory.array(doubles{3, 1, 2});
    EXPECT_EQ(VB_SortQVectorDbl(&numbers, -9, 1, 3, 0), 0);
    EXPECT_EQ(numbersIn<double>(numbers), (doubles{1, 2, 3}));
    SAFEARRAY* integers = memory.array(ints{3, 1, 2});
    EXPECT_EQ(VB_SortQVectorLng(&integers, 0, 1, 3, 1), 0);
    EXPECT_EQ(numbersIn<int>(integers), (ints{3, 2, 1}));

    SAFEARRAY* labels = memory.texts({u"z", u"b", u"a", u"b"});
    BSTR untouched = blockOf(labels)[0];
    EXPECT_EQ(VB_SortQVectorStr(blockOf(labels), 4, 2, 4, 0), 0);
    EXPECT_EQ(textsIn(labels), (texts{u"z", u"a", u"b", u"b"}));
    EXPECT_EQ(blockOf(labels)[0], untouched);

    guarded<int> index{0, 0, 0, 0};
    SAFEARRAY* more = memory.texts({u"z", u"b", u"a", u"b"});
    EXPECT_EQ(Cpp_SortQVector2Str(blockOf(more), 4, 2, 4, -1, index.data()), 0);
    EXPECT_EQ(textsIn(more), (texts{u"z", u"b", u"b", u"a"}));
    EXPECT_EQ(valuesOf(index), (ints{1, 2, 4, 3}));
    EXPECT_TRUE(memory.guardsIntact());
}

TEST(FlatSort, AVectorIsAsLongAsItsDescriptorSays)
{
    caller_memory memory;
    SAFEARRAY* none = nullptr;
    EXPECT_EQ(VB_SortQVectorDbl(&none, 3, 1, 3, 0), 0);
    EXPECT_EQ(VB_SortQVectorLng(&none, 3, 1, 3, 0), 0);

    SAFEARRAY* numbers = memory.array(doubles{3, 1, 2});
    numbers->rgsabound[0].cElements = 0x80000000;
    EXPECT_THROW(VB_SortQVectorDbl(&numbers, 3, 1, 3, 0), boost::numeric::positive_overflow);
    numbers->rgsabound[0].cElements = 3;
    EXPECT_EQ(numbersIn<double>(numbers), (doubles{3, 1, 2}));
    EXPECT_TRUE(memory.guardsIntact());
}

TEST(FlatSort, IsSorted)
{
    guarded<double> x{1, 1, 2};
    EXPECT_EQ(VB_V_IsSorted(x.data(), 3, 0), -1);
    EXPECT_EQ(VB_V_IsSorted(x.data(), 3, 7), 0);
    guarded<double> lastFalls{1, 3, 2};
    EXPECT_EQ(VB_V_IsSorted(lastFalls.data(), 3, 0), 0);
    EXPECT_EQ(VB_V_IsSorted(lastFalls.data(), 2, 0), -1) << "only the elements counted";
}
