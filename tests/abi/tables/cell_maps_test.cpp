#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_tables.h"
#include "support/guarded.h"
#include "support/special_values.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = -1.79769313486231e308;

/** At most one unit in the last place apart, as the systems' logarithms may be; otherwise as `sameBits`. */
::testing::AssertionResult nearlySame(double actual, double expected)
{
    const auto apart = std::bit_cast<std::int64_t>(actual) - std::bit_cast<std::int64_t>(expected);
    if (std::isfinite(actual) && std::isfinite(expected) && std::abs(apart) <= 1) {
        return ::testing::AssertionSuccess();
    }
    return sameBits(actual, expected);
}

using flat_map = int (*)(const double*, int, int, double*);

struct map_case {
    const char* name;
    flat_map map;
    doubles expected;
};

const doubles mapped{2.0,     1.0,     100.0,      0.25,          0.0,      -0.0,
                     -1e-300, missing, notANumber, belowSentinel, infinite, 1e-5};

// R 4.2.2: log(), log10() and sqrt() of these numbers, formatted with %.17g
const std::vector<map_case> maps{
    {"log",
     VB_M_LogMatrix,
     {0.69314718055994529, 0.0, 4.6051701859880918, -1.3862943611198906, missing, missing, missing, missing,
      notANumber, missing, infinite, -11.512925464970229}},
    {"log10",
     VB_M_Log10Matrix,
     {0.3010299956639812, 0.0, 2.0, -0.6020599913279624, missing, missing, missing, missing, notANumber,
      missing, infinite, -5.0}},
    {"square root",
     Cpp_M_SquareRootAij,
     {1.4142135623730951, 1.0, 10.0, 0.5, 0.0, -0.0, missing, missing, notANumber, missing, infinite,
      0.0031622776601683794}},
};

} // namespace

TEST(FlatCellMaps, MapEveryCell)
{
    for (const map_case& given : maps) {
        guarded<double> x(mapped);
        guarded<double> y(doubles(12, 5.0));
        EXPECT_EQ(given.map(x.data(), 4, 3, y.data()), 0);
        const doubles found = valuesOf(y);
        for (std::size_t k = 0; k < 12; ++k) {
            EXPECT_TRUE(nearlySame(found[k], given.expected[k])) << given.name << " of " << mapped[k];
        }
        EXPECT_SAME_BITS(valuesOf(x)[0], 2.0) << "the source stays";

        EXPECT_EQ(given.map(x.data(), 12, 0, x.data()), 0);
        const doubles inPlace = valuesOf(x);
        for (std::size_t k = 0; k < 12; ++k) {
            EXPECT_SAME_BITS(inPlace[k], found[k]) << given.name << ", one array, no columns for one";
        }

        guarded<double> shifted(mapped);
        EXPECT_EQ(given.map(shifted.data(), 11, 1, shifted.data() + 1), 0);
        const doubles behind = valuesOf(shifted);
        for (std::size_t k = 0; k < 11; ++k) {
            EXPECT_SAME_BITS(behind[k + 1], found[k]) << given.name << ", read before it is written over";
        }

        guarded<double> none(doubles{7, 7});
        EXPECT_EQ(given.map(x.data(), 0, 2, none.data()), 0);
        EXPECT_EQ(valuesOf(none), (doubles{7, 7}));
    }
}

TEST(FlatCellMaps, SquareRootsInPlace)
{
    for (const int cols : {1, 0}) {
        guarded<double> x(mapped);
        EXPECT_EQ(Cpp_M_SquareRootAij2(x.data(), 12, cols), 0);
        const doubles found = valuesOf(x);
        for (std::size_t k = 0; k < 12; ++k) {
            EXPECT_SAME_BITS(found[k], maps[2].expected[k]) << "of " << mapped[k];
        }
    }
}

TEST(FlatCellMaps, SubtractTheFirstColumn)
{
    guarded<double> x(doubles{1, missing, 3, 5, 5, missing, -1, 0.5, 3});
    EXPECT_EQ(Cpp_M_SubstractFirstCol2(x.data(), 3, 3), 0);
    EXPECT_EQ(valuesOf(x), (doubles{0, missing, 0, 4, missing, missing, -2, missing, 0}));
    guarded<double> large(doubles{-1e300, missing});
    EXPECT_EQ(Cpp_M_SubstractFirstCol2(large.data(), 1, 2), 0);
    EXPECT_EQ(valuesOf(large), (doubles{0, missing})) << "nothing is subtracted from what is missing";
    EXPECT_EQ(Cpp_M_SubstractFirstCol2(x.data(), 0, 3), 0);
    EXPECT_EQ(Cpp_M_SubstractFirstCol2(x.data(), 3, 0), 0);
    EXPECT_EQ(valuesOf(x), (doubles{0, missing, 0, 4, missing, missing, -2, missing, 0}));
}

TEST(FlatCellMaps, TellWhetherAllCellsLieInAnInterval)
{
    struct given {
        doubles first;
        doubles second;
        short int bOpen;
        short int bSkipMissing;
        short int expected;
    };
    for (const given& table : std::vector<given>{
             {{1, 2}, {3, 4}, 0, 0, -1},
             {{1, 2}, {3, 4}, -1, 0, 0},
             {{1.5, 2}, {3, 4}, -1, 0, 0},
             {{1, 2}, {3, 3.5}, -1, 0, 0},
             {{1.5, 2}, {3, 3.5}, -1, 0, -1},
             {{1, 2}, {3, 4}, 1, 0, -1},
             {{1, 2}, {3, std::nextafter(4.0, 5.0)}, 0, 0, 0},
             {{std::nextafter(1.0, 0.0), 2}, {3, 4}, 0, 0, 0},
             {{1, missing}, {3, 4}, 0, 0, 0},
             {{1, missing}, {3, 4}, 0, 1, 0},
             {{1, missing}, {3, 4}, 0, -1, -1},
             {{1, belowSentinel}, {3, 4}, 0, -1, 0},
             {{1, 2}, {notANumber, 4}, 0, -1, 0},
         }) {
        caller_columns x({table.first, table.second});
        EXPECT_EQ(VB_M_IsInIntervalSPV(x.argument(), 2, 2, 1, 4, table.bOpen, table.bSkipMissing),
                  table.expected)
            << ::testing::PrintToString(table.first) << ::testing::PrintToString(table.second);
    }
    caller_columns x(caller_columns::columns(1, {9, 9}));
    EXPECT_EQ(VB_M_IsInIntervalSPV(x.argument(), 0, 1, 1, 4, 0, 0), -1);
    EXPECT_EQ(VB_M_IsInIntervalSPV(x.argument(), 2, 0, 1, 4, 0, 0), -1);
    EXPECT_EQ(x.values(), caller_columns::columns(1, {9, 9}));
}
