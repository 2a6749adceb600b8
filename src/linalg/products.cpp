#include "linalg/products.h"

#include "linalg/clear_result.h"
#include "linalg/product_forms.h"
#include "linalg/team.h"
#include "platform/wrapping.h"

namespace
{

using korvel::along;
using korvel::clearResult;
using korvel::down;
using korvel::formProduct;
using korvel::term_factors;
using korvel::workers;
using korvel::wrappedProduct;
using korvel::wrappedSum;

/** The checked form of the column update: columns of A times an element of B are added to a column of C. */
void addProductChecked(const matrix<double>& A, int n, int p, const matrix<double>& B, int q,
                       matrix<double>& C)
{
    for (int j = 0; j < q; ++j) {
        for (int k = 0; k < p; ++k) {
            const double factor = B.getElement(k, j);
            for (int i = 0; i < n; ++i) {
                C.setElement(i, j, C.getElement(i, j) + factor * A.getElement(i, k));
            }
        }
    }
}

/** Rows of C = A·B for the integers that lie inside, column after column. */
void multiplyRows(const matrix<int>& A, korvel::stretch rows, int p, const matrix<int>& B, int q,
                  matrix<int>& C)
{
    for (std::ptrdiff_t j = 0; j < q; ++j) {
        int* const sums = C.data + j * C.nbrows + rows.first;
        std::fill_n(sums, rows.count, 0);
        for (std::ptrdiff_t k = 0; k < p; ++k) {
            const int factor = B.data[k + j * B.nbrows];
            const int* const column = A.data + k * A.nbrows + rows.first;
            for (std::ptrdiff_t i = 0; i < rows.count; ++i) {
                sums[i] = wrappedSum(sums[i], wrappedProduct(column[i], factor));
            }
        }
    }
}

void multiplyChecked(const matrix<int>& A, int n, int p, const matrix<int>& B, int q, matrix<int>& C)
{
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < q; ++j) {
            int sum = 0;
            for (int k = 0; k < p; ++k) {
                sum = wrappedSum(sum, wrappedProduct(A.getElement(i, k), B.getElement(k, j)));
            }
            C.setElement(i, j, sum);
        }
    }
}

template <class T>
bool allInside(const matrix<T>& A, int n, int p, const matrix<T>& B, int q, const matrix<T>& C)
{
    return n <= A.nbrows && p <= A.nbcols && p <= B.nbrows && q <= B.nbcols && n <= C.nbrows && q <= C.nbcols;
}

} // namespace

int M_ProductAB(const matrix<double>& A, int n, int p, const matrix<double>& B, int q, matrix<double>& C)
{
    // A result of just these rows is written whole by the kernel and needs no zeros first, unless an operand
    // is its array, which the rule sets to zeros too.
    const bool writtenWhole =
        p > 0 && C.nbrows == n && C.data != A.data && C.data != B.data && allInside(A, n, p, B, q, C);
    if (!writtenWhole) {
        clearResult(C, n, q);
    }
    if (n < 1 || p < 1 || q < 1) {
        return 0;
    }
    if (!allInside(A, n, p, B, q, C)) {
        addProductChecked(A, n, p, B, q, C);
        return 0;
    }
    korvel::kernels::product form{n, q, p};
    form.left = {{A.data, A.nbrows}, false};
    form.right = {{B.data, B.nbrows}, true};
    form.result = {C.data, C.nbrows};
    form.onto = !writtenWhole;
    korvel::multiplyInTeam(form, korvel::shared_out::columns);
    return 0;
}

int M_ProductAB(matrix<int>* A, int n, int p, matrix<int>* B, int q, matrix<int>* C)
{
    clearResult(*C, n, q);
    if (allInside(*A, n, p, *B, q, *C)) {
        korvel::inTeam(n, [&](int, korvel::stretch rows) { multiplyRows(*A, rows, p, *B, q, *C); });
    } else {
        multiplyChecked(*A, n, p, *B, q, *C);
    }
    return 0;
}

int M_ProductABSPV(matrix<double>** A, int n, int p, matrix<double>* B, int q, matrix<double>*& C)
{
    clearResult(*C, n, q);
    formProduct(along(A, n), down(*B, q), p, *C, workers::team);
    return 0;
}

int M_ProductABSPV2(matrix<double>** A, int n, int p, matrix<double>** B, int q, matrix<double>** C)
{
    formProduct(along(A, n), down(B, q), p, C, workers::team);
    return 0;
}

void M_ProductTrAB(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>*& C)
{
    clearResult(*C, p, q);
    formProduct(down(*A, p), down(*B, q), n, *C);
}

void M_ProductATrB(matrix<double>* A, int n, int p, matrix<double>* B, int m, matrix<double>* C)
{
    clearResult(*C, n, m);
    formProduct(along(*A, n), along(*B, m), p, *C);
}

void M_ProductATrBSPV(matrix<double>* A, int n, int p, matrix<double>* B, int m, matrix3D<matrix<double>>* C)
{
    formProduct(along(*A, n), along(*B, m), p, *C);
}

void M_ProductADiagVB(matrix<double>* A, int n, int p, matrix<double>* d, matrix<double>* B, int q,
                      matrix<double>* C)
{
    formProduct(along(*A, n), down(*B, q), p, *C, workers::caller, term_factors::vector(*d));
}

void M_ProductADiagVTrB(matrix<double>* A, int n, int p, matrix<double>* d, matrix<double>* B, int m,
                        matrix<double>* C)
{
    formProduct(along(*A, n), along(*B, m), p, *C, workers::caller, term_factors::vector(*d));
}
