#include "platform/memory.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>

#if !defined(_WIN32)
#include <sys/resource.h>
#endif

using namespace korvel::platform;

namespace
{

constexpr std::size_t megabyte = std::size_t{1} << 20;
constexpr std::size_t gigabyte = std::size_t{1} << 30;

} // namespace

TEST(Memory, CommittedPagesAreZeroedAndWritable)
{
    auto* block = static_cast<unsigned char*>(commitPages(megabyte));
    ASSERT_NE(block, nullptr);
    EXPECT_TRUE(std::all_of(block, block + megabyte, [](unsigned char byte) { return byte == 0; }));
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
    EXPECT_GT(availableAddressSpace(), gigabyte);
}

// Wine answers with one figure for all time, so what the figure follows is tested off Windows.
#if !defined(_WIN32)

TEST(Memory, ATakenBlockLeavesTheFreeAddressSpaceAndComesBack)
{
    const std::uint64_t before = availableAddressSpace();
    void* block = commitPages(gigabyte / 4);
    ASSERT_NE(block, nullptr);
    const std::uint64_t during = availableAddressSpace();
    releasePages(block, gigabyte / 4);
    const std::uint64_t after = availableAddressSpace();

    // Other threads and the C library take and give back a little meanwhile.
    EXPECT_GE(before - during, gigabyte / 4 - 16 * megabyte);
    EXPECT_LE(before - during, gigabyte / 4 + 16 * megabyte);
    EXPECT_GE(after - during, gigabyte / 4 - 16 * megabyte);
}

TEST(Memory, ALimitOfTheProcessCounts)
{
    rlimit old{};
    ASSERT_EQ(getrlimit(RLIMIT_AS, &old), 0);
    static_cast<void>(availableAddressSpace()); // the first look maps and unmaps pages of its own
    const std::uint64_t used = (std::uint64_t{1} << 47) - availableAddressSpace();
    rlimit tight = old;
    tight.rlim_cur = used + gigabyte;
    ASSERT_EQ(setrlimit(RLIMIT_AS, &tight), 0);
    const std::uint64_t left = availableAddressSpace();
    void* tooLarge = commitPages(2 * gigabyte);
    ASSERT_EQ(setrlimit(RLIMIT_AS, &old), 0);

    EXPECT_EQ(tooLarge, nullptr);
    EXPECT_LE(left, gigabyte);
    EXPECT_GE(left, gigabyte - 16 * megabyte);
}

#endif
