#include "ordering/distinct.h"

#include "ordering/sorted_keys.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace
{

constexpr double epsilon = std::numeric_limits<double>::epsilon();

template <class T>
korvel::sorted_keys<T> ascending(const matrix<T>& x, int n)
{
    return {n, false, [&](std::int32_t k) -> const T& { return x[k]; }};
}

template <class T, class Differ>
int countDistinct(const matrix<T>& x, int n, Differ differ)
{
    const auto sorted = ascending(x, n);
    int count = 1;
    for (std::size_t k = 1; k < sorted.size(); ++k) {
        count += differ(sorted.key(k - 1), sorted.key(k)) ? 1 : 0;
    }
    return count;
}

constexpr auto differExactly = [](const auto& a, const auto& b) { return a != b; };

} // namespace

int V_NbDistinct(matrix<double>* x, int n)
{
    return countDistinct(*x, n, [](double a, double b) { return b - a > epsilon; });
}

int V_NbDistinct(matrix<int>* x, int n)
{
    return countDistinct(*x, n, differExactly);
}

int V_NbDistinct(matrix<text>* x, int n)
{
    return countDistinct(*x, n, differExactly);
}

void V_ExtractDistinct(matrix<double>* x, int n, matrix<double>* out, int* nOut)
{
    *nOut = 0;
    if (n < 1) {
        return;
    }
    const auto sorted = ascending(*x, n);
    const double tolerance = std::min(epsilon, sorted.key(sorted.size() - 1) - sorted.key(0));
    for (std::size_t k = 0; k < sorted.size(); ++k) {
        if (k == 0 || sorted.key(k) - sorted.key(k - 1) > tolerance) {
            (*out)[*nOut] = sorted.key(k);
            ++*nOut;
        }
    }
}
