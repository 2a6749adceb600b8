#include "domain/memory_probe.h"

#include "platform/memory.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

#if !defined(_WIN32)
#include "support/address_space.h"
#include "support/leaks.h"

#include <cstdlib>
#endif

using namespace korvel::test;
using korvel::firstThatDoesNotFit;
using korvel::tables_on_trial;
using korvel::platform::availableAddressSpace;

namespace
{

// With a factor of 1 this many cells take 2^32 bytes, of which 32 bits leave 0.
constexpr int rowsOfTruncatedBlock = 1 << 29;

// With a factor of 1.1 this many cells take 2 times 2^32 bytes and a fraction of one.
constexpr int rowsOfEmptyBlock = 976128931;

} // namespace

TEST(MemoryProbe, HandsOutABlock)
{
    auto* block = static_cast<unsigned char*>(TestMemory(100, 3, 1.5));
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(block[3599], 0);
    std::fill_n(block, 3600, static_cast<unsigned char>(7));
    EXPECT_EQ(block[3599], 7);
    korvel::platform::releasePages(block, 3600);
}

TEST(MemoryProbe, TruncatesBytesTo32Bits)
{
    EXPECT_EQ(TestMemory(rowsOfTruncatedBlock, 1, 1.0), nullptr) << "no byte is left";
    EXPECT_EQ(TestMemory(rowsOfTruncatedBlock, 4, 1.0), nullptr);
    EXPECT_EQ(TestMemory(0, 5, 1.1), nullptr);
    EXPECT_EQ(TestMemory(1, 1, 0.1), nullptr) << "less than a byte";
    EXPECT_EQ(TestMemory(1, 1, std::numeric_limits<double>::quiet_NaN()), nullptr);
    EXPECT_EQ(TestMemory(1, 1, std::numeric_limits<double>::infinity()), nullptr);
    void* const block = TestMemory(rowsOfTruncatedBlock, 1, 1.0 + 0x1p-29);
    EXPECT_NE(block, nullptr) << "8 bytes are";
    korvel::platform::releasePages(block, 8);
}

TEST(MemoryProbe, TellsTheFirstTableThatDoesNotFit)
{
    tables_on_trial tables{};
    EXPECT_EQ(firstThatDoesNotFit(tables), -1) << "tables without cells cost nothing";
    tables.fill({10, 10});
    EXPECT_EQ(firstThatDoesNotFit(tables), -1);
    tables.fill({0, 5});
    tables[3] = {7, 0};
    EXPECT_EQ(firstThatDoesNotFit(tables), -1);
    for (const std::size_t k : {std::size_t{0}, std::size_t{4}, std::size_t{19}}) {
        tables.fill({3, 2});
        tables[k] = {rowsOfEmptyBlock, 1};
        tables[19] = {rowsOfEmptyBlock, 1};
        EXPECT_EQ(firstThatDoesNotFit(tables), static_cast<int>(k) + 1);
    }
}

TEST(MemoryProbe, GivesEverythingBack)
{
    constexpr std::uint64_t megabyte = 1 << 20;
    static_cast<void>(availableAddressSpace()); // the first look maps and unmaps pages of its own
    for (const int last : {5, rowsOfEmptyBlock}) {
        tables_on_trial tables{};
        tables.fill({1024, 1024});
        tables[19] = {last, 1};
        const std::uint64_t before = availableAddressSpace();
        EXPECT_EQ(firstThatDoesNotFit(tables), last == 5 ? -1 : 20);
        const std::uint64_t after = availableAddressSpace();
        // Meanwhile other threads and the C library allocate and free a little.
        EXPECT_LE(before, after + 6 * megabyte) << "each block has more than 8 megabytes";
    }
}

TEST(MemoryProbe, ComparesWithTheFreeAddressSpace)
{
    EXPECT_TRUE(GetStatusMemory(0));
    EXPECT_TRUE(GetStatusMemory(1000));
    EXPECT_TRUE(GetStatusMemory(-5));
}

#if !defined(_WIN32)

namespace
{

/** Ends the process with 0 if nothing but an amount of 0 is there any more. */
[[noreturn]] void lookWhenNothingIsLeft()
{
    limitAddressSpace(1);
    std::exit(GetStatusMemory(0) && GetStatusMemory(-1) && !GetStatusMemory(1) ? 0 : 1);
}

/** Ends the process with 0 if a fifth is added to an amount. */
[[noreturn]] void lookWhenAGigabyteIsLeft()
{
    constexpr std::uint64_t gigabyte = 1 << 30;
    limitAddressSpace(std::uint64_t{1} << 40);
    limitAddressSpace((std::uint64_t{1} << 40) - availableAddressSpace() + gigabyte);
    const auto largest = static_cast<double>(availableAddressSpace()) / 1.2;
    const bool fits = GetStatusMemory(static_cast<int>(largest * 0.999));
    std::exit(fits && !GetStatusMemory(static_cast<int>(largest * 1.001)) ? 0 : 1);
}

} // namespace

TEST(MemoryProbeDeathTest, ComparesWithWhatALimitLeaves)
{
#if defined(KORVEL_TESTS_SEE_LEAKS)
    GTEST_SKIP() << "the sanitizer needs address space of its own";
#endif
    if (!addressSpaceCanBeLimited()) {
        GTEST_SKIP() << "the emulator ignores limits";
    }
    EXPECT_EXIT(lookWhenNothingIsLeft(), ::testing::ExitedWithCode(0), "");
    EXPECT_EXIT(lookWhenAGigabyteIsLeft(), ::testing::ExitedWithCode(0), "");
}

#endif
