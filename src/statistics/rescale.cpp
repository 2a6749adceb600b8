#include "statistics/rescale.h"

#include "ordering/deviations.h"
#include "statistics/kept_cells.h"
#include "statistics/stand_ins.h"
#include "statistics/vector_extremes.h"
#include "statistics/vector_variance.h"

#include <cstddef>
#include <limits>

namespace
{

/** Column `j` of a table as a vector. */
matrix<double> columnOf(matrix<double>& table, int rows, int j)
{
    return matrix<double>(rows, 1, table.data + static_cast<std::ptrdiff_t>(rows) * j, true);
}

/** The score of each element that is not missing, when there is a deviation to divide by; else missing. */
template <class Score>
void scoreElements(matrix<double>& x, int n, double scale, Score score, matrix<double>& out)
{
    const bool isDefined = scale > std::numeric_limits<double>::epsilon();
    korvel::changingVector(x, &out).change(
        0, n, korvel::no_flags{}, [=](double value) { return isDefined ? score(value) : MISSING_DBL; });
}

} // namespace

void V_Rescale(matrix<double>* x, int n, double lo, double hi, short int* iMissing, matrix<double>* out)
{
    const double least = iMissing != nullptr ? V_Min(x, n, iMissing) : V_Min2(x, n);
    const double range = V_Max(x, n, iMissing) - least;
    korvel::withFlags(iMissing, [&](auto flags) {
        korvel::changingVector(*x, out).change(
            0, n, flags, [=](double value) { return (value - least) * (hi - lo) / range + lo; });
    });
}

void V_ZScores(matrix<double>* x, int n, short int bRobust, double& centre, double& scale,
               matrix<double>* out)
{
    korvel::zScores(*x, n, bRobust, &centre, &scale, *out);
}

void korvel::rescaleColumns(matrix<double>& x, int rows, int cols, const matrix<double>& lo,
                            const matrix<double>& hi, short int* iMissing, matrix<double>* out)
{
    for (int j = 0; j < cols; ++j) {
        matrix<double> column = columnOf(x, rows, j);
        if (out != nullptr) {
            matrix<double> result = columnOf(*out, rows, j);
            V_Rescale(&column, rows, lo[j], hi[j], iMissing, &result);
        } else {
            V_Rescale(&column, rows, lo[j], hi[j], iMissing, nullptr);
        }
    }
}

void korvel::zScores(matrix<double>& x, int n, short int bRobust, double* centre, double* scale,
                     matrix<double>& out)
{
    if (bRobust != 0) {
        double median = MISSING_DBL;
        const double deviation = V_MedianAbsDev2(&x, n, median);
        scoreElements(
            x, n, deviation, [=](double value) { return 0.6745 * (value - median) / deviation; }, out);
        return;
    }
    if (*centre == MISSING_DBL) {
        V_MeanStdev2(&x, n, -1, *centre, *scale);
    }
    scoreElements(
        x, n, *scale, [mean = *centre, sd = *scale](double value) { return (value - mean) / sd; }, out);
}
