#include "korvelmathtools/KORVELMathTools.h"

#include <array>
#include <gtest/gtest.h>
#include <utility>

namespace
{

/** The rows and columns of twenty tables. */
using counts = std::array<int, 40>;

template <std::size_t... K>
int tested(const counts& tables, std::index_sequence<K...>)
{
    return Cpp_TestMemory(&tables[K]...);
}

int tested(const counts& tables)
{
    return tested(tables, std::make_index_sequence<40>());
}

} // namespace

TEST(FlatMemoryProbe, TriesTwentyTables)
{
    counts tables{};
    EXPECT_EQ(tested(tables), -1) << "tables without cells cost nothing";
    for (std::size_t k = 0; k < 20; ++k) {
        // As many cells, and a tenth more, as two times 2^32 bytes and a fraction of one: none is left.
        tables.fill(2);
        tables[2 * k] = 976128931;
        tables[2 * k + 1] = 1;
        EXPECT_EQ(tested(tables), static_cast<int>(k) + 1);
        tables[2 * k + 1] = 0;
        EXPECT_EQ(tested(tables), -1) << "passed over";
        tables[2 * k] = 0;
        tables[2 * k + 1] = 976128931;
        EXPECT_EQ(tested(tables), -1);
    }
}

TEST(FlatMemoryProbe, ComparesWithTheFreeAddressSpace)
{
    EXPECT_EQ(Cpp_GetStatusMemory(0), -1);
    EXPECT_EQ(Cpp_GetStatusMemory(1 << 20), -1);
}
