#include "platform/cpu.h"
#include "platform/lanes.h"
#include "platform/lanes_operations.h"
#include "support/bits.h"
#include "support/random_cells.h"

#include <array>
#include <bit>
#include <climits>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <string>

using korvel::test::lane_inputs;
using korvel::test::lane_operations;
using korvel::test::lane_results;
using korvel::test::laneCells;
using korvel::test::odd_cells;
using korvel::test::random_cells;

namespace
{

lane_inputs makeInputs(std::uint64_t seed)
{
    random_cells random(seed, odd_cells::all);
    lane_inputs in{};
    for (int k = 0; k <= laneCells; ++k) {
        in.a[k] = random.value();
        in.b[k] = random.integer(0, 3) == 0 ? in.a[k] : random.value();
        in.integers[k] = random.integer(0, 3) == 0 ? MISSING_LNG : random.integer(-2147483647, 2147483647);
        in.flags[k] = random.flag();
    }
    in.a[7] = 2.5;
    in.factor = random.value();
    return in;
}

bool identical(double x, double y)
{
    return std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y);
}

/** Each operation against the same on single doubles. */
void compareWithPlain(lane_operations runLanes, int width)
{
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        const lane_inputs in = makeInputs(seed);
        lane_results out{};
        runLanes(in, out);
        ASSERT_EQ(out.width, width);
        for (int k = 0; k < laneCells; ++k) {
            SCOPED_TRACE("seed " + std::to_string(seed) + ", cell " + std::to_string(k));
            const double a = in.a[k + 1];
            const double b = in.b[k + 1];
            const bool clear = in.flags[k + 1] == 0;
            ASSERT_SAME_BITS(out.sum[k], a + b);
            ASSERT_SAME_BITS(out.scaled[k], in.factor * a - 1.0);
            ASSERT_SAME_BITS(out.fromIntegers[k], in.integers[k + 1]);
            ASSERT_TRUE(identical(out.whereClear[k], clear ? a : 0.0));
            ASSERT_TRUE(identical(out.repeated[k], in.a[k / width * width + 1]));
            ASSERT_TRUE(identical(out.kept[k], a != b ? a : 0.0));
            ASSERT_TRUE(identical(out.keptByBoth[k], a < b && clear ? a : 0.0));
            ASSERT_TRUE(identical(out.keptByEither[k], a < b || clear ? a : 0.0));
            const double orNaN = out.keptOrNaN[k];
            ASSERT_TRUE(a < b ? identical(orNaN, a) : std::isnan(orNaN));
            const int square = k / (width * width) * width * width;
            ASSERT_TRUE(
                identical(out.transposed[k], in.a[square + k % width * width + k / width % width + 1]));
            ASSERT_TRUE(identical(out.chosen[k], a <= b || a == 2.5 ? a : b));
            ASSERT_TRUE(identical(out.smaller[k], a < b ? a : b));
            ASSERT_TRUE(identical(out.larger[k], a > b ? a : b));
            ASSERT_TRUE(identical(out.absolute[k], std::fabs(a)));
            ASSERT_TRUE(identical(out.all[k], a));
            ASSERT_TRUE(identical(out.none[k], 0.0));
            bool anyLess = false;
            for (int lane = k / width * width; lane < k / width * width + width; ++lane) {
                anyLess = anyLess || in.a[lane + 1] < in.b[lane + 1];
            }
            ASSERT_EQ(out.anyLess[k], anyLess ? 1.0 : 0.0);
        }
    }
}

} // namespace

TEST(Lanes, ComputeWhatSingleDoublesDo)
{
    compareWithPlain(korvel::test::baseline::runLanes, korvel::lanes::registerWidth);
}

#if defined(__x86_64__)
TEST(Lanes, ComputeTheSameInFourLanes)
{
    if (!korvel::platform::hasAvx2()) {
        GTEST_SKIP() << "the processor has no AVX2";
    }
    compareWithPlain(korvel::test::avx2::runLanes, 4);
}

TEST(Lanes, ComputeTheSameInEightLanes)
{
    if (!korvel::platform::hasAvx512()) {
        GTEST_SKIP() << "the processor has no AVX-512";
    }
    compareWithPlain(korvel::test::avx512::runLanes, 8);
}
#endif

TEST(Lanes, OfTwoRegistersAreTakenByTheirPlace)
{
    using namespace korvel;
    const std::array numbers{1.0, 2.0, 3.0, 4.0};
    const auto a = lanes::load<2>(numbers.data());
    const auto b = lanes::load<2>(numbers.data() + 2);
    EXPECT_EQ(lanes::firstOf(a, b)[0], 1.0);
    EXPECT_EQ(lanes::firstOf(a, b)[1], 3.0);
    EXPECT_EQ(lanes::secondOf(a, b)[0], 2.0);
    EXPECT_EQ(lanes::secondOf(a, b)[1], 4.0);
}

TEST(Lanes, ThatAreChosenBecomeBits)
{
    using namespace korvel;
    const lanes::doubles<2> x{1.5, -2.5};
    EXPECT_EQ(lanes::chosenBits(x == 0.0), 0U);
    EXPECT_EQ(lanes::chosenBits(x == 1.5), 1U);
    EXPECT_EQ(lanes::chosenBits(x == -2.5), 2U);
    EXPECT_EQ(lanes::chosenBits(x != 0.0), 3U);
    EXPECT_EQ(lanes::chosenBits((x > 0.0) | (x < -2.0)), 3U);
    EXPECT_EQ(lanes::chosenBits((x > 0.0) & (x < -2.0)), 0U);
}

TEST(Lanes, OfFourIntegersAreLoadedAtAnyAddressAndOneChosenIsSeen)
{
    using namespace korvel;
    const std::array<int, 7> integers{9, 1, -2, INT_MAX, INT_MIN, 5, 6};
    for (int from = 0; from < 4; ++from) {
        const lanes::integers4 four = lanes::loadIntegers(integers.data() + from);
        for (int lane = 0; lane < 4; ++lane) {
            EXPECT_EQ(four[lane], integers[static_cast<std::size_t>(from + lane)]);
            EXPECT_TRUE(lanes::anyOfFour(four == lanes::fourTimes(four[lane])));
        }
        EXPECT_FALSE(lanes::anyOfFour(four == lanes::fourTimes(1000)));
    }
}

TEST(Lanes, AreStreamedWhole)
{
    using namespace korvel;
    alignas(16) std::array<double, 6> numbers{};
    lanes::stream(numbers.data() + 2, lanes::doubles<2>{1.5, -0.0});
    alignas(16) std::array<int, 12> integers{};
    lanes::stream(integers.data() + 4, lanes::integers4{1, -2, 3, MISSING_LNG});
    lanes::finishStreaming();
    EXPECT_EQ(numbers, (std::array<double, 6>{0, 0, 1.5, -0.0, 0, 0}));
    EXPECT_TRUE(std::signbit(numbers[3]));
    EXPECT_EQ(integers, (std::array<int, 12>{0, 0, 0, 0, 1, -2, 3, MISSING_LNG, 0, 0, 0, 0}));
}
