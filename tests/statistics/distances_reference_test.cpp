// Beside R 4.2.2, printed with "%.17g": a <- as.matrix(airquality[1:12, 1:4]).

#include "statistics/distances.h"
#include "support/air_quality.h"

using namespace korvel::test;

TEST(DistancesReference, BetweenColumnsAndBetweenRows) // dist(t(a[, 3:4])), dist(a[1:4, ])
{
    constexpr int rows = airQualityRows;
    auto x = airQuality();
    matrix<double> complete(rows, 2, x.data + 2 * rows, true);
    matrix<double> ones(rows, 1, 1.0);
    matrix<double> ofColumns(2, 2, 9.0);
    M_EuclidDist2(&complete, rows, 2, &ones, &ofColumns, 0, 0);
    expectNear(ofColumns, {0, 192.04775447789021, 192.04775447789021, 0}, 1000.0);
    matrix<double> ofRows(4, 4, 9.0);
    M_EuclidDist2(&x, rows, 4, &ones, &ofRows, -1, 4);
    expectNear(ofRows,
               {0, 72.348876978153569, 50.970972131204249, 125.29888267658255, 72.348876978153569, 0,
                39.524169820503502, 196.11539970129832, 50.970972131204249, 39.524169820503502, 0,
                164.55154207724703, 125.29888267658255, 196.11539970129832, 164.55154207724703, 0},
               1000.0);
}
