#include "statistics/plain_columns.h"

#include "containers/missing.h"

#include <cmath>
#include <cstddef>

namespace korvel::bench::plain
{

void covariances(const double* x, int rows, int cols, const double* w, double* out)
{
    for (int i = 0; i < cols; ++i) {
        for (int j = i; j < cols; ++j) {
            const double* const a = x + std::ptrdiff_t{rows} * i;
            const double* const b = x + std::ptrdiff_t{rows} * j;
            double s = 0.0;
            double mi = 0.0;
            double mj = 0.0;
            double c = 0.0;
            int kept = 0;
            for (int r = 0; r < rows; ++r) {
                if (a[r] == MISSING_DBL || b[r] == MISSING_DBL) {
                    continue;
                }
                const double wi = w[r];
                s += wi;
                ++kept;
                if (wi != 0.0) {
                    const double di = a[r] - mi;
                    const double dj = b[r] - mj;
                    c += (wi - wi * wi / s) * di * dj;
                    mi += wi * di / s;
                    mj += wi * dj / s;
                }
            }
            out[i + cols * j] = kept == 0 ? MISSING_DBL : c / (s - 1.0);
        }
    }
}

void deviations(const double* x, int rows, int cols, const double* w, double* means, double* sds)
{
    for (int j = 0; j < cols; ++j) {
        const double* const a = x + std::ptrdiff_t{rows} * j;
        double s = 0.0;
        double mean = 0.0;
        double m2 = 0.0;
        for (int r = 0; r < rows; ++r) {
            const double wi = w[r];
            if (wi == 0.0 || a[r] == MISSING_DBL) {
                continue;
            }
            s += wi;
            const double d = a[r] - mean;
            m2 += (wi - wi * wi / s) * (d * d);
            mean += wi * d / s;
        }
        means[j] = mean;
        sds[j] = std::sqrt(m2 / (s - 1.0));
    }
}

} // namespace korvel::bench::plain
