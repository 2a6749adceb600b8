// The container itself, as a module sees it that links against the library.

#include "containers/element_types.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/host_arrays.h"

#include <boost/numeric/conversion/cast.hpp>
#include <gtest/gtest.h>
#include <new>

using namespace korvel::test;

namespace
{

const place null = std::nullopt;

} // namespace

TEST(LinkedContainers, AnAttachedTableResizesItsArray)
{
    const automation_watch watch;
    {
        const host_array numbers({2, 2}, elements<double>(4));
        matrix<double> m(numbers.get());
        m.Redim(3, 3, 4.0);
        EXPECT_EQ(numbers.numbers<double>(9), std::vector<double>(9, 4.0));

        const host_array flags({2}, elements<short int>(2));
        matrix<short int>(flags.get()).Redim(3, 1, -1);
        EXPECT_EQ(flags.numbers<short int>(3), std::vector<short int>(3, -1));

        const host_array integers({2}, elements<int>(2));
        matrix<int>(integers.get()).Redim(3, 1, 7);
        EXPECT_EQ(integers.numbers<int>(3), std::vector<int>(3, 7));

        const host_array texts(VT_BSTR, {2}, {u"a", null});
        {
            matrix<text> t(texts.get());
            t.Redim(3, 1, u"z");
            t[1] = text(u"y");
        }
        EXPECT_EQ(texts.texts(3), (std::vector<place>{u"z", u"y", u"z"}));
    }
    EXPECT_TRUE(watch.nothingAlive());
}

TEST(LinkedContainers, TextsComeFromABlockAndFromAnArrayInAnyShape)
{
    bstr_block block{u"a", null, u"c"};
    EXPECT_EQ(linear(matrix<text>(3, 1, block.data(), 0, 0)), (std::vector<text>{u"a", u"", u"c"}));
    const host_array array(VT_BSTR, {2}, {u"a", u"b"});
    EXPECT_EQ(linear(matrix<text>(3, 1, array.get())), (std::vector<text>{u"a", u"b", u""}));
}

TEST(LinkedContainers, ExceptionsComeOutByTheirType)
{
    const host_array array({2, 2}, elements<double>(4));
    array.count(1) = 0x80000000;
    try {
        const matrix<double> m(array.get());
        ADD_FAILURE() << "constructed";
    } catch (const boost::numeric::positive_overflow& overflow) {
        EXPECT_STREQ(overflow.what(), "bad numeric conversion: positive overflow");
    }
    array.count(1) = 2;

    matrix<double> owned(2, 2, 1.0);
    EXPECT_THROW(owned.Redim(65536, 32768), std::bad_alloc);
}
