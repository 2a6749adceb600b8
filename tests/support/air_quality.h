/**
 * @file
 * The first twelve rows of the data set airquality of R, in its columns Ozone, Solar.R, Wind and Temp.
 */
#ifndef KORVEL_TESTS_SUPPORT_AIR_QUALITY_H
#define KORVEL_TESTS_SUPPORT_AIR_QUALITY_H

#include "containers/matrix.h"

#include <array>
#include <gtest/gtest.h>
#include <vector>

namespace korvel::test
{

inline constexpr int airQualityRows = 12;

inline matrix<double> airQuality()
{
    constexpr double gone = MISSING_DBL;
    std::array cells{41.0,  36.0,  12.0,  18.0,  gone, 28.0, 23.0,  19.0, 8.0,  gone,  7.0,  16.0,
                     190.0, 118.0, 149.0, 313.0, gone, gone, 299.0, 99.0, 19.0, 194.0, gone, 256.0,
                     7.4,   8.0,   12.6,  11.5,  14.3, 14.9, 8.6,   13.8, 20.1, 8.6,   6.9,  9.7,
                     67.0,  72.0,  74.0,  62.0,  56.0, 66.0, 65.0,  59.0, 61.0, 69.0,  74.0, 69.0};
    return matrix<double>(airQualityRows, 4, cells.data(), false);
}

/** Compares each figure within 1e-14 of `scale`, the size of the largest figure that it is computed from. */
inline void expectNear(const matrix<double>& found, const std::vector<double>& expected, double scale)
{
    ASSERT_EQ(found.nbElem, expected.size());
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_NEAR(found.data[k], expected[k], 1e-14 * scale) << k;
    }
}

} // namespace korvel::test

#endif
