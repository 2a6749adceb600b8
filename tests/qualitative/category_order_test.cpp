#include "qualitative/category_order.h"

#include "support/allocations.h"

#include <atomic>
#include <gtest/gtest.h>
#include <new>
#include <string>
#include <vector>

using korvel::forEachVariable;

TEST(EachVariable, HasItsOwnResult)
{
    for (const int variables : {-1, 0, 1, 2, 7, 40}) {
        const auto squares = forEachVariable<int>(variables, [](int j) { return j * j; });
        ASSERT_EQ(squares.size(), static_cast<std::size_t>(std::max(variables, 0)));
        for (int j = 0; j < variables; ++j) {
            EXPECT_EQ(squares[static_cast<std::size_t>(j)], j * j);
        }
    }
}

TEST(EachVariable, ThrowsWhenAllOthersAreDone)
{
    constexpr int variables = 6;
    for (int failing = 0; failing < variables; ++failing) {
        std::atomic<int> done = 0;
        const auto work = [&](int j) {
            // The limit holds for the thread that works on this variable.
            const korvel::test::allocation_limit limit(j == failing ? 0 : 1);
            const std::string words(100, static_cast<char>('a' + j));
            ++done;
            return static_cast<int>(words.size());
        };
        EXPECT_THROW(static_cast<void>(forEachVariable<int>(variables, work)), std::bad_alloc);
        EXPECT_EQ(done, variables - 1) << "variable " << failing;
    }
}

TEST(EachVariable, ThrowsOnceWhenAllFail)
{
    EXPECT_THROW(static_cast<void>(forEachVariable<int>(5, [](int j) -> int { throw j; })), int);
}
