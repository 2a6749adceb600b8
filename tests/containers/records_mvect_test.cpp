#include "containers/records.h"
#include "support/bits.h"
#include "support/caller_memory.h"

#include <boost/numeric/conversion/cast.hpp>
#include <type_traits>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

texts labelsOf(const matrix<text>& labels)
{
    return {labels.data, labels.data + labels.nbElem};
}

} // namespace

TEST(RecordTable, IsEmptyWithoutARecord)
{
    const cST_MVect<short int> table;
    EXPECT_EQ(table.kind, 5);
    EXPECT_EQ(table.source, nullptr);
    EXPECT_EQ(table.nbcols, 0);
    EXPECT_EQ(table.samenbrows, 0);
    EXPECT_EQ(table.nbrowsmax, 0);
    EXPECT_TRUE(table.Vectors.empty());
    EXPECT_EQ(table.nbrows.nbElem, 0u);
    EXPECT_EQ(table.CLabels.nbElem, 0u);
    EXPECT_FALSE(table.bTriangular);
}

TEST(RecordTable, HasARecordFormForNumbersAndTexts)
{
    static_assert(std::is_constructible_v<cST_MVect<double>, ST_MVect*>);
    static_assert(std::is_constructible_v<cST_MVect<text>, ST_MVect*>);
    static_assert(!std::is_constructible_v<cST_MVect<int>, ST_MVect*>);
    static_assert(!std::is_constructible_v<cST_MVect<short int>, ST_MVect*>);
}

TEST(RecordTable, UsesTheRecordsArrays)
{
    caller_memory caller;
    ST_MVect record =
        caller.table({caller.column(u"x", numbers{1.0, 2.0, 3.0}), caller.column(u"y", numbers{4.0})},
                     {u"first", u"second"});
    cST_MVect<double> table(&record);
    EXPECT_EQ(table.kind, 1);
    EXPECT_EQ(table.source, &record);
    EXPECT_EQ(table.nbcols, 2);
    EXPECT_EQ(table.samenbrows, 0);
    EXPECT_EQ(table.nbrowsmax, 3);
    EXPECT_FALSE(table.bTriangular);
    EXPECT_EQ(table.nbrows.data, record.nbrows->pvData);
    EXPECT_EQ(table.nbrows[1], 1);
    EXPECT_EQ(labelsOf(table.CLabels), (texts{u"first", u"second"}));
    ASSERT_EQ(table.Vectors.size(), 2u);
    for (int j = 0; j < 2; ++j) {
        const cST_Vect<double>& column = table.Vectors[std::size_t(j)];
        EXPECT_EQ(column.kind, 1);
        EXPECT_EQ(column.source, &columnOf(record, j));
        EXPECT_EQ(column.Vect.data, columnOf(record, j).Vect->pvData);
    }
    EXPECT_EQ(contentOf(table.Vectors[1].Label), u"y");
    EXPECT_SAME_BITS(table.Vectors[0].Vect[2], 3.0);
}

TEST(RecordTable, WritesScalarsAndTextsBackWhenItDies)
{
    caller_memory caller;
    ST_MVect record = caller.table({caller.column(u"x", texts{u"p", u"q"})}, {u"old"});
    {
        cST_MVect<text> table(&record);
        EXPECT_EQ(table.kind, 3);
        EXPECT_EQ(table.Vectors[0].kind, 3);
        table.nbcols = 5;
        table.samenbrows = 0;
        table.nbrowsmax = 17;
        table.nbrows[0] = 6;
        table.CLabels[0] = u"new";
        table.Vectors[0].Count = 9;
        table.Vectors[0].Vect[1] = u"changed";
        EXPECT_EQ(record.nbcols, 1);
        EXPECT_EQ(record.samenbrows, -1);
        EXPECT_EQ(record.nbrowsmax, 2);
        EXPECT_EQ(columnOf(record, 0).Count, 2);
    }
    EXPECT_EQ(record.nbcols, 5);
    EXPECT_EQ(record.samenbrows, 0);
    EXPECT_EQ(record.nbrowsmax, 17);
    EXPECT_EQ(numbersIn<int>(record.nbrows), std::vector<int>{6});
    EXPECT_EQ(textsIn(record.CLabels), texts{u"new"});
    EXPECT_EQ(columnOf(record, 0).Count, 9);
    EXPECT_EQ(textsIn(columnOf(record, 0).Vect), (texts{u"p", u"changed"}));
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(RecordTable, HasNoColumnsOverANullOrEmptyArray)
{
    ST_MVect record{};
    record.nbcols = 3;
    EXPECT_TRUE(cST_MVect<double>(&record).Vectors.empty());
    EXPECT_EQ(record.nbcols, 3);

    caller_memory caller;
    record.Vectors = caller.array(std::vector<ST_Vect>{});
    EXPECT_TRUE(cST_MVect<text>(&record).Vectors.empty());

    record.Vectors = caller.array(std::vector<ST_Vect>(2));
    void* block = std::exchange(record.Vectors->pvData, nullptr);
    EXPECT_TRUE(cST_MVect<text>(&record).Vectors.empty());
    record.Vectors->pvData = block;
    EXPECT_EQ(cST_MVect<text>(&record).Vectors.size(), 2u);
}

TEST(RecordTable, TakesTheNumberOfColumnsFromTheLeftmostDimension)
{
    caller_memory caller;
    std::vector<ST_Vect> columns(6);
    for (int j = 0; j < 6; ++j) {
        columns[std::size_t(j)].Count = j;
    }
    ST_MVect record{};
    record.Vectors = caller.array({3, 2}, columns);
    const cST_MVect<double> table(&record);
    ASSERT_EQ(table.Vectors.size(), 3u);
    EXPECT_EQ(table.Vectors[2].Count, 2);
}

TEST(RecordTable, OfItsOwnIsZeroFilled)
{
    const cST_MVect<double> table(3, 2);
    EXPECT_EQ(table.kind, 5);
    EXPECT_EQ(table.source, nullptr);
    EXPECT_EQ(table.nbcols, 2);
    EXPECT_EQ(table.samenbrows, -1);
    EXPECT_EQ(table.nbrowsmax, 3);
    EXPECT_FALSE(table.bTriangular);
    EXPECT_EQ(labelsOf(table.CLabels), (texts{u"", u""}));
    ASSERT_EQ(table.nbrows.nbElem, 2u);
    EXPECT_EQ(table.nbrows[0], 3);
    EXPECT_EQ(table.nbrows[1], 3);
    ASSERT_EQ(table.Vectors.size(), 2u);
    for (const cST_Vect<double>& column : table.Vectors) {
        EXPECT_EQ(column.kind, 5);
        EXPECT_EQ(column.source, nullptr);
        EXPECT_EQ(column.Count, 3);
        EXPECT_EQ(column.Label, nullptr);
        EXPECT_EQ(column.Vect.nbrows, 3);
        EXPECT_EQ(column.Vect.nbcols, 1);
        EXPECT_TRUE(column.Vect.bOwner);
        for (int i = 0; i < 3; ++i) {
            EXPECT_SAME_BITS(column.Vect[i], 0.0);
        }
    }
    const cST_MVect<text> ofTexts(1, 1);
    EXPECT_EQ(ofTexts.Vectors[0].Vect[0], u"");
    const cST_MVect<int> ofIntegers(1, 1);
    EXPECT_EQ(ofIntegers.Vectors[0].Vect[0], 0);
    const cST_MVect<short int> withoutColumns(4, 0);
    EXPECT_TRUE(withoutColumns.Vectors.empty());
    EXPECT_EQ(withoutColumns.CLabels.nbElem, 0u);
}

TEST(RecordTable, CopiesAreDeepAndBelongToNoRecord)
{
    caller_memory caller;
    ST_MVect record = caller.table(
        {caller.column(u"x", numbers{1.0, 2.0}), caller.column(u"y", numbers{3.0})}, {u"a", u"b"});
    cST_MVect<double> table(&record);
    table.bTriangular = true;
    {
        cST_MVect<double> copy(table);
        EXPECT_EQ(copy.kind, 5);
        EXPECT_EQ(copy.source, nullptr);
        EXPECT_EQ(copy.nbcols, 2);
        EXPECT_EQ(copy.samenbrows, 0);
        EXPECT_EQ(copy.nbrowsmax, 2);
        EXPECT_TRUE(copy.bTriangular);
        EXPECT_EQ(labelsOf(copy.CLabels), (texts{u"a", u"b"}));
        EXPECT_EQ(copy.nbrows[1], 1);
        EXPECT_EQ(copy.nbrows.safeArray, nullptr);
        ASSERT_EQ(copy.Vectors.size(), 2u);
        EXPECT_EQ(copy.Vectors[1].kind, 5);
        EXPECT_EQ(copy.Vectors[1].source, nullptr);
        EXPECT_EQ(copy.Vectors[1].Count, 1);
        EXPECT_EQ(copy.Vectors[1].Label, columnOf(record, 1).Label);
        EXPECT_SAME_BITS(copy.Vectors[0].Vect[1], 2.0);
        copy.Vectors[0].Vect[1] = -1.0;
        copy.Vectors[0].Count = 99;
        copy.nbrows[1] = 99;
        copy.CLabels[0] = u"changed";
        copy.nbcols = 99;
    }
    EXPECT_SAME_BITS(table.Vectors[0].Vect[1], 2.0);
    EXPECT_EQ(numbersIn<int>(record.nbrows), (std::vector<int>{2, 1}));
    EXPECT_EQ(textsIn(record.CLabels), (texts{u"a", u"b"}));
    EXPECT_EQ(record.nbcols, 2);
    EXPECT_EQ(columnOf(record, 0).Count, 2);
}

TEST(RecordTable, CopiesEachElementType)
{
    const auto copied = [](auto table, const auto& value) {
        table.Vectors[1].Vect[2] = value;
        table.Vectors[1].Count = 2;
        const auto copy(table);
        table.Vectors[1].Vect[2] = {};
        EXPECT_EQ(copy.nbcols, 2);
        EXPECT_EQ(copy.nbrowsmax, 3);
        EXPECT_EQ(copy.source, nullptr);
        EXPECT_EQ(copy.Vectors[1].Count, 2);
        EXPECT_EQ(copy.Vectors[1].Vect.nbElem, 3u);
        return copy.Vectors[1].Vect[2] == value;
    };
    EXPECT_TRUE(copied(cST_MVect<int>(3, 2), 7));
    EXPECT_TRUE(copied(cST_MVect<short int>(3, 2), short{-1}));
    EXPECT_TRUE(copied(cST_MVect<text>(3, 2), text(u"cell")));
}

TEST(RecordTable, CopiesColumnsWithoutABlock)
{
    caller_memory caller;
    ST_MVect record = caller.table({caller.column(u"x", numbers{1.0, 2.0})}, {u"a"});
    columnOf(record, 0).Vect->pvData = nullptr;
    record.nbrows->pvData = nullptr;
    const cST_MVect<double> table(&record);
    const cST_MVect<double> copy(table);
    EXPECT_EQ(copy.Vectors[0].Vect.nbElem, 2u);
    EXPECT_SAME_BITS(copy.Vectors[0].Vect[1], 0.0);
}

TEST(RecordTable, ReleasesWhatItHasBuiltWhenAColumnIsTooLong)
{
    caller_memory caller;
    ST_MVect record =
        caller.table({caller.column(u"x", texts{u"p"}), caller.column(u"y", texts{u"q"})}, {u"a", u"b"});
    record.nbcols = 12;
    columnOf(record, 1).Vect->rgsabound[0].cElements = 0xFFFFFFFFu;
    EXPECT_THROW(cST_MVect<text>{&record}, boost::numeric::positive_overflow);
    columnOf(record, 1).Vect->rgsabound[0].cElements = 1;
    EXPECT_EQ(record.nbcols, 12);
    EXPECT_EQ(columnOf(record, 0).Count, 1);
    EXPECT_EQ(textsIn(columnOf(record, 0).Vect), texts{u"p"});

    record.Vectors->rgsabound[0].cElements = 0x80000000u;
    EXPECT_THROW(cST_MVect<text>{&record}, boost::numeric::positive_overflow);
    record.Vectors->rgsabound[0].cElements = 2;
}
