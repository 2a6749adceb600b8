// Categories and what is made from them, with each allocation failing in turn. Results that are stored while
// a function runs may be there in part; a call that goes through afterwards puts all of them right.
#include "faults/each_allocation.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/category_records.h"

#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = KORVEL_MISSING_DBL;

/** Too long for a text's own room, so that each one needs a block. */
texts longNames(const std::vector<const char16_t*>& ends)
{
    texts made;
    for (const char16_t* const end : ends) {
        made.push_back(*end == 0 ? std::u16string()
                                 : u"10000 a name with a long beginning " + std::u16string(end));
    }
    return made;
}

/** Texts in which every place holds one to start with. */
texts filled(std::size_t count)
{
    return texts(count, u"an old text that needs a block of its own");
}

} // namespace

// One variable, which is sorted on the caller's thread: allocations are counted for each thread apart.
TEST(CategoryFaults, LeaveNothingBehind)
{
    text_block data(longNames({u"b", u"", u"a", u"b"}));
    text_block names(filled(4));
    text_block modes(filled(1));
    std::vector<double> weights{1, 2, 4, 8};
    std::vector<double> frequencies(4);
    double modeFrequency = 0;
    int count = 0;
    int total = 0;
    EXPECT_GT(failEachAllocation([&] {
                  VB_M_InfoQuali(data.data(), 4, 1, modes.data(), &modeFrequency, &count, names.data(),
                                 frequencies.data(), weights.data(), &total, -1);
              }),
              5);
    EXPECT_EQ(names.values(), longNames({u"b", u"a", u"", u""})) << "equal numbers";
    EXPECT_EQ(modes.values(), longNames({u"b"}));
    EXPECT_EQ(frequencies, (doubles{9, 4, 0, 0}));

    short int flag = 0;
    failEachAllocation([&] {
        VB_M_InfoQualiValid(data.data(), 4, 1, 4, &count, names.data(), frequencies.data(), &flag,
                            weights.data());
    });
    EXPECT_EQ(frequencies, (doubles{9, 4, 0, 0}));
    EXPECT_EQ(flag, 0);

    std::vector<double> table(8, 7.0);
    failEachAllocation([&] {
        VB_BuildDisjunctiveTable(data.data(), 4, 1, 2, &count, names.data(), frequencies.data(), table.data(),
                                 0, 0);
    });
    EXPECT_EQ(table, (doubles{1, missing, 0, 1, 0, missing, 1, 0}));
    failEachAllocation([&] { VB_M_ReplaceStrByCodesBinary(data.data(), 4, 1, nullptr, table.data()); });
    EXPECT_EQ((doubles{table[0], table[1], table[2], table[3]}), (doubles{0, 1, 2, 0}));
    std::vector<short int> flags(4);
    failEachAllocation([&] {
        VB_M_ReplaceStrByCodes(data.data(), 4, 1, &count, names.data(), flags.data(), 1, table.data());
    });
    EXPECT_EQ((doubles{table[0], table[1], table[2], table[3]}), (doubles{1, missing, 2, 1}));
    failEachAllocation([&] { EXPECT_EQ(Cpp_GetMaxCat(data.data(), 4, 1, &count), 2); });
    failEachAllocation([&] { EXPECT_EQ(Cpp_CheckUniqueCatByVar(names.data(), 1, 4, &count), 0); });
}

TEST(CategoryRecordFaults, LeaveNothingBehind)
{
    caller_categories categories({filled(3)}, 4);
    caller_memory& memory = categories.memory();
    ST_MVect data = memory.table({memory.column(u"", longNames({u"b", u"", u"a", u"b"}))}, {u"v"});
    std::vector<double> weights{1, 2, 4, 8};
    categories.record.withSort = -1;
    categories.record.withRecode = -1;
    startOpenMP();
    // A text that cannot be written back stays as it was, and no failure comes out of the writing.
    for (int allowed = 0; allowed < 100; ++allowed) {
        const std::int64_t before = allocationsAlive();
        try {
            const allocation_limit limit(allowed);
            Cpp_M_InfoQuali3_ST(&data, weights.data(), &categories.record);
        } catch (const std::bad_alloc&) {
            EXPECT_LT(allowed, 99);
        }
        EXPECT_EQ(allocationsAlive(), before) << "with " << allowed << " allowed";
    }
    EXPECT_EQ(categories.names(0)[0], longNames({u"b"})[0]);
    EXPECT_EQ(categories.rows(0)[0], 2.0);
    EXPECT_EQ(categories.code(3), 0.0);
    EXPECT_TRUE(memory.guardsIntact());
}
