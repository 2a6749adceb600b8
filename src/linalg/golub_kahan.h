/**
 * @file
 * The steps of the singular value decomposition on tables of cells that are read by `get(i, j)` and stored by
 * `set(i, j, value)`: whatever form the tables have. `s` is read and stored by `s[k]` and `s.set(k, value)`.
 */
#ifndef KORVEL_LINALG_GOLUB_KAHAN_H
#define KORVEL_LINALG_GOLUB_KAHAN_H

#include "linalg/bidiagonal.h"
#include "linalg/bidiagonal_qr.h"
#include "linalg/vector_runs.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace korvel
{

/** Applies a reflector to a run. */
template <class X, class Y>
void reflectRun(int count, const X& reflector, Y y)
{
    const double t = -innerProduct(count, reflector, y) / reflector[0];
    addMultiple(count, t, reflector, y);
}

/** The column of a table from a row on. */
template <class Table>
[[nodiscard]] column_run<Table&> columnOf(Table& table, int j, int from)
{
    return {table, from, j};
}

/** A table of vectors, whose columns the QR iteration turns at once. */
template <class Table>
class turned_columns
{
public:
    turned_columns(Table& table, int rows) : table_(table), rows_(rows) {}

    void begin(int, int) {}
    void turn(int k, const rotation& turn) { turnAgainst(k, k + 1, turn); }
    void turnAgainst(int k, int fixed, const rotation& turn)
    {
        rotateRuns(rows_, columnOf(table_, k, 0), columnOf(table_, fixed, 0), turn.c, turn.s);
    }
    void negate(int k) { scaleBy(rows_, -1.0, columnOf(table_, k, 0)); }
    void swapWithNext(int k) { swapRuns(rows_, columnOf(table_, k, 0), columnOf(table_, k + 1, 0)); }

private:
    Table& table_;
    int rows_;
};

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
        if (shape_.wantsU) {
            makeU();
        }
        if (shape_.wantsV) {
            makeV();
        }
        turned_columns left(u_, n_);
        turned_columns right(v_, p_);
        return bidiagonal_qr(shape_, s_, e_.data(), left, right).run();
    }

private:
    [[nodiscard]] double e(int k) const { return e_[static_cast<std::size_t>(k)]; }
    void setE(int k, double value) { e_[static_cast<std::size_t>(k)] = value; }
    memory_run runOfE(int from) { return memory_run(e_.data() + from); }

    void bidiagonalise()
    {
        for (int l = 0; l < std::max(shape_.left, shape_.right); ++l) {
            if (l < shape_.left) {
                s_.set(l, -makeColumnReflector(n_ - l, columnOf(a_, l, l)));
            }
            for (int j = l + 1; j < p_; ++j) {
                if (l < shape_.left && isNorm(s_[l])) {
                    reflectRun(n_ - l, columnOf(a_, l, l), columnOf(a_, j, l));
                }
                setE(j, a_.get(l, j));
            }
            for (int i = l; shape_.wantsU && l < shape_.left && i < n_; ++i) {
                u_.set(i, l, a_.get(i, l));
            }
            if (l < shape_.right) {
                reflectRows(l);
            }
        }
        closeBidiagonal(shape_, a_, s_, e_.data());
    }

    void reflectRows(int l)
    {
        setE(l, -makeRowReflector(p_ - l - 1, runOfE(l + 1)));
        const int below = n_ - l - 1;
        if (below > 0 && isNorm(e(l))) {
            std::fill(work_.begin() + l + 1, work_.end(), 0.0);
            memory_run work(work_.data() + l + 1);
            for (int j = l + 1; j < p_; ++j) {
                addMultiple(below, e(j), columnOf(a_, j, l + 1), work);
            }
            for (int j = l + 1; j < p_; ++j) {
                addMultiple(below, -e(j) / e(l + 1), work, columnOf(a_, j, l + 1));
            }
        }
        for (int i = l + 1; shape_.wantsV && i < p_; ++i) {
            v_.set(i, l, e(i));
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
        for (int j = shape_.left; j < cols; ++j) {
            makeUnit(u_, n_, j);
        }
        for (int l = shape_.left - 1; l >= 0; --l) {
            if (!isNorm(s_[l])) {
                makeUnit(u_, n_, l);
                continue;
            }
            for (int j = l + 1; j < cols; ++j) {
                reflectRun(n_ - l, columnOf(u_, l, l), columnOf(u_, j, l));
            }
            scaleBy(n_ - l, -1.0, columnOf(u_, l, l));
            u_.set(l, l, 1.0 + u_.get(l, l));
            for (int i = 0; i < l; ++i) {
                u_.set(i, l, 0.0);
            }
        }
    }

    void makeV()
    {
        for (int l = p_ - 1; l >= 0; --l) {
            for (int j = l + 1; l < shape_.right && isNorm(e(l)) && j < p_; ++j) {
                reflectRun(p_ - l - 1, columnOf(v_, l, l + 1), columnOf(v_, j, l + 1));
            }
            makeUnit(v_, p_, l);
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
