#include "linalg/products_kronecker.h"

#include "containers/views.h"
#include "linalg/every_product.h"

#include <cstddef>
#include <cstdint>

namespace
{

using korvel::reading;

/** The product of tables whose cells all lie inside: column after column is written. */
void multiplyColumns(const matrix<double>& A, int r1, int c1, const matrix<double>& B, int r2, int c2,
                     matrix<double>& C)
{
    double* column = C.data;
    for (std::ptrdiff_t j = 0; j < c1; ++j) {
        for (std::ptrdiff_t l = 0; l < c2; ++l) {
            korvel::storeEveryProduct(A.data + A.nbrows * j, r1, B.data + B.nbrows * l, r2, column);
            column += C.nbrows;
        }
    }
    C.oobValue = column[-1];
}

void multiplyChecked(const matrix<double>& A, int r1, int c1, const matrix<double>& B, int r2, int c2,
                     matrix<double>& C)
{
    for (int j = 0; j < c1; ++j) {
        for (int l = 0; l < c2; ++l) {
            for (int i = 0; i < r1; ++i) {
                for (int k = 0; k < r2; ++k) {
                    C.setElement(i * r2 + k, j * c2 + l, A.getElement(i, j) * B.getElement(k, l));
                }
            }
        }
    }
}

} // namespace

void KroneckerTensorProduct(matrix<double>* A, int r1, int c1, matrix<double>* B, int r2, int c2,
                            matrix<double>* C)
{
    if (C->nbrows != std::int64_t{r1} * r2 || C->nbcols != std::int64_t{c1} * c2) {
        return;
    }
    if (r1 < 1 || c1 < 1 || r2 < 1 || c2 < 1) {
        return;
    }
    if (reading(*A).table(r1, c1).inside() && reading(*B).table(r2, c2).inside()) {
        multiplyColumns(*A, r1, c1, *B, r2, c2, *C);
    } else {
        multiplyChecked(*A, r1, c1, *B, r2, c2, *C);
    }
}
