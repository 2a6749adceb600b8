#include "containers/bstr.h"

#include "support/automation_watch.h"
#include "support/host_arrays.h"

#include <gtest/gtest.h>

using namespace korvel;
using namespace korvel::test;

namespace
{

const place null = std::nullopt;

class Bstr : public ::testing::Test
{
protected:
    ~Bstr() override { EXPECT_TRUE(watch.nothingAlive()); }

    automation_watch watch;
};

} // namespace

TEST_F(Bstr, ReadsUpToTheFirstNul)
{
    bstr_block block{null, u"", u"abc", text(u"a\0b", 3), text(u"\0b", 2), text(u"\xD83D\xDE00\u00E9")};
    EXPECT_EQ(readBstr(block[0]), u"");
    EXPECT_EQ(readBstr(block[1]), u"");
    EXPECT_EQ(readBstr(block[2]), u"abc");
    EXPECT_EQ(readBstr(block[3]), u"a");
    EXPECT_EQ(readBstr(block[4]), u"");
    EXPECT_EQ(readBstr(block[5]), u"\xD83D\xDE00\u00E9");
}

TEST_F(Bstr, IsViewedUpToTheFirstNulWhereverThatIs)
{
    for (std::size_t length = 0; length <= 13; ++length) {
        for (std::size_t nul = 0; nul <= length; ++nul) {
            // The highest and lowest characters stand beside the NUL.
            text content(length, u'\x8000');
            for (std::size_t k = 0; k < length; ++k) {
                content[k] = k == nul           ? u'\0'
                             : k % 2 == nul % 2 ? u'\xFFFF'
                             : k > nul          ? u'\x0001'
                                                : u'\x8000';
            }
            bstr_block block{content};
            EXPECT_EQ(viewBstr(block[0]), content.substr(0, nul)) << length << ", " << nul;
            EXPECT_EQ(readBstr(block[0]), content.substr(0, nul)) << length << ", " << nul;
        }
    }
    EXPECT_EQ(viewBstr(nullptr), u"");
}

TEST_F(Bstr, ComparesWithWhatItReads)
{
    bstr_block block{null, u"", u"abc", text(u"a\0b", 3), text(u"\0b", 2)};
    EXPECT_TRUE(readsAs(block[0], u""));
    EXPECT_FALSE(readsAs(block[0], u"a"));
    EXPECT_TRUE(readsAs(block[1], u""));
    EXPECT_FALSE(readsAs(block[1], u"a"));
    EXPECT_TRUE(readsAs(block[2], u"abc"));
    EXPECT_FALSE(readsAs(block[2], u"ab"));
    EXPECT_FALSE(readsAs(block[2], u"abcd"));
    EXPECT_FALSE(readsAs(block[2], u"abC"));
    EXPECT_FALSE(readsAs(block[2], u""));
    EXPECT_TRUE(readsAs(block[3], u"a"));
    EXPECT_FALSE(readsAs(block[3], text(u"a\0b", 3)));
    EXPECT_TRUE(readsAs(block[4], u""));
}

TEST_F(Bstr, IsMadeUpToTheFirstNul)
{
    BSTR made = makeBstr(text(u"ab\0c", 4));
    EXPECT_EQ(contents(made), u"ab");
    SysFreeString(made);
    BSTR empty = makeBstr(u"");
    ASSERT_NE(empty, nullptr);
    EXPECT_EQ(SysStringByteLen(empty), 0u);
    SysFreeString(empty);
    EXPECT_TRUE(watch.texts(2, 2));
}

TEST_F(Bstr, WriteBackLeavesWhatReadsTheSame)
{
    bstr_block block{u"a", null, u"", text(u"b\0c", 3)};
    const std::vector<BSTR> before{block[0], block[1], block[2], block[3]};
    const std::vector<text> same{u"a", u"", u"", u"b"};
    writeBack(same.data(), same.size(), block.data());
    EXPECT_EQ((std::vector<BSTR>{block[0], block[1], block[2], block[3]}), before);
    EXPECT_EQ(block.values(), (std::vector<place>{u"a", null, u"", text(u"b\0c", 3)}));
    EXPECT_TRUE(watch.texts(3, 0));
}

TEST_F(Bstr, WriteBackReplacesWhatDiffers)
{
    bstr_block block{u"a", null, u"", text(u"b\0c", 3), u"gone", u"same"};
    const BSTR last = block[5];
    const std::vector<text> values{u"A", u"filled", u"longer", u"bc", u"", u"same"};
    writeBack(values.data(), values.size(), block.data());
    EXPECT_EQ(block.values(), (std::vector<place>{u"A", u"filled", u"longer", u"bc", u"", u"same"}));
    EXPECT_EQ(block[5], last);
    EXPECT_TRUE(watch.texts(5 + 5, 4));
}

TEST_F(Bstr, WriteBackTouchesOnlyItsCount)
{
    bstr_block block{u"a", u"b"};
    const std::vector<text> values{u"x", u"y"};
    writeBack(values.data(), 1, block.data());
    EXPECT_EQ(block.values(), (std::vector<place>{u"x", u"b"}));
    writeBack(values.data(), 0, nullptr);
}

TEST_F(Bstr, ATextWithANulInsideIsCutAndNeverReadsTheSame)
{
    bstr_block block{u"a"};
    const text cut(u"a\0b", 3);
    writeBack(&cut, 1, block.data());
    EXPECT_EQ(block.values(), (std::vector<place>{u"a"}));
    EXPECT_TRUE(watch.texts(2, 1));
}
