#include "containers/records.h"
#include "support/bits.h"
#include "support/caller_memory.h"

#if !defined(_WIN32)
#include "platform/automation/counters.h"
#endif

#include <boost/numeric/conversion/cast.hpp>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

ST_QualiInfo fullRecord(caller_memory& caller)
{
    ST_QualiInfo record{};
    record.Count = 2;
    record.SumW = 2.5;
    record.MaxNbCat = 3;
    record.NbCat = caller.array(std::vector<int>{2, 1});
    record.NbCatTotal = 4;
    record.CatNames = caller.table({caller.column(u"n", texts{u"red", u"blue"})}, {u"colour"});
    record.CatFreq = caller.table({caller.column(u"f", numbers{1.0, 2.0})}, {u"f"});
    record.CatFreqW = caller.table({caller.column(u"w", numbers{0.5, 2.0})}, {u"w"});
    record.FreqMax = 6.5;
    record.VarLabels = caller.texts({u"one", u"two"});
    record.IgnoreNewCategoryInPred = 7;
    record.withRecode = 8;
    record.codeStart = 9;
    record.Codes = caller.array({2, 2}, numbers{1.0, 2.0, 3.0, 4.0});
    record.nCodes = 10;
    record.withSort = 11;
    record.noWeights = 12;
    record.withLongLabels = 13;
    record.CheckType = 14;
    return record;
}

void expectEmpty(const cST_QualiInfo& info)
{
    EXPECT_EQ(info.source, nullptr);
    EXPECT_EQ(info.Count, 0);
    EXPECT_SAME_BITS(info.SumW, 0.0);
    EXPECT_EQ(info.MaxNbCat, 0);
    EXPECT_EQ(info.NbCatTotal, 0);
    EXPECT_SAME_BITS(info.FreqMax, 0.0);
    EXPECT_EQ(info.NbCat, nullptr);
    EXPECT_EQ(info.VarLabels, nullptr);
    EXPECT_EQ(info.CatNames, nullptr);
    EXPECT_EQ(info.CatFreq, nullptr);
    EXPECT_EQ(info.CatFreqW, nullptr);
    EXPECT_EQ(info.IgnoreNewCategoryInPred, 0);
    EXPECT_EQ(info.withRecode, 0);
    EXPECT_EQ(info.codeStart, 0);
    EXPECT_EQ(info.Codes, nullptr);
    EXPECT_EQ(info.nCodes, 0);
    EXPECT_EQ(info.withSort, 0);
    EXPECT_EQ(info.noWeights, 0);
    EXPECT_EQ(info.withLongLabels, 0);
    EXPECT_EQ(info.CheckType, -1);
}

} // namespace

TEST(RecordCategories, AreEmptyWithoutARecord)
{
    expectEmpty(cST_QualiInfo());
    expectEmpty(cST_QualiInfo(nullptr));
}

TEST(RecordCategories, TakeTheRecordsFields)
{
    caller_memory caller;
    ST_QualiInfo record = fullRecord(caller);
    const cST_QualiInfo info(&record);
    EXPECT_EQ(info.source, &record);
    EXPECT_EQ(info.Count, 2);
    EXPECT_SAME_BITS(info.SumW, 2.5);
    EXPECT_EQ(info.MaxNbCat, 3);
    EXPECT_EQ(info.NbCatTotal, 4);
    EXPECT_SAME_BITS(info.FreqMax, 6.5);
    EXPECT_EQ(info.IgnoreNewCategoryInPred, 7);
    EXPECT_EQ(info.withRecode, 8);
    EXPECT_EQ(info.codeStart, 9);
    EXPECT_EQ(info.nCodes, 10);
    EXPECT_EQ(info.withSort, 11);
    EXPECT_EQ(info.noWeights, 12);
    EXPECT_EQ(info.withLongLabels, 13);
    EXPECT_EQ(info.CheckType, 14);
    EXPECT_EQ(info.NbCat->data, record.NbCat->pvData);
    EXPECT_EQ((*info.VarLabels)[1], u"two");
    EXPECT_EQ(info.CatNames->source, &record.CatNames);
    EXPECT_EQ(info.CatNames->Vectors[0].Vect[1], u"blue");
    EXPECT_EQ(info.CatFreq->source, &record.CatFreq);
    EXPECT_EQ(info.CatFreqW->source, &record.CatFreqW);
    EXPECT_EQ(info.Codes->data, record.Codes->pvData);
    EXPECT_EQ(info.Codes->nbcols, 2);
}

TEST(RecordCategories, ReadCodesOnlyWithRecode)
{
    caller_memory caller;
    ST_QualiInfo record = fullRecord(caller);
    record.withRecode = 0;
    EXPECT_EQ(cST_QualiInfo(&record).Codes, nullptr);
    record.withRecode = -1;
    EXPECT_NE(cST_QualiInfo(&record).Codes, nullptr);
}

TEST(RecordCategories, WriteScalarsLabelsAndPartsBackWhenTheyDie)
{
    caller_memory caller;
    ST_QualiInfo record = fullRecord(caller);
    {
        cST_QualiInfo info(&record);
        info.Count = 102;
        info.SumW = 102.5;
        info.MaxNbCat = 103;
        info.NbCatTotal = 104;
        info.FreqMax = 106.5;
        info.IgnoreNewCategoryInPred = 107;
        info.withRecode = 108;
        info.codeStart = 109;
        info.nCodes = 110;
        info.withSort = 111;
        info.noWeights = 112;
        info.withLongLabels = 113;
        info.CheckType = 114;
        (*info.VarLabels)[0] = u"changed";
        info.CatNames->nbrowsmax = 115;
        info.CatNames->Vectors[0].Vect[0] = u"green";
        info.CatFreq->nbrowsmax = 116;
        info.CatFreqW->nbrowsmax = 117;
        EXPECT_EQ(record.Count, 2);
        EXPECT_EQ(record.CheckType, 14);
    }
    EXPECT_EQ(record.Count, 102);
    EXPECT_SAME_BITS(record.SumW, 102.5);
    EXPECT_EQ(record.MaxNbCat, 103);
    EXPECT_EQ(record.NbCatTotal, 104);
    EXPECT_SAME_BITS(record.FreqMax, 106.5);
    EXPECT_EQ(record.IgnoreNewCategoryInPred, 107);
    EXPECT_EQ(record.withRecode, 108);
    EXPECT_EQ(record.codeStart, 109);
    EXPECT_EQ(record.nCodes, 110);
    EXPECT_EQ(record.withSort, 111);
    EXPECT_EQ(record.noWeights, 112);
    EXPECT_EQ(record.withLongLabels, 113);
    EXPECT_EQ(record.CheckType, 114);
    EXPECT_EQ(textsIn(record.VarLabels), (texts{u"changed", u"two"}));
    EXPECT_EQ(record.CatNames.nbrowsmax, 115);
    EXPECT_EQ(textsIn(columnOf(record.CatNames, 0).Vect), (texts{u"green", u"blue"}));
    EXPECT_EQ(record.CatFreq.nbrowsmax, 116);
    EXPECT_EQ(record.CatFreqW.nbrowsmax, 117);
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(RecordCategories, WriteNothingBackWithoutARecord)
{
    cST_QualiInfo info;
    info.VarLabels = new matrix<text>(1, 1, u"x");
    info.Codes = new matrix<double>(1, 1, 1.0);
    info.NbCat = new matrix<int>(1, 1);
    info.CatFreq = new cST_MVect<double>(1, 1);
}

TEST(RecordCategories, PutBackLabelsThatARoutineHasReplaced)
{
    caller_memory caller;
    ST_QualiInfo record = fullRecord(caller);
    {
        cST_QualiInfo info(&record);
        delete info.VarLabels;
        info.VarLabels = new matrix<text>(5, 1, u"fresh");
    }
    EXPECT_EQ(textsIn(record.VarLabels), (texts{u"fresh", u"fresh"}));
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(RecordCategories, BearNullArrays)
{
    ST_QualiInfo record{};
    record.withRecode = -1;
    {
        const cST_QualiInfo info(&record);
        EXPECT_EQ(info.NbCat->nbElem, 0u);
        EXPECT_EQ(info.VarLabels->nbElem, 0u);
        EXPECT_TRUE(info.CatNames->Vectors.empty());
        EXPECT_EQ(info.Codes->nbElem, 0u);
    }
    EXPECT_EQ(record.withRecode, -1);
}

TEST(RecordCategories, LeaveTheRecordAloneWhenAPartIsTooLong)
{
    caller_memory caller;
    ST_QualiInfo record = fullRecord(caller);
    const ST_QualiInfo before = record;
    for (SAFEARRAY* part :
         {record.NbCat, record.VarLabels, columnOf(record.CatNames, 0).Vect, record.CatNames.nbrows,
          columnOf(record.CatFreq, 0).Vect, record.CatFreqW.Vectors, record.Codes}) {
        ULONG& count = part->rgsabound[part->cDims - 1].cElements;
        const ULONG right = count;
        count = 0x80000000u;
        EXPECT_THROW(cST_QualiInfo{&record}, boost::numeric::positive_overflow);
        count = right;
        EXPECT_EQ(std::memcmp(&record, &before, sizeof record), 0);
    }
    EXPECT_EQ(textsIn(record.VarLabels), (texts{u"one", u"two"}));
    EXPECT_TRUE(caller.guardsIntact());
}

#if !defined(_WIN32)
TEST(RecordCategories, KeepOldLabelsWhenThereIsNoMemoryForNewOnes)
{
    caller_memory caller;
    ST_QualiInfo record = fullRecord(caller);
    {
        cST_QualiInfo info(&record);
        info.Count = 50;
        (*info.VarLabels)[0] = u"changed";
        (*info.VarLabels)[1] = u"changed too";
        info.CatNames->nbcols = 51;
        info.CatNames->Vectors[0].Vect[0] = u"green";
        KorvelLimitAutomationAllocations(1);
    }
    KorvelLimitAutomationAllocations(-1);
    EXPECT_EQ(record.Count, 50);
    // The labels come before the parts, so the one text that could be made is theirs.
    EXPECT_EQ(textsIn(record.VarLabels), (texts{u"changed", u"two"}));
    EXPECT_EQ(record.CatNames.nbcols, 51);
    EXPECT_EQ(textsIn(columnOf(record.CatNames, 0).Vect), (texts{u"red", u"blue"}));
}

TEST(RecordCategories, LoseNoTextWhenAPartIsTooLong)
{
    KorvelAutomationCounters before{};
    KorvelAutomationCounters after{};
    KorvelReadAutomationCounters(&before);
    {
        caller_memory caller;
        ST_QualiInfo record = fullRecord(caller);
        record.Codes->rgsabound[1].cElements = 0x80000000u;
        EXPECT_THROW(cST_QualiInfo{&record}, boost::numeric::positive_overflow);
    }
    KorvelReadAutomationCounters(&after);
    EXPECT_EQ(after.textsMade - before.textsMade, after.textsFreed - before.textsFreed);
    EXPECT_EQ(after.blocksMade - before.blocksMade, after.blocksFreed - before.blocksFreed);
    EXPECT_EQ(after.arraysDestroyed, before.arraysDestroyed);
}
#endif
