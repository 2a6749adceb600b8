/**
 * @file
 * The plain QR iteration on a bidiagonal form, with the vectors that it turns.
 */
#ifndef KORVEL_TESTS_REFERENCE_BIDIAGONAL_QR_H
#define KORVEL_TESTS_REFERENCE_BIDIAGONAL_QR_H

#include "reference/plain_table.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace korvel::test
{

class plain_bidiagonal
{
public:
    int info = 0;
    int stepsTaken = 0; ///< the most for one value

protected:
    plain_bidiagonal(int rows, int cols, int job, int limit)
        : n(rows), p(cols), mostSteps_(limit), wantu_(job % 100 / 10 > 0), wantv_(job % 10 != 0),
          ncu_(job % 100 / 10 > 1 ? std::min(n, p) : n), U(n, wantu_ ? ncu_ : 0), V(p, wantv_ ? p : 0),
          s(static_cast<std::size_t>(std::min(n + 1, p)) + 1), e_(static_cast<std::size_t>(p) + 2)
    {
    }

    double& S(int k) { return s[static_cast<std::size_t>(k)]; }
    double& E(int k) { return e_[static_cast<std::size_t>(k)]; }

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

protected:
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
                    if (wantu_ && k <= n) {
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

private:
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

    std::vector<double> e_;
};

} // namespace korvel::test

#endif
