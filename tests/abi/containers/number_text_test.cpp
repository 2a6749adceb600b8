#include "containers/element_types.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

using namespace korvel::test;

#if !defined(_WIN32)

TEST(FlatContainers, ALineGoesToTheDebugger)
{
    const auto lastLine = [] {
        std::array<char, 2000> line{};
        KorvelLastDebugLine(line.data(), line.size());
        return std::string(line.data());
    };
    KorvelAutomationCounters before{};
    KorvelReadAutomationCounters(&before);
    dprint(1.5, "x =");
    EXPECT_EQ(lastLine(), "x =                   1.5000000000000000\n");
    dprint(-1.0 / 3.0, "");
    EXPECT_EQ(lastLine(), "                  -0.3333333333333333\n");
    dprint(1e20, "big");
    EXPECT_EQ(lastLine(), "big 100000000000000000000.0000000000000000\n");

    // The block has room for 999 bytes and the closing NUL.
    dprint(1.0, std::string(2000, 'y').c_str());
    EXPECT_EQ(lastLine(), std::string(999, 'y'));
    dprint(1.0, std::string(980, 'y').c_str());
    EXPECT_EQ(lastLine(), std::string(980, 'y').append(19, ' '));

    KorvelAutomationCounters after{};
    KorvelReadAutomationCounters(&after);
    EXPECT_EQ(after.debugLines - before.debugLines, 5);
}

#else

TEST(FlatContainers, ALineGoesToTheDebugger)
{
    dprint(1.5, "x =");
    dprint(MISSING_DBL, std::string(2000, 'y').c_str());
}

#endif
