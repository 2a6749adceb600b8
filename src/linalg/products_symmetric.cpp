#include "linalg/products_symmetric.h"

#include "containers/conversion.h"
#include "linalg/clear_result.h"
#include "linalg/product_forms.h"
#include "platform/wrapping.h"

#include <algorithm>
#include <type_traits>
#include <utility>

namespace
{

using korvel::clearResult;
using korvel::formSymmetricProduct;
using korvel::term_factors;
using korvel::withCells;
using korvel::wrappedProduct;

template <class T>
T converted(double sum)
{
    if constexpr (std::is_same_v<T, int>) {
        return korvel::truncateToInt(sum);
    } else {
        return sum;
    }
}

/** Which way a table of integers is summed. */
enum class summed { along, down };

/** The symmetric product of a table of integers with itself. */
template <class T>
void multiplyIntegers(const matrix<int>& A, int rows, int cols, summed way, matrix<T>& C)
{
    const bool down = way == summed::down;
    const int order = down ? cols : rows;
    const int depth = down ? rows : cols;
    clearResult(C, order, order);
    withCells(
        [=](auto& from, auto& to) {
            for (int i = 0; i < order; ++i) {
                for (int j = i; j < order; ++j) {
                    double sum = 0.0;
                    for (int k = 0; k < depth; ++k) {
                        sum += down ? wrappedProduct(from.get(k, i), from.get(k, j))
                                    : wrappedProduct(from.get(i, k), from.get(j, k));
                    }
                    to.set(i, j, converted<T>(sum));
                    to.set(j, i, converted<T>(sum));
                }
            }
        },
        korvel::reading(A).table(rows, cols), korvel::writing(C).table(order, order));
}

} // namespace

void M_ProductTrAA(matrix<double>* A, int n, int p, matrix<double>* C)
{
    clearResult(*C, p, p);
    formSymmetricProduct(korvel::down(std::as_const(*A), p), n, *C);
}

void M_ProductTrAA(matrix<double>* A, int n, int p, matrix<int>* C)
{
    clearResult(*C, p, p);
    matrix<double> sums(std::max(p, 0), p, 0.0);
    formSymmetricProduct(korvel::down(std::as_const(*A), p), n, sums);
    for (int i = 0; i < p; ++i) {
        for (int j = i; j < p; ++j) {
            const int sum = korvel::truncateToInt(sums.getElement(i, j));
            C->setElement(i, j, sum);
            C->setElement(j, i, sum);
        }
    }
}

void M_ProductTrAA(matrix<int>* A, int n, int p, matrix<double>* C)
{
    multiplyIntegers(*A, n, p, summed::down, *C);
}

void M_ProductTrAA(matrix<int>* A, int n, int p, matrix<int>* C)
{
    multiplyIntegers(*A, n, p, summed::down, *C);
}

void M_ProductATrA(matrix<double>* A, int n, int p, matrix<double>* C)
{
    clearResult(*C, n, n);
    formSymmetricProduct(korvel::along(std::as_const(*A), n), p, *C);
}

void M_ProductATrA(matrix<int>* A, int n, int p, matrix<double>*& C)
{
    multiplyIntegers(*A, n, p, summed::along, *C);
}

void M_ProductADTrA(matrix<double>* A, int n, int p, matrix<double>* D, matrix<double>* C)
{
    clearResult(*C, n, n);
    formSymmetricProduct(korvel::along(std::as_const(*A), n), p, *C, term_factors::diagonal(*D));
}

void M_ProductTrADA(matrix<double>* A, int n, int p, matrix<double>* D, matrix<double>* C)
{
    clearResult(*C, p, p);
    formSymmetricProduct(korvel::down(std::as_const(*A), p), n, *C, term_factors::diagonal(*D));
}

void M_ProductTrADiagVA(matrix<double>* A, int n, int p, matrix<double>* d, matrix<double>* C)
{
    formSymmetricProduct(korvel::down(std::as_const(*A), p), n, *C, term_factors::vector(*d));
}

void M_ProductADiagVTrA(matrix<double>* A, int n, int p, matrix<double>* d, matrix<double>* C)
{
    formSymmetricProduct(korvel::along(std::as_const(*A), n), p, *C, term_factors::vector(*d));
}
