/**
 * @file
 * The plain singular value decomposition: the loops of the method, element by element, on tables that are
 * counted from 1.
 */
#ifndef KORVEL_TESTS_REFERENCE_SINGULAR_VALUES_H
#define KORVEL_TESTS_REFERENCE_SINGULAR_VALUES_H

#include "containers/matrix.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace korvel::test
{

class plain_table
{
public:
    plain_table(int rows, int cols)
        : rows_(rows), cells_(static_cast<std::size_t>(std::max(rows, 0)) * static_cast<std::size_t>(cols))
    {
    }
    double& operator()(int i, int j)
    {
        return cells_[static_cast<std::size_t>(i - 1) +
                      static_cast<std::size_t>(rows_) * static_cast<std::size_t>(j - 1)];
    }
    [[nodiscard]] const std::vector<double>& cells() const { return cells_; }

private:
    int rows_;
    std::vector<double> cells_;
};

class plain_svd
{
public:
    plain_svd(const matrix<double>& table, int rows, int cols, int job, int limit)
        : A(rows, cols), n(rows), p(cols), mostSteps_(limit), wantu_(job % 100 / 10 > 0),
          wantv_(job % 10 != 0), ncu_(job % 100 / 10 > 1 ? std::min(n, p) : n), U(n, wantu_ ? ncu_ : 0),
          V(p, wantv_ ? p : 0), s(static_cast<std::size_t>(std::min(n + 1, p)) + 1),
          e_(static_cast<std::size_t>(p) + 2), work_(static_cast<std::size_t>(n) + 1)
    {
        for (int j = 1; j <= p; ++j) {
            for (int i = 1; i <= n; ++i) {
                A(i, j) = table.getElement(i - 1, j - 1);
            }
        }
        nct_ = std::min(n - 1, p);
        nrt_ = std::max(0, std::min(p - 2, n));
        reduce();
        generate();
        info = iterate();
    }

    plain_table A; ///< in its reduced form
    int info = 0;
    int stepsTaken = 0; ///< the most for one value

private:
    int n;
    int p;
    int mostSteps_;
    bool wantu_;
    bool wantv_;
    int ncu_;

public:
    plain_table U;
    plain_table V;
    std::vector<double> s; ///< counted from 1

private:
    double& S(int k) { return s[static_cast<std::size_t>(k)]; }
    double& E(int k) { return e_[static_cast<std::size_t>(k)]; }
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

    static void givens(double& a, double b, double& c, double& sn)
    {
        const double roe = std::fabs(a) > std::fabs(b) ? a : b;
        const double scale = std::fabs(a) + std::fabs(b);
        if (scale == 0.0) {
            c = 1.0;
            sn = 0.0;
            a = 0.0;
            return;
        }
        double r = scale * std::sqrt((a / scale) * (a / scale) + (b / scale) * (b / scale));
        r = std::signbit(roe) ? -r : r;
        c = a / r;
        sn = b / r;
        a = r;
    }

    static void rotate(plain_table& T, int rows, int x, int y, double c, double sn)
    {
        for (int i = 1; i <= rows; ++i) {
            const double t = c * T(i, x) + sn * T(i, y);
            T(i, y) = c * T(i, y) - sn * T(i, x);
            T(i, x) = t;
        }
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

    /** The case, and the row at which its block begins. */
    int examine(int m, int& l)
    {
        constexpr double negligible = 2.220446049250313e-16;
        for (l = m - 1; l >= 1; --l) {
            const double t = std::fabs(S(l)) + std::fabs(S(l + 1));
            const double d = (std::fabs(E(l)) + t) - t;
            if (std::fabs(d) < negligible) {
                E(l) = 0.0;
                break;
            }
        }
        if (l == m - 1) {
            l = l + 1;
            return 4;
        }
        int ls = m;
        for (; ls > l; --ls) {
            const double t = (ls != m ? std::fabs(E(ls)) : 0.0) + (ls != l + 1 ? std::fabs(E(ls - 1)) : 0.0);
            const double d = (std::fabs(S(ls)) + t) - t;
            if (std::fabs(d) < negligible) {
                S(ls) = 0.0;
                break;
            }
        }
        const int which = ls == l ? 3 : ls == m ? 1 : 2;
        l = (which == 2 ? ls : l) + 1;
        return which;
    }

    int iterate()
    {
        const int mm = std::min(p, n + 1);
        int iter = 0;
        int splits = 0;
        for (int m = mm; m > 0;) {
            if (iter >= mostSteps_ || splits > mm) {
                return -m;
            }
            int l = 0;
            double c = 0.0;
            double sn = 0.0;
            switch (examine(m, l)) {
            case 1: {
                double f = E(m - 1);
                splits = splits + 1;
                E(m - 1) = 0.0;
                for (int k = m - 1; k >= l; --k) {
                    givens(S(k), f, c, sn);
                    if (k != l) {
                        f = -sn * E(k - 1);
                        E(k - 1) = c * E(k - 1);
                    }
                    if (wantv_) {
                        rotate(V, p, k, m, c, sn);
                    }
                }
                break;
            }
            case 2: {
                double f = E(l - 1);
                splits = splits + 1;
                E(l - 1) = 0.0;
                for (int k = l; k <= m; ++k) {
                    givens(S(k), f, c, sn);
                    f = -sn * E(k);
                    E(k) = c * E(k);
                    if (wantu_) {
                        rotate(U, n, k, l - 1, c, sn);
                    }
                }
                break;
            }
            case 3:
                step(l, m);
                iter = iter + 1;
                stepsTaken = std::max(stepsTaken, iter);
                break;
            default:
                settle(l, mm);
                iter = 0;
                splits = 0;
                m = m - 1;
            }
        }
        return 0;
    }

    void step(int l, int m)
    {
        double scale = std::fabs(S(m));
        for (const double x : {S(m - 1), E(m - 1), S(l), E(l)}) {
            scale = std::fabs(x) > scale ? std::fabs(x) : scale;
        }
        const double sm = S(m) / scale;
        const double smm1 = S(m - 1) / scale;
        const double emm1 = E(m - 1) / scale;
        const double sl = S(l) / scale;
        const double el = E(l) / scale;
        const double b = ((smm1 + sm) * (smm1 - sm) + emm1 * emm1) / 2.0;
        const double c2 = (sm * emm1) * (sm * emm1);
        double shift = 0.0;
        if (b != 0.0 || c2 != 0.0) {
            shift = b < 0.0 ? -std::sqrt(b * b + c2) : std::sqrt(b * b + c2);
            shift = c2 / (b + shift);
        }
        double f = (sl + sm) * (sl - sm) + shift;
        double g = sl * el;
        for (int k = l; k <= m - 1; ++k) {
            double c = 0.0;
            double sn = 0.0;
            givens(f, g, c, sn);
            if (k != l) {
                E(k - 1) = f;
            }
            f = c * S(k) + sn * E(k);
            E(k) = c * E(k) - sn * S(k);
            g = sn * S(k + 1);
            S(k + 1) = c * S(k + 1);
            if (wantv_) {
                rotate(V, p, k, k + 1, c, sn);
            }
            givens(f, g, c, sn);
            S(k) = f;
            f = c * E(k) + sn * S(k + 1);
            S(k + 1) = -sn * E(k) + c * S(k + 1);
            g = sn * E(k + 1);
            E(k + 1) = c * E(k + 1);
            if (wantu_ && k < n) {
                rotate(U, n, k, k + 1, c, sn);
            }
        }
        E(m - 1) = f;
    }

    void settle(int l, int mm)
    {
        if (S(l) < 0.0) {
            S(l) = -S(l);
            for (int i = 1; wantv_ && i <= p; ++i) {
                V(i, l) = -1.0 * V(i, l);
            }
        }
        for (; l != mm && S(l) < S(l + 1); ++l) {
            std::swap(S(l), S(l + 1));
            for (int i = 1; wantv_ && l < p && i <= p; ++i) {
                std::swap(V(i, l), V(i, l + 1));
            }
            for (int i = 1; wantu_ && l < n && i <= n; ++i) {
                std::swap(U(i, l), U(i, l + 1));
            }
        }
    }

    int nct_ = 0;
    int nrt_ = 0;
    std::vector<double> e_;
    std::vector<double> work_;
};

} // namespace korvel::test

#endif
