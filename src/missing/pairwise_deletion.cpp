#include "missing/pairwise_deletion.h"

#include "containers/cells.h"

int V_PairwiseDeletion(matrix<double> const& x, matrix<double> const& y, matrix<double> const& z, int n,
                       matrix<double>& xOut, matrix<double>& yOut, matrix<double>& zOut)
{
    int count = 0;
    for (int i = 0; i < n; ++i) {
        const double first = x[i];
        const double second = y[i];
        const double third = z[i];
        if (first > MISSING_DBL && second > MISSING_DBL) {
            ++count;
            korvel::storeChecked(xOut, count, first);
            korvel::storeChecked(yOut, count, second);
            korvel::storeChecked(zOut, count, third);
        }
    }
    return count;
}
