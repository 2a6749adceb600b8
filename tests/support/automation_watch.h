/**
 * @file
 * What the automation library made and freed during a test. On Windows nothing is counted, and every
 * expectation here holds.
 */
#ifndef KORVEL_TESTS_SUPPORT_AUTOMATION_WATCH_H
#define KORVEL_TESTS_SUPPORT_AUTOMATION_WATCH_H

#include "platform/automation.h"

#if !defined(_WIN32)
#include "platform/automation/counters.h"
#endif

#include <cstdint>
#include <gtest/gtest.h>

namespace korvel::test
{

#if defined(_WIN32)

class automation_watch
{
public:
    ::testing::AssertionResult texts(std::int64_t, std::int64_t) const { return uncounted(); }
    ::testing::AssertionResult blocks(std::int64_t, std::int64_t) const { return uncounted(); }
    ::testing::AssertionResult arrays(std::int64_t, std::int64_t) const { return uncounted(); }
    ::testing::AssertionResult nothingAlive() const { return uncounted(); }

private:
    static ::testing::AssertionResult uncounted() { return ::testing::AssertionSuccess(); }
};

#else

class automation_watch
{
public:
    /** Whether exactly so many texts were made and freed since this object was made. */
    ::testing::AssertionResult texts(std::int64_t made, std::int64_t freed) const
    {
        const auto now = counters();
        return compare("texts", now.textsMade - start_.textsMade, made, now.textsFreed - start_.textsFreed,
                       freed);
    }

    /** The same for blocks of the task allocator. */
    ::testing::AssertionResult blocks(std::int64_t made, std::int64_t freed) const
    {
        const auto now = counters();
        return compare("blocks", now.blocksMade - start_.blocksMade, made,
                       now.blocksFreed - start_.blocksFreed, freed);
    }

    /** The same for host arrays. */
    ::testing::AssertionResult arrays(std::int64_t made, std::int64_t destroyed) const
    {
        const auto now = counters();
        return compare("arrays", now.arraysMade - start_.arraysMade, made,
                       now.arraysDestroyed - start_.arraysDestroyed, destroyed);
    }

    /** Whether all that was made since then was also freed, once. */
    ::testing::AssertionResult nothingAlive() const
    {
        const auto now = counters();
        const auto texts = now.textsMade - start_.textsMade - (now.textsFreed - start_.textsFreed);
        const auto blocks = now.blocksMade - start_.blocksMade - (now.blocksFreed - start_.blocksFreed);
        const auto arrays =
            now.arraysMade - start_.arraysMade - (now.arraysDestroyed - start_.arraysDestroyed);
        if (texts == 0 && blocks == 0 && arrays == 0) {
            return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure()
               << "alive: " << texts << " texts, " << blocks << " blocks, " << arrays << " arrays";
    }

private:
    static KorvelAutomationCounters counters()
    {
        KorvelAutomationCounters now{};
        KorvelReadAutomationCounters(&now);
        return now;
    }

    static ::testing::AssertionResult compare(const char* things, std::int64_t made,
                                              std::int64_t expectedMade, std::int64_t freed,
                                              std::int64_t expectedFreed)
    {
        if (made == expectedMade && freed == expectedFreed) {
            return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure() << made << ' ' << things << " made and " << freed
                                             << " freed, not " << expectedMade << " and " << expectedFreed;
    }

    KorvelAutomationCounters start_ = counters();
};

#endif

} // namespace korvel::test

#endif
