#include "frames/linalg/eigenvalue_filter.h"

#include "frames/frame.h"
#include "linalg/eigenvalue_filter.h"

using namespace korvel;

int VB_FilterEigen(double* values, int n, short int dropTail, double threshold, double cumulativePercent,
                   int maxCount, double minValue, int* kept, int* retained, double* percents)
{
    auto eigenvalues = frame::borrow(values, n);
    auto shares = frame::borrow(percents, n);
    auto* result = &shares;
    return FilterEigen(&eigenvalues, n, dropTail, threshold, cumulativePercent, maxCount, minValue, *kept,
                       *retained, result);
}
