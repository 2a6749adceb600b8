#include "ordering/deviations.h"

#include "containers/constant.h"
#include "ordering/quantiles.h"

#include <cmath>

namespace
{

/** The absolute deviation of each element for which `keep(i)` holds; missing for the others. */
template <class Keep>
matrix<double> deviations(const matrix<double>& x, int n, double centre, Keep keep)
{
    matrix<double> result(n, 1, MISSING_DBL);
    for (int i = 0; i < n; ++i) {
        if (keep(i)) {
            result[i] = std::fabs(x[i] - centre);
        }
    }
    return result;
}

} // namespace

double V_MeanAbsDev(matrix<double>* x, int n, double centre, short int* iMissing, matrix<double>* w)
{
    double sum = 0.0;
    double sumW = 0.0;
    for (int i = 0; i < n; ++i) {
        if (iMissing[i] == 0 && (*x)[i] != MISSING_DBL) {
            sum += (*w)[i] * std::fabs((*x)[i] - centre);
            sumW += (*w)[i];
        }
    }
    return n < 1 || sumW == 0.0 ? MISSING_DBL : sum / sumW;
}

double V_MedianAbsDev(matrix<double>* x, int n, double centre, short int* iMissing, matrix<double>* w)
{
    if (n < 1) {
        return MISSING_DBL;
    }
    auto distances =
        deviations(*x, n, centre, [&](int i) { return iMissing[i] == 0 && (*x)[i] != MISSING_DBL; });
    return korvel::isConstantWherePresent(*w, n) ? V_QuantileM(&distances, n, iMissing, 0.5)
                                                 : V_QuantileMW(&distances, n, iMissing, w, 0.5);
}

double V_MedianAbsDev2(matrix<double>* x, int n, double& centre)
{
    if (centre == MISSING_DBL) {
        centre = V_Quantile(x, n, 0.5);
    }
    if (n < 1) {
        return MISSING_DBL;
    }
    auto distances = deviations(*x, n, centre, [&](int i) { return (*x)[i] != MISSING_DBL; });
    return V_Quantile(&distances, n, 0.5);
}

void V_Winsorize2(matrix<double>* x, int n, double qLow, double qHigh)
{
    const double low = V_Quantile(x, n, qLow);
    const double high = V_Quantile(x, n, qHigh);
    for (int i = 0; i < n; ++i) {
        double& value = (*x)[i];
        if (value > MISSING_DBL) {
            if (value < low) {
                value = low;
            } else if (value > high) {
                value = high;
            }
        }
    }
}
