#include "linalg/spectral_norm.h"

#include "linalg/products.h"
#include "linalg/symmetric_eigen.h"
#include "tables/transpose.h"

#include <cmath>
#include <utility>

double getNorm2(matrix<double>* A)
{
    const int rows = A->nbrows;
    const int cols = A->nbcols;
    if (cols == 1) {
        double squares = 0.0;
        for (int i = 0; i < rows; ++i) {
            squares += A->data[i] * A->data[i];
        }
        return std::sqrt(squares);
    }
    matrix<double> transposed;
    M_Transpose(*A, rows, cols, transposed);
    matrix<double> product;
    M_ProductAB(*A, rows, cols, transposed, rows, product);
    matrix<double> values;
    matrix<double> vectors;
    M_Eigen(product, values, vectors, rows, -1);
    const double largest = std::as_const(values)[0];
    return largest < 0.0 ? MISSING_DBL : std::sqrt(largest);
}
