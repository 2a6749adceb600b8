#include "frames/statistics/distances.h"

#include "frames/frame.h"
#include "statistics/distances.h"

using namespace korvel;

int VB_M_EuclidDist2(const double* x, int rows, int cols, const double* w, double* out, short int bRows,
                     int nRows)
{
    const bool byRow = bRows == -1;
    const int points = byRow ? nRows : cols;
    auto distances = frame::borrow(out, points, points);
    auto table = frame::besides(distances, x, rows, cols);
    auto weights = frame::borrow(w, byRow ? cols : rows);
    M_EuclidDist2(&table, rows, cols, &weights, &distances, bRows, nRows);
    return 0;
}

int Cpp_M_EuclidDistToVector(const double* x, int rows, int cols, const double* v, short int bRows,
                             double* out)
{
    const bool byRow = bRows == -1;
    auto table = frame::borrow(x, rows, cols);
    auto goal = frame::borrow(v, byRow ? cols : rows);
    auto distances = frame::borrow(out, byRow ? rows : cols);
    M_EuclidDistToVector(&table, rows, cols, &goal, bRows, &distances);
    return 0;
}

int Cpp_M_GetMaxDistToOrigin(const double* x, int rows, int cols, double* d, int* row)
{
    auto table = frame::borrow(x, rows, cols);
    M_GetMaxDistToOrigin(&table, rows, cols, *d, *row);
    return 0;
}
