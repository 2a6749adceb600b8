#include "linalg/products_packed.h"

#include "containers/packed_symmetric.h"
#include "containers/views.h"
#include "linalg/packed_sweep.h"
#include "linalg/product_forms.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

namespace
{

using korvel::holds;
using korvel::packedPlace;
using korvel::readVector;

/**
 * The part of S·x that `rows` rows of the triangle from `first` on give. Row r has the first r + 1 terms of
 * element r, and one more term of each element above it; so each number is read once.
 */
template <int rows>
void addRows(const double* packed, std::ptrdiff_t first, const double* __restrict x, double* __restrict y)
{
    const double* row[rows];
    double sum[rows]{};
    for (std::ptrdiff_t k = 0; k < rows; ++k) {
        row[k] = packed + (first + k) * (first + k + 1) / 2;
    }
    for (std::ptrdiff_t c = 0; c < first; ++c) {
        double above = y[c];
        for (int k = 0; k < rows; ++k) {
            sum[k] += row[k][c] * x[c];
            above += row[k][c] * x[first + k];
        }
        y[c] = above;
    }
    for (std::ptrdiff_t k = 0; k < rows; ++k) {
        for (std::ptrdiff_t c = first; c <= first + k; ++c) {
            sum[k] += row[k][c] * x[c];
        }
        for (std::ptrdiff_t c = first; c < first + k; ++c) {
            y[c] += row[k][c] * x[first + k];
        }
        y[first + k] = sum[k];
    }
}

void multiplyPacked(const double* packed, std::ptrdiff_t m, const double* x, double* y)
{
    constexpr int together = 4;
    std::ptrdiff_t first = 0;
    for (; first + together <= m; first += together) {
        addRows<together>(packed, first, x, y);
    }
    for (; first < m; ++first) {
        addRows<1>(packed, first, x, y);
    }
}

/** A packed table with both halves, column after column. */
matrix<double> unpacked(const double* packed, int order)
{
    matrix<double> full(order, order, 1);
    for (std::ptrdiff_t i = 0; i < order; ++i) {
        for (std::ptrdiff_t j = 0; j <= i; ++j) {
            full.data[i + order * j] = *packed;
            full.data[j + order * i] = *packed++;
        }
    }
    return full;
}

/** The lower triangle of the product of two tables whose packed elements all lie inside. */
void multiplyTriangles(const matrix<double>& A, const matrix<double>& B, int order, matrix<double>& C)
{
    const matrix<double> left = unpacked(A.data, order);
    const matrix<double> right = unpacked(B.data, order);
    matrix<double> full(order, order, 1);
    korvel::kernels::product form{order, order, order};
    form.left = {{left.data, order}, false};
    form.right = {{right.data, order}, true};
    form.result = {full.data, order};
    form.kept = korvel::kernels::part::lower;
    korvel::multiply(form);
    double* packed = C.data;
    for (std::ptrdiff_t i = 0; i < order; ++i) {
        for (std::ptrdiff_t j = 0; j <= i; ++j) {
            *packed++ = full.data[i + order * j];
        }
    }
    C.oobValue = packed[-1];
}

/** The row, counted from 1, of element `k` of a packed table, counted from 1. */
std::int64_t rowOfElement(int k)
{
    return static_cast<std::int64_t>(std::floor(std::sqrt(2.0 * k + 0.25) + 0.5 - 1e-12));
}

void multiplyTrianglesChecked(const matrix<double>& A, int n, const matrix<double>& B, int order,
                              matrix<double>& C)
{
    for (int k = 1; k <= n; ++k) {
        const std::int64_t i = rowOfElement(k);
        const std::int64_t j = k - i * (i - 1) / 2;
        double sum = 0.0;
        for (int l = 1; l <= order; ++l) {
            sum += A[packedPlace(i, l)] * B[packedPlace(l, j)];
        }
        korvel::storeChecked(C, k - 1, sum);
    }
}

} // namespace

void M_ProductASymV(matrix<double>* S, int m, matrix<double>* x, matrix<double>* y)
{
    const matrix<double>& packed = *S;
    const matrix<double>& vector = *x;
    if (m > 0 && holds(packed, packedPlace(m, m) + 1) && holds(vector, m) && holds(*y, m)) {
        multiplyPacked(packed.data, m, vector.data, y->data);
        y->oobValue = y->data[m - 1];
        return;
    }
    for (int i = 1; i <= m; ++i) {
        double sum = 0.0;
        for (int j = 1; j <= m; ++j) {
            sum += packed[packedPlace(i, j)] * vector[j - 1];
        }
        korvel::storeChecked(*y, i - 1, sum);
    }
}

void M_ProductVASym(matrix<double>* x, int m, matrix<double>* S, matrix<double>* y)
{
    M_ProductASymV(S, m, x, y);
}

double M_ProductTrVSymV(matrix<double>* v, int n, matrix<double>* S)
{
    return korvel::withCells(
        [n](auto vector, const auto& table) {
            double beside = 0.0;
            double diagonal = 0.0;
            for (int i = 0; i < n; ++i) {
                for (int j = i + 1; j < n; ++j) {
                    beside += vector[i] * vector[j] * table.get(j, i);
                }
                diagonal += vector[i] * vector[i] * table.get(i, i);
            }
            return 2.0 * beside + diagonal;
        },
        readVector(*v, n), korvel::reading(*S).table(n, n));
}

void MV_ProductAsymBsym(matrix<double>* A, int n, matrix<double>* B, matrix<double>* C)
{
    // Beyond this order the 1e-12 of the rule is lost in rounding, and the last element of a row counts to
    // the next.
    constexpr int lastExactOrder = 16383;
    const int order = n < 1 ? 0 : static_cast<int>(std::floor(std::sqrt(2.0 * n)));
    const bool whole = order > 0 && order <= lastExactOrder && n == korvel::packedElements(order);
    if (whole && holds(*A, n) && holds(*B, n) && holds(*C, n)) {
        multiplyTriangles(*A, *B, order, *C);
    } else {
        multiplyTrianglesChecked(*A, n, *B, order, *C);
    }
}
