#include "missing/plain_missing.h"

#include "containers/missing.h"

#include <cstddef>

namespace korvel::bench::plain
{

int count(const double* x, int n)
{
    return countIf(x, n, MISSING_DBL);
}

int countIf(const double* x, int n, double val)
{
    int found = 0;
    for (int i = 0; i < n; ++i) {
        if (x[i] == val) {
            ++found;
        }
    }
    return found;
}

void flagRows(const double* x, int rows, int cols, short int* flags)
{
    for (int i = 0; i < rows; ++i) {
        flags[i] = 0;
    }
    for (int j = 0; j < cols; ++j) {
        for (int i = 0; i < rows; ++i) {
            if (x[i + static_cast<std::ptrdiff_t>(rows) * j] <= MISSING_DBL) {
                flags[i] = -1;
            }
        }
    }
}

void replace(double* x, int n, double val)
{
    for (int i = 0; i < n; ++i) {
        if (x[i] == MISSING_DBL) {
            x[i] = val;
        }
    }
}

void removeRows(const double* x, int rows, int cols, const short int* flags, double* out, int outRows)
{
    for (int j = 0; j < cols; ++j) {
        double* to = out + static_cast<std::ptrdiff_t>(outRows) * j;
        for (int i = 0; i < rows; ++i) {
            if (flags[i] == 0) {
                *to++ = x[i + static_cast<std::ptrdiff_t>(rows) * j];
            }
        }
    }
}

void insertRows(const double* x, int rows, int cols, const short int* flags, double* out, int outRows)
{
    for (int j = 0; j < cols; ++j) {
        const double* from = x + static_cast<std::ptrdiff_t>(rows) * j;
        double* const to = out + static_cast<std::ptrdiff_t>(outRows) * j;
        for (int i = 0; i < outRows; ++i) {
            to[i] = flags[i] == 0 ? *from++ : MISSING_DBL;
        }
    }
}

bool isPositive(const double* x, int n)
{
    for (int i = 0; i < n; ++i) {
        if (x[i] != MISSING_DBL && !(x[i] >= 0.0)) {
            return false;
        }
    }
    return true;
}

double sumIf(const double* y, int n, const double* g, double val)
{
    double sum = 0.0;
    int rows = 0;
    for (int i = 0; i < n; ++i) {
        if (g[i] == val && y[i] != MISSING_DBL) {
            sum += y[i];
            ++rows;
        }
    }
    return rows == 0 ? MISSING_DBL : sum;
}

double varIf(const double* y, int n, const double* g, double val)
{
    double c = 0.0;
    double m = 0.0;
    double m2 = 0.0;
    for (int i = 0; i < n; ++i) {
        if (g[i] == val && y[i] != MISSING_DBL) {
            c += 1.0;
            const double d = y[i] - m;
            m += d / c;
            m2 += (1.0 - 1.0 / c) * (d * d);
        }
    }
    return m2 / c;
}

void fillByNearest(double* x, int rows, int cols, const short int* flags, const double* means,
                   const double* variances)
{
    const auto at = [=](int i, int j) { return i + static_cast<std::ptrdiff_t>(rows) * j; };
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; flags[r] != 0 && c < cols; ++c) {
            if (!(x[at(r, c)] <= MISSING_DBL)) {
                continue;
            }
            double best = 1.79769313486231e308;
            int donor = -1;
            for (int d = 0; d < rows; ++d) {
                if (d == r || flags[d] != 0) {
                    continue;
                }
                double distance = 0.0;
                bool isCompared = false;
                bool isValid = true;
                for (int k = 0; k < cols; ++k) {
                    const double other = x[at(d, k)];
                    if (k != c && other <= MISSING_DBL) {
                        isValid = false;
                        break;
                    }
                    const double own = x[at(r, k)];
                    if (!(own <= MISSING_DBL) && variances[k] > 0.0) {
                        distance += (own - other) * (own - other) / variances[k];
                        isCompared = true;
                    }
                }
                if (isValid && isCompared && best > distance) {
                    best = distance;
                    donor = d;
                }
            }
            x[at(r, c)] = donor >= 0 ? x[at(donor, c)] : means[c];
        }
    }
}

} // namespace korvel::bench::plain
