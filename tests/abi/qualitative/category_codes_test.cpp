#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <new>

using namespace korvel::test;

namespace
{

constexpr double missing = KORVEL_MISSING_DBL;

/** Two variables of three rows, and their categories: a and b; x. */
struct known_texts {
    text_block data{{u"b", u"?", u"a", u"x", u"x", u""}};
    text_block names{{u"a", u"x", u"b", u""}};
    guarded<int> counts{2, 1};
    guarded<short int> flags{0, 0, 1};
    caller_memory memory;

    ST_MVect record()
    {
        return memory.table(
            {memory.column(u"", texts{u"b", u"?", u"a"}), memory.column(u"", texts{u"x", u"x", u""})},
            {u"v", u"w"});
    }
    ST_MVect result()
    {
        return memory.table({memory.column(u"", doubles{7, 7, 7}), memory.column(u"", doubles{7, 7, 7})},
                            {u"v", u"w"});
    }
};

doubles columnIn(const ST_MVect& table, int j)
{
    return numbersIn<double>(columnOf(table, j).Vect);
}

} // namespace

TEST(FlatCategoryCodes, OfATableInEveryForm)
{
    known_texts x;
    guarded<double> dense(doubles(6, 7.0));
    EXPECT_EQ(VB_M_ReplaceStrByCodes(x.data.data(), 3, 2, x.counts.data(), x.names.data(), x.flags.data(), 5,
                                     dense.data()),
              0);
    EXPECT_EQ(valuesOf(dense), (doubles{6, missing, missing, 5, 5, missing}));
    ST_MVect data = x.record();
    ST_MVect result = x.result();
    EXPECT_EQ(
        Cpp_M_ReplaceStrByCodes_ST(&data, 3, 2, x.counts.data(), x.names.data(), x.flags.data(), 5, &result),
        0);
    EXPECT_EQ(columnIn(result, 0), (doubles{6, missing, missing}));
    EXPECT_EQ(columnIn(result, 1), (doubles{5, 5, missing}));
    caller_columns chunks({{7, 7, 7}, {7, 7, 7}});
    EXPECT_EQ(Cpp_M_ReplaceStrByCodesSPV(x.data.data(), 3, 2, x.counts.data(), x.names.data(), x.flags.data(),
                                         5, chunks.argument()),
              0);
    EXPECT_EQ(chunks.values(), (caller_columns::columns{{6, missing, missing}, {5, 5, missing}}));
    EXPECT_TRUE(x.memory.guardsIntact());
}

TEST(FlatCategoryCodes, OfNoVariable)
{
    known_texts x;
    guarded<double> dense(doubles(6, 7.0));
    ST_MVect data = x.record();
    ST_MVect result = x.result();
    caller_columns chunks({{7, 7, 7}, {7, 7, 7}});
    const auto callAll = [&](int p, auto call) {
        call([&] {
            VB_M_ReplaceStrByCodes(x.data.data(), 3, p, x.counts.data(), x.names.data(), x.flags.data(), 5,
                                   dense.data());
        });
        call([&] {
            Cpp_M_ReplaceCatByCodes(x.data.data(), 3, p, x.counts.data(), x.names.data(), dense.data());
        });
        call([&] {
            Cpp_M_ReplaceStrByCodes_ST(&data, 3, p, x.counts.data(), x.names.data(), x.flags.data(), 5,
                                       &result);
        });
        call([&] { Cpp_M_ReplaceCatByCodes_ST(&data, 3, p, x.counts.data(), x.names.data(), &result); });
        call([&] {
            Cpp_M_ReplaceStrByCodesSPV(x.data.data(), 3, p, x.counts.data(), x.names.data(), x.flags.data(),
                                       5, chunks.argument());
        });
    };
    callAll(0, [](auto replace) { replace(); });
    // No copy of the names can be made.
    callAll(-1, [](auto replace) { EXPECT_THROW(replace(), std::bad_alloc); });
    EXPECT_EQ(valuesOf(dense), doubles(6, 7.0));
    EXPECT_EQ(columnIn(result, 0), (doubles{7, 7, 7}));
    EXPECT_EQ(chunks.values(), (caller_columns::columns{{7, 7, 7}, {7, 7, 7}}));
}

TEST(FlatCategoryCodes, OfMoreVariablesThanTheRecordsHave)
{
    known_texts x;
    guarded<int> counts{2, 1, 1};
    text_block names({u"a", u"x", u"z", u"b", u"", u""});
    ST_MVect data = x.record();
    ST_MVect result = x.result();
    Cpp_M_ReplaceStrByCodes_ST(&data, 3, 3, counts.data(), names.data(), x.flags.data(), 5, &result);
    EXPECT_EQ(columnIn(result, 1), (doubles{5, 5, missing}));
    Cpp_M_ReplaceCatByCodes_ST(&data, 3, 3, counts.data(), names.data(), &result);
    EXPECT_EQ(columnIn(result, 0), (doubles{2, missing, 1}));
    EXPECT_TRUE(x.memory.guardsIntact());
}

TEST(FlatCategoryCodes, MayLeaveCellsAsTheyWere)
{
    known_texts x;
    guarded<double> dense(doubles(6, 7.0));
    EXPECT_EQ(Cpp_M_ReplaceCatByCodes(x.data.data(), 3, 2, x.counts.data(), x.names.data(), dense.data()), 0);
    EXPECT_EQ(valuesOf(dense), (doubles{2, 7, 1, 1, 1, 7}));
    ST_MVect data = x.record();
    ST_MVect result = x.result();
    EXPECT_EQ(Cpp_M_ReplaceCatByCodes_ST(&data, 3, 2, x.counts.data(), x.names.data(), &result), 0);
    EXPECT_EQ(columnIn(result, 0), (doubles{2, 7, 1}));
    EXPECT_EQ(columnIn(result, 1), (doubles{1, 1, 7}));
    EXPECT_TRUE(x.memory.guardsIntact());
}

TEST(FlatCategoryCodes, OfAWholeTable)
{
    text_block data({u"b", u"", u"a", u"a", u"c", u"b"});
    guarded<short int> flags{0, 0, 0};
    guarded<double> result(doubles(6, 7.0));
    EXPECT_EQ(VB_M_ReplaceStrByCodesBinary(data.data(), 3, 2, flags.data(), result.data()), 0);
    EXPECT_EQ(valuesOf(result), (doubles{0, 1, 2, 2, 3, 0}));
    flags.data()[0] = 1;
    VB_M_ReplaceStrByCodesBinary(data.data(), 3, 2, flags.data(), result.data());
    EXPECT_EQ(valuesOf(result), (doubles{missing, 0, 1, missing, 2, 3}));
    VB_M_ReplaceStrByCodesBinary(data.data(), 3, 2, nullptr, result.data());
    EXPECT_EQ(valuesOf(result), (doubles{0, 1, 2, 2, 3, 0}));
    VB_M_ReplaceStrByCodesBinary(data.data(), 3, 0, nullptr, result.data());
    EXPECT_EQ(valuesOf(result), (doubles{0, 1, 2, 2, 3, 0}));
}

TEST(FlatCategoryCodes, ReplaceTextsByOthers)
{
    caller_memory memory;
    ST_MVect data = memory.table({memory.column(u"", texts{u"a", u"b", u"c"})}, {u"v"});
    ST_MVect codes = memory.table(
        {memory.column(u"", texts{u"a", u"b"}), memory.column(u"", texts{u"1", u"2"})}, {u"", u""});
    ST_MVect result = memory.table({memory.column(u"", texts{u"?", u"?", u"?"})}, {u"v"});
    EXPECT_EQ(Cpp_M_RecodeDataWithCodes_ST(&data, 3, 1, &codes, 0, &result), 0);
    EXPECT_EQ(textsIn(columnOf(result, 0).Vect), (texts{u"?", u"?", u"?"}));
    EXPECT_EQ(Cpp_M_RecodeDataWithCodes_ST(&data, 3, 1, &codes, 2, &result), 0);
    EXPECT_EQ(textsIn(columnOf(result, 0).Vect), (texts{u"1", u"2", u"c"}));
    EXPECT_EQ(textsIn(columnOf(data, 0).Vect), (texts{u"a", u"b", u"c"}));
    Cpp_M_RecodeDataWithCodes_ST(&data, 3, 1, &codes, 2, &data);
    EXPECT_EQ(textsIn(columnOf(data, 0).Vect), (texts{u"1", u"2", u"c"})) << "over the data";
    EXPECT_TRUE(memory.guardsIntact());
}

TEST(FlatCategoryCodes, MarkOneText)
{
    text_block column({u"a", u"", u"A"});
    caller_memory memory;
    guarded<double> result{7, 7, 7};
    EXPECT_EQ(Cpp_V_RecodeToBinary(column.data(), 3, memory.label(u"a"), result.data()), 0);
    EXPECT_EQ(valuesOf(result), (doubles{1, 0, 0}));
    Cpp_V_RecodeToBinary(column.data(), 3, memory.label(u""), result.data());
    EXPECT_EQ(valuesOf(result), (doubles{0, 1, 0}));
}
