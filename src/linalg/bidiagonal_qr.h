/**
 * @file
 * The implicitly shifted QR iteration on the bidiagonal form.
 */
#ifndef KORVEL_LINALG_BIDIAGONAL_QR_H
#define KORVEL_LINALG_BIDIAGONAL_QR_H

#include "linalg/bidiagonal.h"
#include "linalg/rotations.h"

namespace korvel
{

/** Whether an element of the bidiagonal form vanishes beside its neighbours. */
[[nodiscard, gnu::always_inline]] inline bool vanishes(double x, double neighbours)
{
    const double added = (__builtin_fabs(x) + neighbours) - neighbours;
    return __builtin_fabs(added) < 2.220446049250313e-16;
}

/**
 * The iteration on the diagonal `s`, read by `s[k]` and stored by `s.set(k, value)`, and the elements `e`
 * beside it. What it does to the columns of the vectors goes to `U` and `V`, when they are wanted: a run of
 * rotations of neighbours begins with `begin(first, last)` and goes on with `turn(k, rotation)`, which turns
 * column k and the next one; `turnAgainst(k, fixed, rotation)` turns columns k and `fixed`; `negate(k)` and
 * `swapWithNext(k)` concern columns that are not turned any more.
 *
 * The kernels of each instruction set run it on types of their own, and so have code of their own.
 */
template <class Values, class U, class V>
class bidiagonal_qr
{
public:
    bidiagonal_qr(const svd_shape& shape, Values& s, double* e, U& u, V& v)
        : shape_(shape), s_(s), e_(e), u_(u), v_(v)
    {
    }

    /** Returns 0 or minus the number of values that did not converge. */
    int run()
    {
        int steps = 0;
        int splits = 0;
        for (int m = shape_.order; m > 0;) {
            // Each split leaves a smaller block, but for NaN, of which it would make the same one for ever.
            if (steps >= shape_.mostSteps || (shape_.hasLimit && splits > shape_.order)) {
                return -m;
            }
            const block found = lastBlock(m);
            switch (found.what) {
            case part::smallLast:
                deflateLast(found.first, m);
                ++splits;
                break;
            case part::smallInside:
                splitAt(found.first, m);
                ++splits;
                break;
            case part::step:
                step(found.first, m);
                steps += shape_.hasLimit ? 1 : 0;
                break;
            case part::converged:
                settleValue(found.first);
                steps = 0;
                splits = 0;
                --m;
            }
        }
        return 0;
    }

private:
    /** Where the last unreduced block begins, and what is to be done with it. */
    enum class part { smallLast, smallInside, step, converged };
    struct block {
        part what;
        int first;
    };

    static double magnitude(double x) { return __builtin_fabs(x); }

    block lastBlock(int m)
    {
        int l = m - 1;
        for (; l >= 1; --l) {
            if (vanishes(e_[l - 1], magnitude(s_[l - 1]) + magnitude(s_[l]))) {
                e_[l - 1] = 0.0;
                break;
            }
        }
        if (l == m - 1) {
            return {part::converged, l};
        }
        int k = m;
        for (; k > l; --k) {
            const double after = k != m ? magnitude(e_[k - 1]) : 0.0;
            const double before = k != l + 1 ? magnitude(e_[k - 2]) : 0.0;
            if (vanishes(s_[k - 1], after + before)) {
                s_.set(k - 1, 0.0);
                break;
            }
        }
        if (k == l) {
            return {part::step, l};
        }
        return k == m ? block{part::smallLast, l} : block{part::smallInside, k};
    }

    /** Rotates an element beside value k into it. */
    rotation turnInto(int k, double f)
    {
        double value = s_[k];
        const rotation turn = rotationOf(value, f);
        s_.set(k, value);
        return turn;
    }

    void deflateLast(int l, int m)
    {
        double f = e_[m - 2];
        e_[m - 2] = 0.0;
        for (int k = m - 2; k >= l; --k) {
            const rotation turn = turnInto(k, f);
            if (k != l) {
                f = -turn.s * e_[k - 1];
                e_[k - 1] = turn.c * e_[k - 1];
            }
            if (shape_.wantsV) {
                v_.turnAgainst(k, m - 1, turn);
            }
        }
    }

    void splitAt(int l, int m)
    {
        double f = e_[l - 1];
        e_[l - 1] = 0.0;
        for (int k = l; k < m; ++k) {
            const rotation turn = turnInto(k, f);
            f = -turn.s * e_[k];
            e_[k] = turn.c * e_[k];
            // Of a wide table the last value has no column in U. It splits off first, unless it stands by
            // NaN.
            if (shape_.wantsU && k < shape_.n) {
                u_.turnAgainst(k, l - 1, turn);
            }
        }
    }

    struct start {
        double f;
        double g;
    };

    /** What the first rotation of a step turns to 0, with the shift from the last two values. */
    [[nodiscard]] start startOfStep(int l, int m) const
    {
        double scale = magnitude(s_[m - 1]);
        const double others[] = {s_[m - 2], e_[m - 2], s_[l], e_[l]};
        for (const double x : others) {
            scale = scale < magnitude(x) ? magnitude(x) : scale;
        }
        const double sm = s_[m - 1] / scale;
        const double smm1 = s_[m - 2] / scale;
        const double emm1 = e_[m - 2] / scale;
        const double sl = s_[l] / scale;
        const double el = e_[l] / scale;
        const double b = ((smm1 + sm) * (smm1 - sm) + emm1 * emm1) / 2.0;
        const double c = (sm * emm1) * (sm * emm1);
        double shift = 0.0;
        if (b != 0.0 || c != 0.0) {
            shift = __builtin_sqrt(b * b + c);
            if (b < 0.0) {
                shift = -shift;
            }
            shift = c / (b + shift);
        }
        return {(sl + sm) * (sl - sm) + shift, sl * el};
    }

    void step(int l, int m)
    {
        auto [f, g] = startOfStep(l, m);
        const int lastOfU = (m < shape_.n ? m : shape_.n) - 1;
        if (shape_.wantsV) {
            v_.begin(l, m - 1);
        }
        if (shape_.wantsU) {
            u_.begin(l, lastOfU);
        }
        for (int k = l; k < m - 1; ++k) {
            const rotation right = rotationOf(f, g);
            if (k != l) {
                e_[k - 1] = f;
            }
            f = right.c * s_[k] + right.s * e_[k];
            e_[k] = right.c * e_[k] - right.s * s_[k];
            g = right.s * s_[k + 1];
            s_.set(k + 1, right.c * s_[k + 1]);
            if (shape_.wantsV) {
                v_.turn(k, right);
            }
            const rotation left = rotationOf(f, g);
            s_.set(k, f);
            f = left.c * e_[k] + left.s * s_[k + 1];
            s_.set(k + 1, -left.s * e_[k] + left.c * s_[k + 1]);
            g = left.s * e_[k + 1];
            e_[k + 1] = left.c * e_[k + 1];
            if (shape_.wantsU && k < lastOfU) {
                u_.turn(k, left);
            }
        }
        e_[m - 2] = f;
    }

    /** Makes a value that has converged positive, and moves it to its place. */
    void settleValue(int l)
    {
        if (s_[l] < 0.0) {
            s_.set(l, -s_[l]);
            if (shape_.wantsV) {
                v_.negate(l);
            }
        }
        for (; l != shape_.order - 1 && s_[l] < s_[l + 1]; ++l) {
            const double larger = s_[l + 1];
            s_.set(l + 1, s_[l]);
            s_.set(l, larger);
            if (shape_.wantsV && l + 1 < shape_.p) {
                v_.swapWithNext(l);
            }
            if (shape_.wantsU && l + 1 < shape_.n) {
                u_.swapWithNext(l);
            }
        }
    }

    const svd_shape shape_;
    Values& s_;
    double* e_;
    U& u_;
    V& v_;
};

} // namespace korvel

#endif
