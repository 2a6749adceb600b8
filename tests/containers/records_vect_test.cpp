#include "containers/records.h"
#include "support/bits.h"
#include "support/caller_memory.h"

#include <boost/numeric/conversion/cast.hpp>
#include <type_traits>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

} // namespace

TEST(RecordColumn, IsEmptyWithoutARecord)
{
    const cST_Vect<int> column;
    EXPECT_EQ(column.kind, 5);
    EXPECT_EQ(column.source, nullptr);
    EXPECT_EQ(column.Count, 0);
    EXPECT_EQ(column.Label, nullptr);
    EXPECT_EQ(column.Vect.nbElem, 0u);
    EXPECT_EQ(column.Vect.data, nullptr);
}

TEST(RecordColumn, OfIntegersHasNoRecordForm)
{
    static_assert(!std::is_constructible_v<cST_Vect<int>, ST_Vect*>);
    static_assert(std::is_constructible_v<cST_Vect<double>, ST_Vect*>);
    static_assert(std::is_constructible_v<cST_Vect<short int>, ST_Vect*>);
    static_assert(std::is_constructible_v<cST_Vect<text>, ST_Vect*>);
    static_assert(!std::is_convertible_v<ST_Vect*, cST_Vect<double>>);
}

TEST(RecordColumn, UsesTheRecordsNumbersInPlace)
{
    caller_memory caller;
    ST_Vect record = caller.column(u"weight", numbers{1.5, -2.0, 4.0});
    record.Count = 7;
    cST_Vect<double> column(&record);
    EXPECT_EQ(column.kind, 1);
    EXPECT_EQ(column.source, &record);
    EXPECT_EQ(column.Count, 7);
    EXPECT_EQ(column.Label, record.Label);
    EXPECT_EQ(column.Vect.nbrows, 3);
    EXPECT_EQ(column.Vect.nbcols, 1);
    EXPECT_EQ(column.Vect.data, record.Vect->pvData);
    EXPECT_FALSE(column.Vect.bOwner);
    column.Vect[1] = 9.0;
    EXPECT_EQ(numbersIn<double>(record.Vect), (numbers{1.5, 9.0, 4.0}));
}

TEST(RecordColumn, OfFlagsHasAKindOfItsOwn)
{
    caller_memory caller;
    ST_Vect record = caller.column(u"", std::vector<short int>{-1, 0});
    const cST_Vect<short int> column(&record);
    EXPECT_EQ(column.kind, 4);
    EXPECT_EQ(column.Vect.data, record.Vect->pvData);
}

TEST(RecordColumn, CopiesTextsAndPutsThemBackAtTheEnd)
{
    caller_memory caller;
    ST_Vect record = caller.column(u"name", texts{u"a", u"b"});
    BSTR untouched = static_cast<BSTR*>(record.Vect->pvData)[0];
    {
        cST_Vect<text> column(&record);
        EXPECT_EQ(column.kind, 3);
        EXPECT_EQ(column.Vect.nbrows, 2);
        EXPECT_TRUE(column.Vect.bOwner);
        column.Vect[1] = u"changed";
        EXPECT_EQ(textsIn(record.Vect), (texts{u"a", u"b"}));
    }
    EXPECT_EQ(textsIn(record.Vect), (texts{u"a", u"changed"}));
    EXPECT_EQ(static_cast<BSTR*>(record.Vect->pvData)[0], untouched);
}

TEST(RecordColumn, WritesCountAndLabelBackWhenItDies)
{
    caller_memory caller;
    ST_Vect record = caller.column(u"old", numbers{1.0});
    BSTR other = caller.label(u"new");
    {
        cST_Vect<double> column(&record);
        column.Count = 42;
        column.Label = other;
        EXPECT_EQ(record.Count, 1);
        EXPECT_NE(record.Label, other);
    }
    EXPECT_EQ(record.Count, 42);
    EXPECT_EQ(record.Label, other);
}

TEST(RecordColumn, WritesNothingBackWithoutARecord)
{
    caller_memory caller;
    ST_Vect record = caller.column(u"old", numbers{1.0});
    {
        cST_Vect<double> column(&record);
        column.Count = 42;
        column.source = nullptr;
    }
    EXPECT_EQ(record.Count, 1);
}

TEST(RecordColumn, OnlyTheObjectMovedToWritesBack)
{
    caller_memory caller;
    ST_Vect record = caller.column(u"a", texts{u"x", u"y"});
    cST_Vect<text> first(&record);
    first.Count = 10;
    {
        cST_Vect<text> second(std::move(first));
        EXPECT_EQ(first.source, nullptr);
        EXPECT_EQ(first.Vect.data, nullptr);
        EXPECT_EQ(second.kind, 3);
        EXPECT_EQ(second.source, &record);
        EXPECT_EQ(second.Count, 10);
        EXPECT_EQ(second.Label, record.Label);
        EXPECT_EQ(second.Vect[1], u"y");
        second.Count = 11;
        first.Count = 12;
    }
    EXPECT_EQ(record.Count, 11);
    record.Count = 0;
    first.Count = 13;
}

TEST(RecordColumn, EachRecordHasOneWriterAfterAVectorHasGrown)
{
    static_assert(std::is_nothrow_move_constructible_v<cST_Vect<double>>);
    constexpr int columns = 20;
    caller_memory caller;
    std::vector<ST_Vect> records;
    for (int j = 0; j < columns; ++j) {
        records.push_back(caller.column(u"c", numbers{double(j)}));
    }
    {
        std::vector<cST_Vect<double>> held;
        for (ST_Vect& record : records) {
            held.emplace_back(&record);
            // A write-back by an object that was moved from when the vector grew would restore the old count.
            record.Count = -1;
            for (cST_Vect<double>& column : held) {
                EXPECT_EQ(column.source->Count, -1);
                column.Count = 100;
            }
        }
        for (int j = 0; j < columns; ++j) {
            EXPECT_EQ(held[std::size_t(j)].source, &records[std::size_t(j)]);
            EXPECT_SAME_BITS(held[std::size_t(j)].Vect[0], double(j));
        }
    }
    for (const ST_Vect& record : records) {
        EXPECT_EQ(record.Count, 100);
    }
}

TEST(RecordColumn, IsEmptyOverANullArray)
{
    ST_Vect record{3, nullptr, nullptr};
    cST_Vect<double> numeric(&record);
    cST_Vect<text> textual(&record);
    EXPECT_EQ(numeric.Count, 3);
    EXPECT_EQ(numeric.Vect.nbElem, 0u);
    EXPECT_EQ(textual.Vect.nbElem, 0u);
}

TEST(RecordColumn, RefusesAnArrayThatIsTooLong)
{
    caller_memory caller;
    ST_Vect record = caller.column(u"", numbers{1.0});
    record.Vect->rgsabound[0].cElements = 0x80000000u;
    EXPECT_THROW(cST_Vect<double>{&record}, boost::numeric::positive_overflow);
    record.Vect->rgsabound[0].cElements = 1;
    EXPECT_EQ(record.Count, 1);
}
