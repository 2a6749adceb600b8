#include "frames/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

using texts = std::vector<std::u16string>;
using text_block = caller_block<std::u16string>;

} // namespace

TEST(FlatTextRows, AreJoined)
{
    text_block x(texts{u"a", u"", u"c", u"1", u"2", u"", u"x", u"yz", u""});
    text_block out(texts{u"a1x", u"?", u""});
    BSTR const kept = out.argument()[0];
    const automation_watch watch;
    EXPECT_EQ(Cpp_M_MergeStringsByRow(x.argument(), 3, 3, out.argument()), 0);
    EXPECT_EQ(out.cells(), (texts{u"a1x", u"2yz", u"c"}));
    EXPECT_EQ(out.argument()[0], kept);
    EXPECT_TRUE(watch.texts(2, 2));

    EXPECT_EQ(Cpp_M_MergeStringsByRow(x.argument(), 3, 2, x.argument()), 0);
    EXPECT_EQ(x.cells(), (texts{u"a1", u"2", u"c", u"1", u"2", u"", u"x", u"yz", u""}));
    EXPECT_EQ(Cpp_M_MergeStringsByRow(x.argument(), 0, 2, out.argument()), 0);
    EXPECT_EQ(out.cells(), (texts{u"a1x", u"2yz", u"c"}));
    EXPECT_EQ(Cpp_M_MergeStringsByRow(x.argument(), 3, 0, out.argument()), 0);
    EXPECT_EQ(out.cells(), (texts{u"", u"", u""}));
}

TEST(FlatTextVectors, AreComparedInOrder)
{
    struct given {
        texts a;
        texts b;
        short int expected;
    };
    for (const given& pair : std::vector<given>{
             {{u"a", u"b"}, {u"a", u"b"}, -1},
             {{u"a", u"b"}, {u"b", u"a"}, 0},
             {{u"a", u"b"}, {u"a", u"B"}, 0},
             {{u"a", u"b"}, {u"a", u"b "}, 0},
             {{u"a", u"b"}, {u"a"}, 0},
             {{u"a"}, {u"a", u"b"}, 0},
             {{u"", u"b"}, {u"", u"b"}, -1},
             {{u""}, {u"x"}, 0},
             {{}, {}, -1},
             {{}, {u""}, 0},
         }) {
        text_block a(pair.a);
        text_block b(pair.b);
        EXPECT_EQ(Cpp_CheckSameVectorStr(a.argument(), static_cast<int>(pair.a.size()), b.argument(),
                                         static_cast<int>(pair.b.size())),
                  pair.expected)
            << ::testing::PrintToString(pair.a.size());
        EXPECT_EQ(a.cells(), pair.a);
        EXPECT_EQ(b.cells(), pair.b);
    }
}
