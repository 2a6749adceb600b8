#include "ordering/quantiles.h"

#include "containers/constant.h"
#include "containers/conversion.h"
#include "ordering/selection.h"
#include "ordering/sort_vector.h"
#include "ordering/sorted_keys.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace
{

/** Elements and their weights, without gaps. */
struct kept_elements {
    std::vector<double> x;
    std::vector<double> w;
};

/** The elements for which `keep(i)` holds. */
template <class Keep>
kept_elements keepElements(const matrix<double>& x, const matrix<double>& w, int n, Keep keep)
{
    kept_elements kept;
    for (int i = 0; i < n; ++i) {
        if (keep(i)) {
            kept.x.push_back(x[i]);
            kept.w.push_back(w[i]);
        }
    }
    return kept;
}

double plainQuantile(std::vector<double> values, double q)
{
    korvel::ranked_values ranked(std::move(values));
    return korvel::quantileOf(ranked, q);
}

/** Finds a weighted quantile by walking the cumulative weights in ascending order of the values. */
double walkWeights(const kept_elements& elements, double q)
{
    const korvel::sorted_numbers<double> sorted(
        static_cast<int>(elements.x.size()), false,
        [&](std::int32_t k) { return elements.x[static_cast<std::size_t>(k)]; });
    const auto n = static_cast<std::int64_t>(sorted.size());
    const auto weightAt = [&](std::int64_t k) {
        return elements.w[static_cast<std::size_t>(sorted.position(static_cast<std::size_t>(k)))];
    };
    // A position before the first value reads the spare slot of a fresh vector.
    const auto valueAt = [&](std::int64_t k) {
        return k < 0 ? -1.0 : sorted.key(static_cast<std::size_t>(k));
    };
    if (q == 0.0) {
        return valueAt(0);
    }
    if (q == 1.0) {
        return valueAt(n - 1);
    }
    double total = 0.0;
    for (std::int64_t k = 0; k < n; ++k) {
        total += weightAt(k) != MISSING_DBL ? weightAt(k) : 0.0;
    }
    const double target = total * q;
    double cumulated = 0.0;
    for (std::int64_t k = 0; k < n; ++k) {
        if (cumulated == target) {
            return (valueAt(k - 1) + valueAt(k)) / 2.0;
        }
        if (cumulated > target) {
            return valueAt(k - 1);
        }
        cumulated += weightAt(k);
    }
    return valueAt(n - 1);
}

double weightedQuantile(kept_elements elements, double q)
{
    const auto counts = [&](std::size_t i) { return elements.w[i] > 0.0 && elements.x[i] != MISSING_DBL; };
    std::size_t i = 0;
    while (i < elements.x.size() && !counts(i)) {
        ++i;
    }
    if (i == elements.x.size()) {
        return MISSING_DBL;
    }
    if (korvel::isConstantWherePresent(elements.w.data(), static_cast<int>(elements.w.size()))) {
        return plainQuantile(std::move(elements.x), q);
    }
    return walkWeights(elements, q);
}

constexpr std::array probabilities{0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75, 0.8, 0.9, 0.95};

/** One of the 13 quantiles of `x`, which is sorted. */
double sortedQuantile(const matrix<double>& x, int n, double p)
{
    const double position = (n - 1) * p + (p <= 0.5 ? 0.5 : 1.0);
    if (korvel::isWholePosition(position)) {
        // A rounding error may have left the position just below its integer.
        return x[korvel::truncateToInt(std::round(position)) - 1];
    }
    const double below = std::floor(position);
    if (below == 0.0) {
        return x[0];
    }
    const double lower = x[korvel::truncateToInt(below) - 1];
    const double above = std::floor(position + 1.0 - std::numeric_limits<double>::epsilon());
    const double upper = x[korvel::truncateToInt(above) - 1];
    return lower == upper ? lower : lower + (position - below) * (upper - lower);
}

} // namespace

double V_Quantile(matrix<double>* x, int n, double q)
{
    korvel::ranked_values ranked(*x, n);
    return korvel::quantileOf(ranked, q);
}

double V_QuantileW(matrix<double>* x, int n, matrix<double>* w, double q)
{
    return weightedQuantile(keepElements(*x, *w, n, [](int) { return true; }), q);
}

double V_QuantileW2(matrix<double>* x, int n, matrix<double>* w, double q)
{
    return weightedQuantile(
        keepElements(*x, *w, n, [&](int i) { return (*w)[i] > 0.0 && (*x)[i] != MISSING_DBL; }), q);
}

double V_QuantileM(matrix<double>* x, int n, short int* iMissing, double q)
{
    std::vector<double> kept;
    for (int i = 0; i < n; ++i) {
        if (iMissing[i] == 0 && (*x)[i] != MISSING_DBL) {
            kept.push_back((*x)[i]);
        }
    }
    return plainQuantile(std::move(kept), q);
}

double V_QuantileMW(matrix<double>* x, int n, short int* iMissing, matrix<double>* w, double q)
{
    return weightedQuantile(
        keepElements(*x, *w, n, [&](int i) { return iMissing[i] == 0 && (*x)[i] != MISSING_DBL; }), q);
}

double M_QuantileMW(matrix<double>* x, int rows, int col, short int* iMissing, matrix<double>* w, double q)
{
    matrix<double> column(rows, 1, 0.0);
    for (int i = 0; i < rows; ++i) {
        column[i] = x->vbget(i + 1, col);
    }
    return V_QuantileMW(&column, rows, iMissing, w, q);
}

void V_Quantiles13(matrix<double>* x, int n, matrix<double>* out)
{
    SortQVector(x, n, 1, n, false);
    for (std::size_t k = 0; k < probabilities.size(); ++k) {
        (*out)[static_cast<std::int64_t>(k)] = n < 1 ? MISSING_DBL : sortedQuantile(*x, n, probabilities[k]);
    }
}
