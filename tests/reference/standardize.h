/**
 * @file
 * Plain twins of standardising, centring and rescaling tables and vectors, with nothing done for speed. Null
 * flags, weights and results mean none.
 */
#ifndef KORVEL_TESTS_REFERENCE_STANDARDIZE_H
#define KORVEL_TESTS_REFERENCE_STANDARDIZE_H

#include "reference/column_moments.h"
#include "reference/vector_extremes.h"

#include <cmath>
#include <functional>

namespace korvel::reference
{

inline double given(const matrix<double>* w, int i)
{
    return w == nullptr ? 1.0 : (*w)[i];
}

/** Cells (i, j) for which `kept(i, j)` become `cell(x, j)`; others stay, or are missing in a result. */
template <class Cell>
void changeKept(matrix<double>& x, int rows, int j, const short int* flags, matrix<double>* out, Cell cell)
{
    for (int i = 0; i < rows; ++i) {
        const double before = x.getElement(i, j);
        const bool kept = (flags == nullptr || flags[i] == 0) && before != MISSING_DBL;
        if (kept) {
            (out != nullptr ? *out : x).setElement(i, j, cell(before));
        } else if (out != nullptr) {
            out->setElement(i, j, MISSING_DBL);
        }
    }
}

/** Room for the statistics of a standardised table. */
struct standardized_statistics {
    matrix<double> means;
    matrix<double> sds;
    matrix<double> vars;

    explicit standardized_statistics(int cols) : means(cols, 1, 0.0), sds(cols, 1, 0.0), vars(cols, 1, 0.0) {}

    void store(int j, double mean, double sd, double var)
    {
        means.setElement(j, 0, mean);
        sds.setElement(j, 0, sd);
        vars.setElement(j, 0, var);
    }
};

inline void standardize(matrix<double>& x, int rows, int cols, matrix<double>* out,
                        standardized_statistics& found, const short int* flags, const matrix<double>* w,
                        denominator_flags how)
{
    int j = 0;
    for (; j < cols; ++j) {
        double s = 0.0;
        double mean = 0.0;
        double m2 = 0.0;
        int m = 0;
        for (int i = 0; i < rows; ++i) {
            const double value = x.getElement(i, j);
            if ((flags != nullptr && flags[i] != 0) || value == MISSING_DBL) {
                continue;
            }
            const double wi = given(w, i);
            m += 1;
            s += wi;
            if (wi != 0.0) {
                const double d = value - mean;
                m2 += (wi - (wi * wi) / s) * (d * d);
                mean += (wi * d) / s;
            }
        }
        const double divisor = denominatorOf(s, m, how);
        if (divisor == 0.0) {
            found.store(j, MISSING_DBL, MISSING_DBL, MISSING_DBL);
            break;
        }
        const double var = m2 / divisor;
        const double sd = std::sqrt(var);
        changeKept(x, rows, j, flags, out,
                   [=](double value) { return (value - mean) / (sd == 0.0 ? 1.0 : sd); });
        found.store(j, mean, sd, var);
    }
    for (; out != nullptr && j < cols; ++j) {
        for (int i = 0; i < rows; ++i) {
            out->setElement(i, j, 0.0);
        }
    }
}

/** The new value of a cell, given the mean and the deviation of its column. */
using change = std::function<double(double x, double mean, double sd)>;

inline double centred(double x, double mean, double)
{
    return x - mean;
}
inline double reduced(double x, double, double sd)
{
    return x / sd;
}
inline double standardized(double x, double mean, double sd)
{
    return sd > 0.0 ? (x - mean) / sd : x;
}

/** Every column by its own mean and deviation, zero weights left out. */
inline void changeByMoments(matrix<double>& x, int rows, int cols, const matrix<double>* w,
                            denominator_flags how, const change& cell, matrix<double>* out,
                            standardized_statistics& found)
{
    for (int j = 0; j < cols; ++j) {
        moments_of_column moments;
        moments.add([&](int i) { return x.getElement(i, j); }, rows, nullptr, w);
        const double mean = moments.mean();
        const double sd = moments.deviation(how);
        changeKept(x, rows, j, nullptr, out, [&](double value) { return cell(value, mean, sd); });
        found.store(j, mean, sd, 0.0);
    }
}

inline void normalize(matrix<double>& x, int rows, int cols, const matrix<double>* w, const short int* flags)
{
    for (int j = 0; j < cols; ++j) {
        double sum = 0.0;
        for (int i = 0; i < rows; ++i) {
            const double value = x.getElement(i, j);
            if ((flags == nullptr || flags[i] == 0) && value != MISSING_DBL) {
                sum += (value * value) * given(w, i);
            }
        }
        const double n = rows;
        changeKept(x, rows, j, flags, nullptr,
                   [&](double value) { return (value / std::sqrt(sum)) * std::sqrt(n / (n - 1.0)); });
    }
}

inline void rescale(matrix<double>& x, int n, double lo, double hi, const short int* flags,
                    matrix<double>* out)
{
    const extremes found = keptExtremes(x, n, flags);
    const double least = found.smallest;
    const double r = found.largest - least;
    changeKept(x, n, 0, flags, out, [=](double value) { return ((value - least) * (hi - lo)) / r + lo; });
}

} // namespace korvel::reference

#endif
