#include "frames/linalg/products.h"

#include "frames/frame.h"
#include "linalg/products.h"

using namespace korvel;

int VB_M_ProductAB(const double* a, int n, int p, const double* b, int q, double* c)
{
    auto left = frame::copyIn(a, n, p);
    auto right = frame::copyIn(b, p, q);
    auto product = frame::borrow(c, n, q);
    return M_ProductAB(left, n, p, right, q, product);
}

int VB_M_ProductABLng(const int* a, int n, int p, const int* b, int q, int* c)
{
    auto left = frame::copyIn(a, n, p);
    auto right = frame::copyIn(b, p, q);
    auto product = frame::borrow(c, n, q);
    return M_ProductAB(&left, n, p, &right, q, &product);
}

int VB_M_ProductTrAB(const double* a, int n, int p, const double* b, int q, double* c)
{
    auto left = frame::copyIn(a, n, p);
    auto right = frame::copyIn(b, n, q);
    auto product = frame::borrow(c, p, q);
    auto* result = &product;
    M_ProductTrAB(&left, n, p, &right, q, result);
    return 0;
}

int VB_M_ProductATrB(const double* a, int n, int p, const double* b, int m, double* c)
{
    auto left = frame::copyIn(a, n, p);
    auto right = frame::copyIn(b, m, p);
    auto product = frame::borrow(c, n, m);
    M_ProductATrB(&left, n, p, &right, m, &product);
    return 0;
}

int VB_M_ProductADiagVB(const double* a, int n, int p, const double* d, const double* b, int q, double* c)
{
    auto left = frame::copyIn(a, n, p);
    auto diagonal = frame::copyIn(d, p);
    auto right = frame::copyIn(b, p, q);
    auto product = frame::borrow(c, n, q);
    M_ProductADiagVB(&left, n, p, &diagonal, &right, q, &product);
    return 0;
}

int VB_M_ProductADiagVTrB(const double* a, int n, int p, const double* d, const double* b, int m, double* c)
{
    auto left = frame::copyIn(a, n, p);
    auto diagonal = frame::copyIn(d, p);
    auto right = frame::copyIn(b, m, p);
    auto product = frame::borrow(c, n, m);
    M_ProductADiagVTrB(&left, n, p, &diagonal, &right, m, &product);
    return 0;
}
