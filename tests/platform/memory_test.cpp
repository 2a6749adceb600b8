#include "platform/memory.h"

#include "support/address_space.h"
#include "support/leaks.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>

using namespace korvel::platform;

namespace
{

constexpr std::size_t megabyte = std::size_t{1} << 20;

} // namespace

TEST(Memory, CommittedPagesAreZeroedAndWritable)
{
    auto* block = static_cast<unsigned char*>(commitPages(megabyte));
    ASSERT_NE(block, nullptr);
    EXPECT_TRUE(std::all_of(block, block + megabyte, [](unsigned char read) { return read == 0; }));
    std::memset(block, 0xA5, megabyte);
    EXPECT_EQ(block[megabyte - 1], 0xA5);
    releasePages(block, megabyte);
}

TEST(Memory, NothingAndTooMuchAreRefused)
{
    EXPECT_EQ(commitPages(0), nullptr);
    EXPECT_EQ(commitPages(std::numeric_limits<std::size_t>::max()), nullptr);
    EXPECT_EQ(commitPages(std::size_t{1} << 62), nullptr);
    releasePages(nullptr, 0);
}

TEST(Memory, ThereIsAddressSpaceLeft)
{
    EXPECT_GT(availableAddressSpace(), megabyte);
}

// Wine always answers with the same number, so changes of the number are tested off Windows only.
#if !defined(_WIN32)
using korvel::test::addressSpaceCanBeLimited;
using korvel::test::addressSpaceLimit;
using korvel::test::limitAddressSpace;

TEST(Memory, ATakenBlockLeavesTheFreeAddressSpaceAndComesBack)
{
    const std::uint64_t before = availableAddressSpace();
    void* block = commitPages(256 * megabyte);
    ASSERT_NE(block, nullptr);
    const std::uint64_t during = availableAddressSpace();
    releasePages(block, 256 * megabyte);
    const std::uint64_t after = availableAddressSpace();

    // Meanwhile other threads and the C library allocate and free a little.
    EXPECT_GE(before - during, 256 * megabyte - 16 * megabyte);
    EXPECT_LE(before - during, 256 * megabyte + 16 * megabyte);
    EXPECT_GE(after - during, 256 * megabyte - 16 * megabyte);
}

namespace
{

/** What the process has mapped. */
std::uint64_t addressSpaceInUse()
{
    limitAddressSpace(std::numeric_limits<std::uint64_t>::max());
    static_cast<void>(availableAddressSpace()); // the first look maps and unmaps pages of its own
    return std::min(addressSpaceLimit(), std::uint64_t{1} << 47) - availableAddressSpace();
}

/** Ends the process with 0 if the answer is what the limit of the address space leaves. */
[[noreturn]] void lookUnderALimit()
{
    limitAddressSpace(addressSpaceInUse() + 128 * megabyte);
    const std::uint64_t left = availableAddressSpace();
    const bool isTold = left <= 128 * megabyte && left >= 112 * megabyte;
    std::exit(isTold && commitPages(256 * megabyte) == nullptr ? 0 : 1);
}

/** The same for a limit below what the process has taken already. */
[[noreturn]] void lookUnderALimitBelowWhatIsUsed()
{
    limitAddressSpace(addressSpaceInUse() / 2);
    const std::uint64_t left = availableAddressSpace();
    std::exit(left == 0 && commitPages(megabyte) == nullptr ? 0 : 1);
}

} // namespace

// Each case runs in a process of its own, so that its limit holds for nothing else.

TEST(MemoryDeathTest, ALimitOfTheProcessCounts)
{
    if (!addressSpaceCanBeLimited()) {
        GTEST_SKIP() << "the emulator ignores limits";
    }
    EXPECT_EXIT(lookUnderALimit(), ::testing::ExitedWithCode(0), "");
}

TEST(MemoryDeathTest, NothingIsLeftUnderALimitBelowWhatIsUsed)
{
#if defined(KORVEL_TESTS_SEE_LEAKS)
    GTEST_SKIP() << "the sanitizer's own address space is not counted alike";
#endif
    if (!addressSpaceCanBeLimited()) {
        GTEST_SKIP() << "the emulator ignores limits";
    }
    EXPECT_EXIT(lookUnderALimitBelowWhatIsUsed(), ::testing::ExitedWithCode(0), "");
}

#endif
