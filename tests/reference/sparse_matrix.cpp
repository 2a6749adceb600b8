#include "reference/sparse_matrix.h"

#include <cmath>

namespace korvel::reference
{

int invertSparse(const matrixSparse& source, matrixSparse& dst, short int& singular, double tol)
{
    const int n = source.nbrows;
    if (n == 0) {
        return 0;
    }
    matrix<double> a(n, n, 0.0);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < std::min(n, source.nbcols); ++j) {
            a.setElement(i, j, source.getElement(i, j));
        }
    }
    matrix<double> scale(n, 1, 0.0);
    matrix<double> b(n, 1, 0.0);
    matrix<int> pivots(n, 1, 0);
    const auto at = [&](int i, int j) -> double& { return a.data[i + n * j]; };
    const auto fail = [&] {
        singular = -1;
        return -1;
    };
    const double threshold = tol > 0 ? 1e-8 : 2.220446049250313e-16;
    for (int i = 0; i < n; ++i) {
        double big = 0.0;
        for (int j = 0; j < n; ++j) {
            if (std::fabs(at(i, j)) > big) {
                big = std::fabs(at(i, j));
            }
        }
        if (big == 0.0) {
            return fail();
        }
        scale[i] = 1.0 / big;
    }
    for (int j = 0; j < n; ++j) {
        for (int i = 1; i < j; ++i) {
            for (int k = 0; k < i; ++k) {
                at(i, j) -= at(i, k) * at(k, j);
            }
        }
        double big = 0.0;
        int chosen = j;
        for (int i = j; i < n; ++i) {
            for (int k = 0; k < j; ++k) {
                at(i, j) -= at(i, k) * at(k, j);
            }
            if (scale[i] * std::fabs(at(i, j)) >= big) {
                big = scale[i] * std::fabs(at(i, j));
                chosen = i;
            }
        }
        if (chosen != j) {
            for (int k = 0; k < n; ++k) {
                std::swap(at(chosen, k), at(j, k));
            }
            scale[chosen] = scale[j];
        }
        pivots[j] = chosen;
        if (j != n - 1) {
            if (!(std::fabs(at(j, j)) > threshold)) {
                return fail();
            }
            const double factor = 1.0 / at(j, j);
            for (int i = j + 1; i < n; ++i) {
                at(i, j) *= factor;
            }
        }
    }
    if (!(std::fabs(at(n - 1, n - 1)) > threshold)) {
        return fail();
    }
    for (int c = 0; c < n; ++c) {
        for (int i = 0; i < n; ++i) {
            b[i] = i == c ? 1.0 : 0.0;
        }
        int seen = -1;
        for (int i = 0; i < n; ++i) {
            double sum = b[pivots[i]];
            b[pivots[i]] = b[i];
            if (seen >= 0) {
                for (int k = seen; k < i; ++k) {
                    sum -= at(i, k) * b[k];
                }
            } else if (sum != 0.0) {
                seen = i;
            }
            b[i] = sum;
        }
        for (int i = n - 1; i >= 0; --i) {
            double sum = b[i];
            for (int k = i + 1; k < n; ++k) {
                sum -= at(i, k) * b[k];
            }
            b[i] = sum / at(i, i);
        }
        for (int i = 0; i < n; ++i) {
            dst.setElement(i, c, b[i]);
        }
    }
    return 0;
}

} // namespace korvel::reference
