/**
 * @file
 * Every operation of `platform/lanes.h`, run through whole arrays by sources that are compiled for one
 * instruction set each.
 */
#ifndef KORVEL_TESTS_PLATFORM_LANES_OPERATIONS_H
#define KORVEL_TESTS_PLATFORM_LANES_OPERATIONS_H

namespace korvel::test
{

/** A multiple of the width of every register. */
inline constexpr int laneCells = 64;

struct lane_inputs {
    double a[laneCells + 1];
    double b[laneCells + 1];
    int integers[laneCells + 1];
    short int flags[laneCells + 1];
    double factor;
};

/** What each operation makes of cell k; masks keep cell k of `a`. */
struct lane_results {
    double sum[laneCells];
    double scaled[laneCells];
    double fromIntegers[laneCells];
    double whereClear[laneCells];
    double repeated[laneCells];
    double kept[laneCells];
    double keptByBoth[laneCells];
    double keptByEither[laneCells];
    double keptOrNaN[laneCells];
    double transposed[laneCells];
    double chosen[laneCells];
    double smaller[laneCells];
    double larger[laneCells];
    double absolute[laneCells];
    double all[laneCells];
    double none[laneCells];
    double anyLess[laneCells]; ///< In each register, whether a lane of `a` is less than that of `b`.
    int width;
};

using lane_operations = void (*)(const lane_inputs&, lane_results&);

namespace baseline
{
void runLanes(const lane_inputs& in, lane_results& out);
}
#if defined(__x86_64__)
namespace avx2
{
void runLanes(const lane_inputs& in, lane_results& out);
}
namespace avx512
{
void runLanes(const lane_inputs& in, lane_results& out);
}
#endif

} // namespace korvel::test

#endif
