#include "linalg/eigenvalue_filter.h"

#include "statistics/vector_sums.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{

constexpr double slack = 1e-12;

/** How many values are left when small ones are dropped from the end. */
int lengthWithoutTail(matrix<double>& values, int n, bool drop, double threshold)
{
    int k = n;
    // A value is read anew at each look, so that a compiler may not take the endless loop for one that ends.
    const auto last = [&values, &k ]() -> volatile double&
    {
        return values[k - 1];
    };
    while (k > 1 && last() < threshold) {
        if (drop) {
            --k;
        } else {
            last() = 0.0;
        }
    }
    return k;
}

/** The number of leading shares that sum up to at least `enough`; all of them when their sum does not. */
int leadingShares(const matrix<double>& percents, int count, double enough)
{
    double sum = 0.0;
    for (int i = 0; i < count; ++i) {
        sum += percents[i];
        if (sum >= enough) {
            return i + 1;
        }
    }
    return count;
}

} // namespace

int FilterEigen(matrix<double>* values, int n, short int dropTail, double threshold, double cumulativePercent,
                int maxCount, double minValue, int& kept, int& retained, matrix<double>*& percents)
{
    const matrix<double>& value = std::as_const(*values);
    const int count = lengthWithoutTail(*values, n, dropTail != 0, threshold);
    const double onePercent = V_Sum2(value, count) / 100.0;
    kept = std::isnan(onePercent) ? 0 : count;
    percents->Redim(n, 1, 0.0);
    matrix<double>& share = *percents;
    for (int i = 0; onePercent != 0.0 && i < kept; ++i) {
        share[i] = value[i] / onePercent;
    }
    const int byShare = cumulativePercent > 0.0 ? leadingShares(share, count, cumulativePercent) : count;
    const int byCount = maxCount > 0 ? maxCount : count;
    int bySize = count;
    for (int i = 0; minValue > 0.0 && i < kept; ++i) {
        bySize -= value[i] < minValue + slack ? 1 : 0;
    }
    retained = std::min({byShare, byCount, bySize, kept});
    return 0;
}
