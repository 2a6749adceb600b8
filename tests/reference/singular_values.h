/**
 * @file
 * The plain singular value decomposition: the loops of the method, element by element, on tables that are
 * counted from 1.
 */
#ifndef KORVEL_TESTS_REFERENCE_SINGULAR_VALUES_H
#define KORVEL_TESTS_REFERENCE_SINGULAR_VALUES_H

#include "containers/matrix.h"
#include "reference/bidiagonal_qr.h"
#include "reference/plain_table.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace korvel::test
{

class plain_svd : public plain_bidiagonal
{
public:
    plain_svd(const matrix<double>& table, int rows, int cols, int job, int limit)
        : plain_bidiagonal(rows, cols, job, limit), A(rows, cols), nct_(std::min(n - 1, p)),
          nrt_(std::max(0, std::min(p - 2, n))), work_(static_cast<std::size_t>(n) + 1)
    {
        for (int j = 1; j <= p; ++j) {
            for (int i = 1; i <= n; ++i) {
                A(i, j) = table.getElement(i - 1, j - 1);
            }
        }
        reduce();
        generate();
        info = iterate();
    }

    plain_table A; ///< in its reduced form

private:
    double& W(int k) { return work_[static_cast<std::size_t>(k)]; }

    template <class X>
    static double norm(int first, int last, X x)
    {
        if (first == last) {
            return std::fabs(x(first));
        }
        double scale = 0.0;
        double ssq = 1.0;
        for (int i = first; i <= last; ++i) {
            const double a = std::fabs(x(i));
            if (x(i) == 0.0) {
                continue;
            }
            if (a > scale) {
                ssq = 1.0 + ssq * ((scale / a) * (scale / a));
                scale = a;
            } else {
                ssq = ssq + (a / scale) * (a / scale);
            }
        }
        return scale * std::sqrt(ssq);
    }

    /** Applies the reflector in column l of one table, from row `top` on, to column j of another. */
    static void reflect(plain_table& from, int l, int top, int bottom, plain_table& to, int j)
    {
        double t = 0.0;
        for (int i = top; i <= bottom; ++i) {
            t = t + from(i, l) * to(i, j);
        }
        t = -t / from(top, l);
        if (t != 0.0) {
            for (int i = top; i <= bottom; ++i) {
                to(i, j) = t * from(i, l) + to(i, j);
            }
        }
    }

    void reduce()
    {
        for (int l = 1; l <= std::max(nct_, nrt_); ++l) {
            if (l <= nct_) {
                double length = norm(l, n, [&](int i) { return A(i, l); });
                if (std::fabs(length) > 1e-31) {
                    if (A(l, l) != 0.0 && A(l, l) < 0.0) {
                        length = -length;
                    }
                    const double inverse = 1.0 / length;
                    for (int i = l; i <= n; ++i) {
                        A(i, l) = inverse * A(i, l);
                    }
                    A(l, l) = A(l, l) + 1.0;
                }
                S(l) = -length;
            }
            for (int j = l + 1; j <= p; ++j) {
                if (l <= nct_ && std::fabs(S(l)) > 1e-31) {
                    reflect(A, l, l, n, A, j);
                }
                E(j) = A(l, j);
            }
            if (wantu_ && l <= nct_) {
                for (int i = l; i <= n; ++i) {
                    U(i, l) = A(i, l);
                }
            }
            if (l <= nrt_) {
                reduceRow(l);
            }
        }
        const int m = std::min(p, n + 1);
        if (nct_ < p) {
            S(nct_ + 1) = A(nct_ + 1, nct_ + 1);
        }
        if (n < m) {
            S(m) = 0.0;
        }
        if (nrt_ + 1 < m) {
            E(nrt_ + 1) = A(nrt_ + 1, m);
        }
        E(m) = 0.0;
    }

    void reduceRow(int l)
    {
        double length = norm(l + 1, p, [&](int j) { return E(j); });
        if (std::fabs(length) > 1e-31) {
            if (std::fabs(E(l + 1)) > 1e-31) {
                length = E(l + 1) < 0.0 ? -length : length;
            }
            const double inverse = 1.0 / length;
            for (int j = l + 1; j <= p; ++j) {
                E(j) = inverse * E(j);
            }
            E(l + 1) = E(l + 1) + 1.0;
        }
        E(l) = -length;
        if (l + 1 <= n && std::fabs(E(l)) > 1e-31) {
            for (int i = l + 1; i <= n; ++i) {
                W(i) = 0.0;
            }
            for (int j = l + 1; j <= p; ++j) {
                for (int i = l + 1; i <= n && E(j) != 0.0; ++i) {
                    W(i) = E(j) * A(i, j) + W(i);
                }
            }
            for (int j = l + 1; j <= p; ++j) {
                const double t = -E(j) / E(l + 1);
                for (int i = l + 1; i <= n && t != 0.0; ++i) {
                    A(i, j) = t * W(i) + A(i, j);
                }
            }
        }
        if (wantv_) {
            for (int i = l + 1; i <= p; ++i) {
                V(i, l) = E(i);
            }
        }
    }

    void generate()
    {
        for (int j = nct_ + 1; wantu_ && j <= ncu_; ++j) {
            for (int i = 1; i <= n; ++i) {
                U(i, j) = i == j ? 1.0 : 0.0;
            }
        }
        for (int l = nct_; wantu_ && l >= 1; --l) {
            const bool reflected = std::fabs(S(l)) > 1e-31;
            for (int j = l + 1; reflected && j <= ncu_; ++j) {
                reflect(U, l, l, n, U, j);
            }
            for (int i = 1; i <= n; ++i) {
                U(i, l) = !reflected || i < l ? 0.0 : -1.0 * U(i, l);
            }
            U(l, l) = 1.0 + U(l, l);
        }
        for (int l = p; wantv_ && l >= 1; --l) {
            for (int j = l + 1; l <= nrt_ && std::fabs(E(l)) > 1e-31 && j <= p; ++j) {
                reflect(V, l, l + 1, p, V, j);
            }
            for (int i = 1; i <= p; ++i) {
                V(i, l) = i == l ? 1.0 : 0.0;
            }
        }
    }

    int nct_;
    int nrt_;
    std::vector<double> work_;
};

} // namespace korvel::test

#endif
