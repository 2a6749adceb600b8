/**
 * @file
 * The steps of the singular value decomposition on tables of cells that are read by `get(i, j)` and stored by
 * `set(i, j, value)`: whatever form the tables have. `s` is read and stored by `s[k]` and `s.set(k, value)`.
 */
#ifndef KORVEL_LINALG_GOLUB_KAHAN_H
#define KORVEL_LINALG_GOLUB_KAHAN_H

#include "linalg/vector_runs.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace korvel
{

/** As many steps as it takes. */
inline constexpr int noLimit = std::numeric_limits<int>::max();

/** What is to be decomposed, and how far. */
struct svd_shape {
    int n;
    int p;
    int columnsOfU; ///< 0: U is not wanted
    bool wantsV;
    int mostSteps; ///< for one value

    /** Columns with a reflector on the left. */
    [[nodiscard]] int left() const { return std::max(std::min(n - 1, p), 0); }
    /** Rows with a reflector on the right. */
    [[nodiscard]] int right() const { return std::max(0, std::min(p - 2, n)); }
    /** Order of the bidiagonal form. */
    [[nodiscard]] int order() const { return std::max(std::min(p, n + 1), 0); }
    [[nodiscard]] bool wantsU() const { return columnsOfU > 0; }
    [[nodiscard]] bool hasLimit() const { return mostSteps != noLimit; }
};

inline constexpr int stepsOfDense = 500;
inline constexpr int stepsOfChunked = 60;

/** Whether a norm counts: otherwise there is nothing to reflect. */
[[nodiscard]] inline bool isNorm(double x)
{
    return std::fabs(x) > 1e-31;
}

/** Whether an element of the bidiagonal form vanishes beside its neighbours. */
[[nodiscard]] inline bool vanishes(double x, double neighbours)
{
    const double added = (std::fabs(x) + neighbours) - neighbours;
    return std::fabs(added) < 2.220446049250313e-16;
}

/** The Householder vector of a run of numbers, in place; returns their length with the sign of the first. */
template <class Run>
double makeReflector(int count, Run x, bool copiesSign)
{
    double norm = lengthOf(count, x);
    if (isNorm(norm)) {
        if (copiesSign) {
            norm = std::copysign(norm, x[0]);
        }
        scaleBy(count, 1.0 / norm, x);
        x.set(0, x[0] + 1.0);
    }
    return norm;
}

/** Applies a reflector to a run. */
template <class X, class Y>
void reflectRun(int count, const X& reflector, Y y)
{
    const double t = -innerProduct(count, reflector, y) / reflector[0];
    addMultiple(count, t, reflector, y);
}

template <class Cells, class UCells, class VCells, class Vector>
class golub_kahan
{
public:
    golub_kahan(Cells& a, UCells& u, VCells& v, Vector& s, const svd_shape& shape)
        : a_(a), u_(u), v_(v), s_(s), shape_(shape), n_(shape.n), p_(shape.p),
          e_(static_cast<std::size_t>(std::max(p_, 0)) + 1), work_(static_cast<std::size_t>(std::max(n_, 0)))
    {
    }

    /** The whole decomposition; returns 0 or minus the number of values that did not converge. */
    int run()
    {
        bidiagonalise();
        if (shape_.wantsU()) {
            makeU();
        }
        if (shape_.wantsV) {
            makeV();
        }
        return iterate();
    }

private:
    template <class Table>
    static column_run<Table&> column(Table& table, int j, int from)
    {
        return {table, from, j};
    }
    [[nodiscard]] double e(int k) const { return e_[static_cast<std::size_t>(k)]; }
    void setE(int k, double value) { e_[static_cast<std::size_t>(k)] = value; }
    memory_run runOfE(int from) { return memory_run(e_.data() + from); }

    void bidiagonalise()
    {
        const int left = shape_.left();
        const int right = shape_.right();
        for (int l = 0; l < std::max(left, right); ++l) {
            if (l < left) {
                s_.set(l, -makeReflector(n_ - l, column(a_, l, l), isNegative(a_.get(l, l))));
            }
            for (int j = l + 1; j < p_; ++j) {
                if (l < left && isNorm(s_[l])) {
                    reflectRun(n_ - l, column(a_, l, l), column(a_, j, l));
                }
                setE(j, a_.get(l, j));
            }
            for (int i = l; shape_.wantsU() && l < left && i < n_; ++i) {
                u_.set(i, l, a_.get(i, l));
            }
            if (l < right) {
                reflectRows(l);
            }
        }
        closeBidiagonal();
    }

    /** Only a negative first element lends its sign to the norm of a column. */
    static bool isNegative(double x) { return x < 0.0; }

    void reflectRows(int l)
    {
        setE(l, -makeReflector(p_ - l - 1, runOfE(l + 1), isNorm(e(l + 1))));
        const int below = n_ - l - 1;
        if (below > 0 && isNorm(e(l))) {
            std::fill(work_.begin() + l + 1, work_.end(), 0.0);
            memory_run work(work_.data() + l + 1);
            for (int j = l + 1; j < p_; ++j) {
                addMultiple(below, e(j), column(a_, j, l + 1), work);
            }
            for (int j = l + 1; j < p_; ++j) {
                addMultiple(below, -e(j) / e(l + 1), work, column(a_, j, l + 1));
            }
        }
        for (int i = l + 1; shape_.wantsV && i < p_; ++i) {
            v_.set(i, l, e(i));
        }
    }

    void closeBidiagonal()
    {
        const int left = shape_.left();
        const int right = shape_.right();
        const int m = shape_.order();
        if (left < p_) {
            s_.set(left, a_.get(left, left));
        }
        if (n_ < m) {
            s_.set(m - 1, 0.0);
        }
        if (right + 1 < m) {
            setE(right, a_.get(right, m - 1));
        }
        if (m > 0) {
            setE(m - 1, 0.0);
        }
    }

    template <class Table>
    static void makeUnit(Table& table, int rows, int j)
    {
        for (int i = 0; i < rows; ++i) {
            table.set(i, j, 0.0);
        }
        table.set(j, j, 1.0);
    }

    void makeU()
    {
        const int cols = shape_.columnsOfU;
        for (int j = shape_.left(); j < cols; ++j) {
            makeUnit(u_, n_, j);
        }
        for (int l = shape_.left() - 1; l >= 0; --l) {
            if (!isNorm(s_[l])) {
                makeUnit(u_, n_, l);
                continue;
            }
            for (int j = l + 1; j < cols; ++j) {
                reflectRun(n_ - l, column(u_, l, l), column(u_, j, l));
            }
            scaleBy(n_ - l, -1.0, column(u_, l, l));
            u_.set(l, l, 1.0 + u_.get(l, l));
            for (int i = 0; i < l; ++i) {
                u_.set(i, l, 0.0);
            }
        }
    }

    void makeV()
    {
        for (int l = p_ - 1; l >= 0; --l) {
            for (int j = l + 1; l < shape_.right() && isNorm(e(l)) && j < p_; ++j) {
                reflectRun(p_ - l - 1, column(v_, l, l + 1), column(v_, j, l + 1));
            }
            makeUnit(v_, p_, l);
        }
    }

    /** Where the last unreduced block begins, and what is to be done with it. */
    enum class part { smallLast, smallInside, step, converged };
    struct block {
        part what;
        int first;
    };

    block lastBlock(int m)
    {
        int l = m - 1;
        for (; l >= 1; --l) {
            if (vanishes(e(l - 1), std::fabs(s_[l - 1]) + std::fabs(s_[l]))) {
                setE(l - 1, 0.0);
                break;
            }
        }
        l = std::max(l, 0);
        if (l == m - 1) {
            return {part::converged, l};
        }
        int k = m;
        for (; k > l; --k) {
            const double after = k != m ? std::fabs(e(k - 1)) : 0.0;
            const double before = k != l + 1 ? std::fabs(e(k - 2)) : 0.0;
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

    int iterate()
    {
        const int last = shape_.order() - 1;
        int steps = 0;
        int splits = 0;
        for (int m = last + 1; m > 0;) {
            // Each split leaves a smaller block, but for NaN, of which it would make the same one for ever.
            if (steps >= shape_.mostSteps || (shape_.hasLimit() && splits > shape_.order())) {
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
                steps += shape_.hasLimit() ? 1 : 0;
                break;
            case part::converged:
                settleValue(found.first, last);
                steps = 0;
                splits = 0;
                --m;
            }
        }
        return 0;
    }

    template <class Table>
    static void turnColumns(Table& table, int rows, int i, int j, const rotation& turn)
    {
        rotateRuns(rows, column(table, i, 0), column(table, j, 0), turn.c, turn.s);
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
        double f = e(m - 2);
        setE(m - 2, 0.0);
        for (int k = m - 2; k >= l; --k) {
            const rotation turn = turnInto(k, f);
            if (k != l) {
                f = -turn.s * e(k - 1);
                setE(k - 1, turn.c * e(k - 1));
            }
            if (shape_.wantsV) {
                turnColumns(v_, p_, k, m - 1, turn);
            }
        }
    }

    void splitAt(int l, int m)
    {
        double f = e(l - 1);
        setE(l - 1, 0.0);
        for (int k = l; k < m; ++k) {
            const rotation turn = turnInto(k, f);
            f = -turn.s * e(k);
            setE(k, turn.c * e(k));
            if (shape_.wantsU()) {
                turnColumns(u_, n_, k, l - 1, turn);
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
        const double scale = std::max({std::fabs(s_[m - 1]), std::fabs(s_[m - 2]), std::fabs(e(m - 2)),
                                       std::fabs(s_[l]), std::fabs(e(l))});
        const double sm = s_[m - 1] / scale;
        const double smm1 = s_[m - 2] / scale;
        const double emm1 = e(m - 2) / scale;
        const double sl = s_[l] / scale;
        const double el = e(l) / scale;
        const double b = ((smm1 + sm) * (smm1 - sm) + emm1 * emm1) / 2.0;
        const double c = (sm * emm1) * (sm * emm1);
        double shift = 0.0;
        if (b != 0.0 || c != 0.0) {
            shift = std::sqrt(b * b + c);
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
        for (int k = l; k < m - 1; ++k) {
            const rotation right = rotationOf(f, g);
            if (k != l) {
                setE(k - 1, f);
            }
            f = right.c * s_[k] + right.s * e(k);
            setE(k, right.c * e(k) - right.s * s_[k]);
            g = right.s * s_[k + 1];
            s_.set(k + 1, right.c * s_[k + 1]);
            if (shape_.wantsV) {
                turnColumns(v_, p_, k, k + 1, right);
            }
            const rotation left = rotationOf(f, g);
            s_.set(k, f);
            f = left.c * e(k) + left.s * s_[k + 1];
            s_.set(k + 1, -left.s * e(k) + left.c * s_[k + 1]);
            g = left.s * e(k + 1);
            setE(k + 1, left.c * e(k + 1));
            if (shape_.wantsU() && k < n_ - 1) {
                turnColumns(u_, n_, k, k + 1, left);
            }
        }
        setE(m - 2, f);
    }

    /** Makes a value that has converged positive, and moves it to its place. */
    void settleValue(int l, int last)
    {
        if (s_[l] < 0.0) {
            s_.set(l, -s_[l]);
            if (shape_.wantsV) {
                scaleBy(p_, -1.0, column(v_, l, 0));
            }
        }
        for (; l != last && s_[l] < s_[l + 1]; ++l) {
            const double larger = s_[l + 1];
            s_.set(l + 1, s_[l]);
            s_.set(l, larger);
            if (shape_.wantsV && l + 1 < p_) {
                swapRuns(p_, column(v_, l, 0), column(v_, l + 1, 0));
            }
            if (shape_.wantsU() && l + 1 < n_) {
                swapRuns(n_, column(u_, l, 0), column(u_, l + 1, 0));
            }
        }
    }

    Cells& a_;
    UCells& u_;
    VCells& v_;
    Vector& s_;
    svd_shape shape_;
    int n_;
    int p_;
    std::vector<double> e_;
    std::vector<double> work_;
};

} // namespace korvel

#endif
