#include "linalg/products_design.h"

#include "containers/map_cells.h"
#include "linalg/every_product.h"
#include "platform/counts.h"
#include "statistics/stand_ins.h"
#include "tables/block_copy.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

using korvel::productOfCounts;
using korvel::reading;
using korvel::withCells;
using korvel::writing;

constexpr double eps = std::numeric_limits<double>::epsilon();

/** The sizes of a design and of what multiplies it. */
struct design {
    int n;
    int colsA;
    int colsB;
    int type;

    [[nodiscard]] bool codesEffects() const { return type >= 5; }
    [[nodiscard]] bool scalesNegatives() const { return type == 6; }
};

/** What a cell gets when both factors count, and what is carried on from one cell to the next when not. */
class carried_value
{
public:
    [[nodiscard]] double get() const { return last_; }

    void take(double product, bool plain)
    {
        if (plain) {
            last_ = product;
        } else if (product > eps) {
            last_ = 1.0;
        }
    }

private:
    double last_ = 0.0;
};

/** Calls `product(i, j, column)` for each pair of columns, in the order of the columns that they make. */
template <class Product>
void forEachPair(int colsA, int colsB, Product product)
{
    int c = 0;
    for (int i = 0; i < colsA; ++i) {
        for (int j = 0; j < colsB; ++j) {
            product(i, j, c++);
        }
    }
}

template <class Cells, class Factors>
void formInteractions(const design& d, const matrix<double>& before, const Factors& b, Cells& a)
{
    constexpr int none = -1;
    carried_value carried;
    int reference = none;
    forEachPair(d.colsA, d.colsB, [&](int i, int j, int c) {
        const bool plain = !d.codesEffects() || c == 0;
        bool any = false;
        for (int r = 0; r < d.n; ++r) {
            const double x = before.getElement(r, i);
            const double y = b.get(r, j);
            if (x > eps && y > eps) {
                any = true;
                carried.take(x * y, plain);
            }
            a.set(r, c, carried.get());
            if (reference != none && d.codesEffects() && std::fabs(a.get(r, reference) - 1.0) < 1e-12) {
                a.set(r, c, -1.0);
            }
        }
        if (any && reference == none) {
            reference = c;
        }
        for (int r = 0; !any && r < d.n; ++r) {
            a.set(r, c, 0.0);
        }
    });
}

template <class Weights, class Cells, class Sums>
void scaleNegatives(const design& d, int cols, const Weights& weights, Cells& a, Sums& sums)
{
    for (int c = 0; c < cols; ++c) {
        double pos = 0.0;
        double neg = 0.0;
        for (int r = 0; r < d.n; ++r) {
            const double cell = a.get(r, c);
            if (cell > eps) {
                pos += weights[r];
            } else if (cell < -eps) {
                neg += weights[r];
            }
        }
        for (int r = 0; d.scalesNegatives() && neg > eps && r < d.n; ++r) {
            if (a.get(r, c) < -eps) {
                a.set(r, c, -pos / neg);
            }
        }
        sums.set(c, pos);
    }
}

template <class Cell>
void multiplyColumns(const matrix<double>& A, int n, int colsA, const matrix<double>& B, int colsB,
                     matrix<double>& C, Cell cell)
{
    forEachPair(colsA, colsB, [&](int i, int j, int c) {
        withCells(
            [&](auto left, auto right, auto& out) {
                for (int r = 0; r < n; ++r) {
                    out.set(r, cell(left[r], right[r]));
                }
            },
            reading(A).column(i, n), reading(B).column(j, n), writing(C).column(c, n));
    });
}

} // namespace

void M_ProductDesignAB2(matrix<double>* A, int n, int& colsA, matrix<double>* B, int colsB, int type,
                        matrix<double>* weights, matrix<double>* sums)
{
    const design d{n, colsA, colsB, type};
    const int cols = productOfCounts(colsA, colsB);
    matrix<double> before(std::max(n, 0), std::max(colsA, 1), 0.0);
    korvel::copyBlock(reading(*A), {}, writing(before), {}, n, colsA);
    withCells([&](auto& a, const auto& b) { formInteractions(d, before, b, a); }, writing(*A).table(n, cols),
              reading(*B).table(n, colsB));
    const auto a = writing(*A).table(n, cols);
    const auto results = korvel::writeVector(*sums, cols);
    if (weights != nullptr) {
        withCells([&](auto& cells, auto factors, auto& pos) { scaleNegatives(d, cols, factors, cells, pos); },
                  a, korvel::readVector(*weights, n), results);
    } else {
        withCells(
            [&](auto& cells, auto& pos) { scaleNegatives(d, cols, korvel::unit_weights{}, cells, pos); }, a,
            results);
    }
    colsA = cols;
}

void M_ProductHorizAB(matrix<double>* A, int n, int colsA, matrix<double>* B, int colsB, matrix<double>*& C,
                      int)
{
    C->Redim(std::max(n, 0), productOfCounts(colsA, colsB));
    multiplyColumns(*A, n, colsA, *B, colsB, *C, [](double a, double b) { return a * b; });
}

void M_ProductHorizAB2(matrix<double>* A, int n, int& colsA, matrix<double>* B, int colsB)
{
    const int cols = productOfCounts(colsA, colsB);
    matrix<double> products(std::max(n, 0), cols, 0.0);
    multiplyColumns(*A, n, colsA, *B, colsB, products, [](double a, double b) {
        return a == MISSING_DBL || b == MISSING_DBL ? MISSING_DBL : a * b;
    });
    korvel::copyBlock(reading(products), {}, writing(*A), {}, n, cols);
    colsA = cols;
}

void V_ProductHorizV1V22(matrix<double>* x, int& n, matrix<double>* y, int m)
{
    const matrix<double>& left = *x;
    const matrix<double>& right = *y;
    const int count = productOfCounts(n, m);
    matrix<double> products(count, 1, 1);
    if (korvel::holds(left, n) && korvel::holds(right, m)) {
        korvel::storeEveryProduct(left.data, n, right.data, m, products.data);
    } else {
        forEachPair(n, m, [&](int i, int j, int k) { products.data[k] = left[i] * right[j]; });
    }
    matrix<double>* const from = &products; // as a chunk, which is reached by linear index
    korvel::copyBlock(reading(&from), {}, writing(&x), {}, count, 1);
    n = count;
}
