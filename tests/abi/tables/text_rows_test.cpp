#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace korvel::test;

TEST(FlatTextRows, AreJoined)
{
    text_block x(texts{u"a", u"", u"c", u"1", u"2", u"", u"x", u"yz", u""});
    text_block out(texts{u"a1x", u"?", u""});
    BSTR const kept = out.data()[0];
    const automation_watch watch;
    EXPECT_EQ(Cpp_M_MergeStringsByRow(x.data(), 3, 3, out.data()), 0);
    EXPECT_EQ(out.values(), (texts{u"a1x", u"2yz", u"c"}));
    EXPECT_EQ(out.data()[0], kept);
    EXPECT_TRUE(watch.texts(2, 2));

    EXPECT_EQ(Cpp_M_MergeStringsByRow(x.data(), 3, 2, x.data()), 0);
    EXPECT_EQ(x.values(), (texts{u"a1", u"2", u"c", u"1", u"2", u"", u"x", u"yz", u""}));
    EXPECT_EQ(Cpp_M_MergeStringsByRow(x.data(), 0, 2, out.data()), 0);
    EXPECT_EQ(out.values(), (texts{u"a1x", u"2yz", u"c"}));
    EXPECT_EQ(Cpp_M_MergeStringsByRow(x.data(), 3, 0, out.data()), 0);
    EXPECT_EQ(out.values(), (texts{u"", u"", u""}));
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
        EXPECT_EQ(Cpp_CheckSameVectorStr(a.data(), static_cast<int>(pair.a.size()), b.data(),
                                         static_cast<int>(pair.b.size())),
                  pair.expected)
            << ::testing::PrintToString(pair.a.size());
        EXPECT_EQ(a.values(), pair.a);
        EXPECT_EQ(b.values(), pair.b);
    }
}
