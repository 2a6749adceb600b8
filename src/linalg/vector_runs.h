/**
 * @file
 * The vector kernels on runs of elements, whatever they are stored in: element k of a run is read by `x[k]`
 * and stored by `x.set(k, value)`.
 */
#ifndef KORVEL_LINALG_VECTOR_RUNS_H
#define KORVEL_LINALG_VECTOR_RUNS_H

#include <cmath>

namespace korvel
{

/**
 * Elements of one column of a table, from a row on, so many rows apart; all from 0. `Cells` is a view, or a
 * reference to an accessor.
 */
template <class Cells>
class column_run
{
public:
    column_run(Cells cells, int row, int col, int step = 1) : cells_(cells), row_(row), col_(col), step_(step)
    {
    }

    double operator[](int k) const { return cells_.get(row_ + k * step_, col_); }
    void set(int k, double value) { cells_.set(row_ + k * step_, col_, value); }

private:
    Cells cells_;
    int row_;
    int col_;
    int step_;
};

/** Elements that stand one behind the other. */
class memory_run
{
public:
    explicit memory_run(double* first) : first_(first) {}

    double operator[](int k) const { return first_[k]; }
    void set(int k, double value) { first_[k] = value; }

private:
    double* first_;
};

/** The Euclidean norm by a scaled sum of squares. */
template <class X>
[[nodiscard]] double lengthOf(int n, const X& x)
{
    if (n < 1) {
        return 0.0;
    }
    if (n == 1) {
        return std::fabs(x[0]);
    }
    double scale = 0.0;
    double squares = 1.0;
    for (int k = 0; k < n; ++k) {
        if (x[k] != 0.0) {
            const double a = std::fabs(x[k]);
            if (a > scale) {
                const double q = scale / a;
                squares = 1.0 + squares * (q * q);
                scale = a;
            } else {
                const double q = a / scale;
                squares += q * q;
            }
        }
    }
    return scale * std::sqrt(squares);
}

template <class X>
void scaleBy(int n, double a, X x)
{
    for (int k = 0; k < n; ++k) {
        x.set(k, a * x[k]);
    }
}

/** y = ax + y, unless a is 0. */
template <class X, class Y>
void addMultiple(int n, double a, const X& x, Y y)
{
    for (int k = 0; a != 0.0 && k < n; ++k) {
        y.set(k, a * x[k] + y[k]);
    }
}

template <class X, class Y>
[[nodiscard]] double innerProduct(int n, const X& x, const Y& y)
{
    double sum = 0.0;
    for (int k = 0; k < n; ++k) {
        sum += x[k] * y[k];
    }
    return sum;
}

template <class X, class Y>
void swapRuns(int n, X x, Y y)
{
    for (int k = 0; k < n; ++k) {
        const double before = x[k];
        x.set(k, y[k]);
        y.set(k, before);
    }
}

template <class X, class Y>
void rotateRuns(int n, X x, Y y, double c, double s)
{
    for (int k = 0; k < n; ++k) {
        const double turned = c * x[k] + s * y[k];
        y.set(k, c * y[k] - s * x[k]);
        x.set(k, turned);
    }
}

} // namespace korvel

#endif
