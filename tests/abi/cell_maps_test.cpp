#include "frames/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_tables.h"
#include "support/special_values.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = -1.79769313486231e308;

using doubles = std::vector<double>;
using ints = std::vector<int>;
using flags = std::vector<short int>;

/** At most one unit in the last place apart, as the systems' logarithms may be; otherwise as `sameBits`. */
::testing::AssertionResult nearlySame(double actual, double expected)
{
    const auto apart = std::bit_cast<std::int64_t>(actual) - std::bit_cast<std::int64_t>(expected);
    if (std::isfinite(actual) && std::isfinite(expected) && std::abs(apart) <= 1) {
        return ::testing::AssertionSuccess();
    }
    return sameBits(actual, expected);
}

using flat_map = int (*)(double*, int, int, double*);

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
        caller_block<double> x(mapped);
        caller_block<double> y(doubles(12, 5.0));
        EXPECT_EQ(given.map(x.argument(), 4, 3, y.argument()), 0);
        const doubles found = y.cells();
        for (std::size_t k = 0; k < 12; ++k) {
            EXPECT_TRUE(nearlySame(found[k], given.expected[k])) << given.name << " of " << mapped[k];
        }
        EXPECT_TRUE(sameBits(x.cells()[0], 2.0)) << "the source stays";

        EXPECT_EQ(given.map(x.argument(), 12, 0, x.argument()), 0);
        const doubles inPlace = x.cells();
        for (std::size_t k = 0; k < 12; ++k) {
            EXPECT_TRUE(sameBits(inPlace[k], found[k])) << given.name << ", one array, no columns for one";
        }

        caller_block<double> none(doubles{7, 7});
        EXPECT_EQ(given.map(x.argument(), 0, 2, none.argument()), 0);
        EXPECT_EQ(none.cells(), (doubles{7, 7}));
    }
}

TEST(FlatCellMaps, SquareRootsInPlace)
{
    for (const int cols : {1, 0}) {
        caller_block<double> x(mapped);
        EXPECT_EQ(Cpp_M_SquareRootAij2(x.argument(), 12, cols), 0);
        const doubles found = x.cells();
        for (std::size_t k = 0; k < 12; ++k) {
            EXPECT_TRUE(sameBits(found[k], maps[2].expected[k])) << "of " << mapped[k];
        }
    }
}

TEST(FlatCellMaps, SubtractTheFirstColumn)
{
    caller_block<double> x(doubles{1, missing, 3, 5, 5, missing, -1, 0.5, 3});
    EXPECT_EQ(Cpp_M_SubstractFirstCol2(x.argument(), 3, 3), 0);
    EXPECT_EQ(x.cells(), (doubles{0, missing, 0, 4, missing, missing, -2, missing, 0}));
    EXPECT_EQ(Cpp_M_SubstractFirstCol2(x.argument(), 0, 3), 0);
    EXPECT_EQ(Cpp_M_SubstractFirstCol2(x.argument(), 3, 0), 0);
    EXPECT_EQ(x.cells(), (doubles{0, missing, 0, 4, missing, missing, -2, missing, 0}));
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
    EXPECT_EQ(x.cells(), caller_columns::columns(1, {9, 9}));
}

TEST(FlatRowMaps, FindTheLargestCellOfARow)
{
    caller_block<double> x(
        doubles{1, 5, missing, notANumber, 2, 3, 5, missing, 7, notANumber, 3, 4, missing, 9, 1});
    caller_block<int> positions(ints(5));
    EXPECT_EQ(Cpp_M_MaxPosByRow(x.argument(), 5, 3, positions.argument()), 0);
    EXPECT_EQ(positions.cells(), (ints{2, 1, 1, 1, 1}));
    EXPECT_EQ(Cpp_M_MaxPosByRow(x.argument(), 3, 5, positions.argument()), 0);
    EXPECT_EQ(positions.cells(), (ints{3, 5, 3, 1, 1}));
    EXPECT_EQ(Cpp_M_MaxPosByRow(x.argument(), 5, 0, positions.argument()), 0);
    EXPECT_EQ(positions.cells(), (ints{1, 1, 1, 1, 1}));
    caller_block<int> none(ints{8});
    EXPECT_EQ(Cpp_M_MaxPosByRow(x.argument(), 0, 3, none.argument()), 0);
    EXPECT_EQ(none.cells(), ints{8});
}

TEST(FlatRowMaps, AddWeightedColumnsUp)
{
    caller_block<double> x(doubles{1, 2, missing, 10, 20, 30, 0x1p60, 0, 5});
    caller_block<double> factors(doubles{3, 0.5, 1});
    caller_block<double> out(doubles(3));
    EXPECT_EQ(VB_ComputeNewVar(x.argument(), 3, 3, factors.argument(), out.argument()), 0);
    EXPECT_EQ(out.cells(), (doubles{0x1p60, 16, missing}));

    caller_block<double> lacking(doubles{3, missing});
    EXPECT_EQ(VB_ComputeNewVar(x.argument(), 2, 2, lacking.argument(), out.argument()), 0);
    EXPECT_EQ(out.cells(), (doubles{missing, missing, missing}));
    EXPECT_EQ(VB_ComputeNewVar(x.argument(), 2, 0, factors.argument(), out.argument()), 0);
    EXPECT_EQ(out.cells(), (doubles{0, 0, missing}));
}

TEST(FlatRowMaps, PickTheRowsThatAreNotNegligible)
{
    caller_block<double> x(doubles{3, 0, 1, missing, 2, missing, 4, 0, 2, 5, 1, missing});
    caller_block<short int> kept(flags(6, 7));
    EXPECT_EQ(Cpp_FilterOnSumOfSquares(x.argument(), 6, 2, 5.0, kept.argument()), 2);
    EXPECT_EQ(kept.cells(), (flags{-1, 0, 0, -1, 0, 0}));
    EXPECT_EQ(Cpp_FilterOnSumOfSquares(x.argument(), 6, 2, 0.0, kept.argument()), 4);
    EXPECT_EQ(kept.cells(), (flags{-1, 0, -1, -1, -1, 0}));
    EXPECT_EQ(Cpp_FilterOnSumOfSquares(x.argument(), 0, 2, 0.0, kept.argument()), 0);
    EXPECT_EQ(kept.cells(), (flags{-1, 0, -1, -1, -1, 0}));
}
