#include "linalg/square_roots.h"

#include "linalg/products.h"
#include "linalg/products_symmetric.h"
#include "linalg/root_factor.h"
#include "linalg/symmetric_eigen.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr double tooNegative = -1e-12;

} // namespace

int korvel::formRootFactor(const matrix<double>& values, matrix<double>& vectors, int n, matrix<double>& R)
{
    matrix<double> scales;
    M_ProductTrAA(&vectors, n, n, &scales);
    for (int i = 0; i < n; ++i) {
        const double squaredLength = scales.getElement(i, i);
        if (squaredLength <= 0.0) {
            return -2;
        }
        if (values[i] <= tooNegative) {
            return -1;
        }
        scales.setElement(i, i, 1.0 / std::sqrt(squaredLength) * std::sqrt(std::max(values[i], 0.0)));
    }
    M_ProductATrB(&scales, n, n, &vectors, n, &R);
    return 0;
}

int M_SquareRoot(matrix<double>* A, int n, matrix<double>* R)
{
    matrix<double> values;
    matrix<double> vectors;
    const int status = M_Eigen(*A, values, vectors, n, -1);
    return status < 0 ? status : korvel::formRootFactor(values, vectors, n, *R);
}

int M_SquareRoot(matrixSparse* A, int n, matrix<double>* R)
{
    matrix<double> dense = A->to_matrix();
    return M_SquareRoot(&dense, n, R);
}

void M_SquareRootSDP(matrix<double> const& A, int n, matrix<double>& R)
{
    matrix<double> values;
    matrix<double> vectors;
    if (M_Eigen(A, values, vectors, n, 0) < 0) {
        return;
    }
    std::transform(values.data, values.data + values.nbElem, values.data,
                   [](double d) { return std::sqrt(std::max(d, 0.0)); });
    M_ProductADiagVTrA(&vectors, n, n, &values, &R);
}
