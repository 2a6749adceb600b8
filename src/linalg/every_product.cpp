#include "linalg/every_product.h"

namespace
{

/** With `m` known to the compiler, a short y stays in registers. */
template <std::ptrdiff_t m>
void timesShort(const double* __restrict x, std::ptrdiff_t n, const double* __restrict y,
                double* __restrict out)
{
    double factors[m];
    for (std::ptrdiff_t j = 0; j < m; ++j) {
        factors[j] = y[j];
    }
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        for (std::ptrdiff_t j = 0; j < m; ++j) {
            out[m * i + j] = x[i] * factors[j];
        }
    }
}

void timesLong(const double* __restrict x, std::ptrdiff_t n, const double* __restrict y, std::ptrdiff_t m,
               double* __restrict out)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        for (std::ptrdiff_t j = 0; j < m; ++j) {
            out[m * i + j] = x[i] * y[j];
        }
    }
}

} // namespace

void korvel::storeEveryProduct(const double* x, std::ptrdiff_t n, const double* y, std::ptrdiff_t m,
                               double* out)
{
    switch (m) {
    case 1:
        return timesShort<1>(x, n, y, out);
    case 2:
        return timesShort<2>(x, n, y, out);
    case 3:
        return timesShort<3>(x, n, y, out);
    case 4:
        return timesShort<4>(x, n, y, out);
    default:
        return timesLong(x, n, y, m, out);
    }
}
