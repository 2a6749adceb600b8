#include "containers/element_types.h"
#include "support/automation_watch.h"
#include "support/host_arrays.h"

using namespace korvel::test;

namespace
{

const place null = std::nullopt;

} // namespace

TEST(TextMatrix, CopiesABlockOfTexts)
{
    const automation_watch watch;
    {
        bstr_block block{u"a", null, u"", u"dd"};
        const matrix<text> m(2, 2, block.data(), 0, 0);
        expectShape(m, 2, 2, 4);
        EXPECT_TRUE(m.bOwner);
        EXPECT_EQ(m.capacity, 4u);
        EXPECT_EQ(m.safeArray, nullptr);
        EXPECT_EQ(linear(m), (std::vector<text>{u"a", u"", u"", u"dd"}));
        EXPECT_EQ(block.values(), (std::vector<place>{u"a", null, u"", u"dd"}));
        EXPECT_TRUE(watch.texts(3, 0));
    }
    EXPECT_TRUE(watch.nothingAlive());
}

TEST(TextMatrix, SourceCountsSayHowManyTextsAreRead)
{
    bstr_block block{u"a", u"b", u"c", u"d", u"e", u"f"};
    const auto read = [&](int rows, int cols, int srcRows, int srcCols) {
        return linear(matrix<text>(rows, cols, block.data(), srcRows, srcCols));
    };
    EXPECT_EQ(read(3, 2, 0, 0), (std::vector<text>{u"a", u"b", u"c", u"d", u"e", u"f"}));
    EXPECT_EQ(read(3, 2, 2, 1), (std::vector<text>{u"a", u"b", u"", u"", u"", u""}));
    EXPECT_EQ(read(3, 2, 0, 1), (std::vector<text>{u"a", u"b", u"c", u"", u"", u""}));
    EXPECT_EQ(read(3, 2, 2, 0), (std::vector<text>{u"a", u"b", u"c", u"d", u"", u""}));
    // More texts than elements: the table takes as many as it can hold.
    EXPECT_EQ(read(2, 1, 3, 2), (std::vector<text>{u"a", u"b"}));
    // A product below 0 means no texts.
    EXPECT_EQ(read(2, 1, -1, 1), std::vector<text>(2));
    EXPECT_EQ(read(2, 1, 0, -2), std::vector<text>(2));
    EXPECT_EQ(read(2, 1, -1, -1), (std::vector<text>{u"a", u""}));
    // A table always has a column, and so has its own count.
    EXPECT_EQ(read(2, 0, 0, 0), (std::vector<text>{u"a", u"b"}));
}

TEST(TextMatrix, ViewsABlockOfStrings)
{
    std::vector<text> strings{u"a", u"b", u"c"};
    {
        matrix<text> m(3, 0, strings.data());
        expectShape(m, 3, 0, 0);
        EXPECT_FALSE(m.bOwner);
        matrix<text> full(1, 3, strings.data());
        expectShape(full, 1, 3, 3);
        EXPECT_EQ(full.capacity, 3u);
        full.setElement(0, 1, u"new");
    }
    EXPECT_EQ(strings, (std::vector<text>{u"a", u"new", u"c"}));
}

TEST(TextMatrix, AttachesACopyOfAHostArraysTexts)
{
    const automation_watch watch;
    {
        const host_array array(VT_BSTR, {2, 2}, {u"a", null, u"", text(u"b\0c", 3)});
        const BSTR first = array.elements<BSTR>()[0];
        const BSTR last = array.elements<BSTR>()[3];
        {
            const matrix<text> m(array.get());
            expectShape(m, 2, 2, 4);
            EXPECT_TRUE(m.bOwner);
            EXPECT_EQ(m.capacity, 4u);
            EXPECT_EQ(m.safeArray, array.get());
            EXPECT_EQ(linear(m), (std::vector<text>{u"a", u"", u"", u"b"}));
            EXPECT_TRUE(watch.texts(3, 0));
        }
        // Only the null place was filled. A text that reads the same keeps its pointer and its bytes.
        EXPECT_TRUE(watch.texts(4, 0));
        EXPECT_EQ(array.elements<BSTR>()[0], first);
        EXPECT_EQ(array.elements<BSTR>()[3], last);
        EXPECT_EQ(array.texts(4), (std::vector<place>{u"a", u"", u"", text(u"b\0c", 3)}));
    }
    EXPECT_TRUE(watch.nothingAlive());
}

TEST(TextMatrix, WritesChangedTextsBackWhenItDies)
{
    const automation_watch watch;
    {
        const host_array array(VT_BSTR, {3}, {u"a", u"b", null});
        const BSTR first = array.elements<BSTR>()[0];
        {
            matrix<text> m(array.get());
            m[1] = u"changed";
            m[2] = u"filled";
            EXPECT_TRUE(watch.texts(2, 0));
        }
        EXPECT_TRUE(watch.texts(4, 1));
        EXPECT_EQ(array.elements<BSTR>()[0], first);
        EXPECT_EQ(array.texts(3), (std::vector<place>{u"a", u"changed", u"filled"}));
    }
    EXPECT_TRUE(watch.nothingAlive());
}

TEST(TextMatrix, WritingBackStartsAtTheFirstElement)
{
    const host_array array(VT_BSTR, {3}, {u"a", u"b", null});
    {
        matrix<text> m(array.get());
        m.firstElem = 1;
        m[0] = u"kept back";
        m[1] = u"changed";
    }
    EXPECT_EQ(array.texts(3), (std::vector<place>{u"a", u"changed", u""}));
}

TEST(TextMatrix, TakesAShapeOfTheCallersForAnArray)
{
    const host_array array(VT_BSTR, {4}, {u"a", u"b", u"c", u"d"});
    {
        matrix<text> m(2, 1, array.get());
        expectShape(m, 2, 1, 2);
        EXPECT_EQ(linear(m), (std::vector<text>{u"a", u"b"}));
        m[0] = u"new";
    }
    EXPECT_EQ(array.texts(4), (std::vector<place>{u"new", u"b", u"c", u"d"}));
    {
        const matrix<text> m(3, 2, array.get());
        EXPECT_EQ(linear(m), (std::vector<text>{u"new", u"b", u"c", u"d", u"", u""}));
    }
    EXPECT_EQ(array.texts(4), (std::vector<place>{u"new", u"b", u"c", u"d"}));
}

TEST(TextMatrix, NoArrayOrNoDataIsNotWrittenBack)
{
    const matrix<text> none(static_cast<SAFEARRAY*>(nullptr));
    expectShape(none, 0, 0, 0);
    EXPECT_EQ(none.safeArray, nullptr);

    const matrix<text> shaped(2, 2, static_cast<SAFEARRAY*>(nullptr));
    expectShape(shaped, 2, 2, 4);
    EXPECT_EQ(linear(shaped), std::vector<text>(4));

    const automation_watch watch;
    SAFEARRAY withoutData{};
    withoutData.cDims = 1;
    withoutData.fFeatures = FADF_BSTR;
    withoutData.rgsabound[0] = {3, 1};
    {
        matrix<text> m(&withoutData);
        expectShape(m, 3, 1, 3);
        m[0] = u"nowhere";
    }
    EXPECT_EQ(withoutData.pvData, nullptr);
    EXPECT_TRUE(watch.texts(0, 0));
}

TEST(TextMatrix, AnArrayOfNoDimensionsIsOneCell)
{
    BSTR cell = newBstr(u"x");
    SAFEARRAY scalar{};
    scalar.pvData = &cell;
    {
        matrix<text> m(&scalar);
        expectShape(m, 1, 1, 1);
        EXPECT_EQ(m[0], u"x");
        m[0] = u"y";
    }
    EXPECT_EQ(contents(cell), u"y");
    SysFreeString(cell);
}

TEST(TextMatrix, AnArrayOfNoColumnsStillGivesOne)
{
    const host_array array(VT_BSTR, {2, 0});
    const matrix<text> m(array.get());
    expectShape(m, 2, 1, 2);
}

TEST(TextMatrix, RedimClearsTheHostArrayAndKeepsItsOwnTexts)
{
    const automation_watch watch;
    {
        const host_array array(VT_BSTR, {2, 2}, {u"a", u"b", u"c", u"d"});
        {
            matrix<text> m(array.get());
            const text* block = m.data;
            m.Redim(3, 1);
            expectShape(m, 3, 1, 3);
            EXPECT_TRUE(m.bOwner);
            EXPECT_EQ(m.data, block);
            EXPECT_EQ(m.capacity, 4u);
            EXPECT_EQ(linear(m), (std::vector<text>{u"a", u"b", u"c"}));
            EXPECT_TRUE(watch.texts(4, 4));
            EXPECT_EQ(array.texts(3), (std::vector<place>(3, null)));
        }
        EXPECT_EQ(array.texts(3), (std::vector<place>{u"a", u"b", u"c"}));
    }
    EXPECT_TRUE(watch.nothingAlive());
}

TEST(TextMatrix, RedimToMoreTextsReplacesBothBlocks)
{
    const automation_watch watch;
    {
        const host_array array(VT_BSTR, {1, 2}, {u"a", u"b"});
        {
            matrix<text> m(array.get());
            m.Redim(2, 2, u"z");
            expectShape(m, 2, 2, 4);
            EXPECT_EQ(m.capacity, 4u);
            EXPECT_TRUE(m.bOwner);
            EXPECT_TRUE(watch.blocks(2, 1));
            m[3] = u"last";
        }
        EXPECT_EQ(array.count(0), 2u);
        EXPECT_EQ(array.count(1), 2u);
        EXPECT_EQ(array.texts(4), (std::vector<place>{u"z", u"z", u"z", u"last"}));
        EXPECT_TRUE(watch.texts(6, 2));
    }
    EXPECT_TRUE(watch.nothingAlive());
}

TEST(TextMatrix, RedimToTheArraysOwnShapeTouchesNothing)
{
    const automation_watch watch;
    const host_array array(VT_BSTR, {2}, {u"a", u"b"});
    const std::vector<BSTR> before = array.numbers<BSTR>(2);
    {
        matrix<text> m(array.get());
        m.Redim(2, 1);
    }
    EXPECT_EQ(array.numbers<BSTR>(2), before);
    EXPECT_TRUE(watch.texts(2, 0));
}

TEST(TextMatrix, AFixedHostArrayGetsTheTextsThatItHasRoomFor)
{
    const automation_watch watch;
    {
        const host_array array(VT_BSTR, {2}, {u"a", u"b"});
        array->fFeatures |= FADF_FIXEDSIZE;
        {
            matrix<text> m(array.get());
            m.Redim(3, 1, u"z");
            expectShape(m, 3, 1, 3);
            EXPECT_EQ(array.count(0), 2u);
        }
        EXPECT_EQ(array.texts(2), (std::vector<place>{u"z", u"z"}));
    }
    EXPECT_TRUE(watch.nothingAlive());
}
