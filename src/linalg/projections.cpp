#include "linalg/projections.h"

#include "containers/views.h"
#include "linalg/cone_projection.h"
#include "linalg/inverse1.h"
#include "linalg/products_triple.h"
#include "linalg/square_roots.h"
#include "tables/duplicate.h"

void M_SProject(matrix<double>* A, int n, matrix<double>* W, matrix<double>* X)
{
    if (n < 1) {
        return;
    }
    matrix<double> root(n, n, 0.0);
    matrix<double> inverse(n, n, 0.0);
    M_SquareRoot(W, n, &root);
    short int singular = 0;
    Inverse1(&root, &inverse, &singular, 1e-6);
    matrix<double> between(n, n, 0.0);
    M_ProductABC(&root, n, n, A, n, &root, n, &between);
    matrix<double> projection(n, n, 0.0);
    korvel::cone_projection().form(between, n, projection);
    M_ProductABC(&inverse, n, n, &projection, n, &inverse, n, X);
}

void M_UProject(matrix<double>* A, int n, matrix<double>* X)
{
    M_Duplicate(A, n, n, X, n, n, 1, 1);
    for (int i = 0; i < n; ++i) {
        X->setElement(i, i, 1.0);
    }
}

void M_UProjectSPV(matrix<double>* A, int n, matrix<double>** X)
{
    M_DuplicateSPV2(A, n, n, X, n, n, 1, 1);
    for (int i = 0; i < n; ++i) {
        korvel::writing(X).set(i, i, 1.0);
    }
}

void M_UProjectSPV_T(matrix<double>* A, int n, matrix3D<matrix<double>>* X)
{
    M_DuplicateSPV2_T(A, n, n, X, n, n, 1, 1);
    for (int i = 0; i < n; ++i) {
        X->setElement(i, 0, 1.0);
    }
}
