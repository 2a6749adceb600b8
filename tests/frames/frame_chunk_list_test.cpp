#include "frames/frame.h"
#include "support/caller_memory.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel;
using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

} // namespace

TEST(ChunkList, BorrowsTheCallersColumns)
{
    caller_memory caller;
    SAFEARRAY* column = caller.array(numbers{1.0, 2.0});
    SAFEARRAY* array = caller.array(std::vector<Hostarray>{{column, nullptr}});
    {
        const auto x = frame::chunks(reinterpret_cast<Hostarray**>(&array), 1, 2);
        ASSERT_EQ(x.size(), 1);
        EXPECT_EQ(x.get()[0]->nbElem, 2u);
        x.get()[0]->setElement(1, 0, 5.0);
    }
    EXPECT_EQ(numbersIn<double>(column), (numbers{1.0, 5.0}));
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(ChunkList, LowersTheRowsOfATriangle)
{
    caller_memory caller;
    const std::vector<Hostarray> records{{caller.array(numbers(2)), nullptr},
                                         {caller.array(numbers(2)), nullptr}};
    SAFEARRAY* array = caller.array(records);
    const auto x = frame::triangularChunks(reinterpret_cast<Hostarray**>(&array), 2);
    EXPECT_EQ(x.get()[0]->nbrows, 2);
    EXPECT_EQ(x.get()[1]->nbrows, 1);
}

TEST(ChunkList, OfTextsReturnsOnlyWhenWrittenBack)
{
    caller_memory caller;
    SAFEARRAY* column = caller.texts({u"a", u"b"});
    SAFEARRAY* array = caller.array(std::vector<Hostarray>{{nullptr, column}});
    auto** records = reinterpret_cast<Hostarray**>(&array);
    {
        const auto x = frame::textChunks(records, 1, 2);
        (*x.get()[0])[1] = u"c";
    }
    EXPECT_EQ(textsIn(column), (texts{u"a", u"b"}));
    const auto x = frame::textChunks(records, 1, 2);
    (*x.get()[0])[1] = u"c";
    frame::writeTexts(x, records);
    EXPECT_EQ(textsIn(column), (texts{u"a", u"c"}));
}
