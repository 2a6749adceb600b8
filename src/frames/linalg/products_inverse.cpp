#include "frames/linalg/products_inverse.h"

#include "frames/frame.h"
#include "linalg/products_inverse.h"

using namespace korvel;

int VB_M_ProductTrAinvBA(const double* a, int n, int p, const double* b, short int symmetric, double* c)
{
    auto outer = frame::copyIn(a, n, p);
    auto inner = frame::copyIn(b, n, n);
    auto product = frame::borrow(c, p, p);
    M_ProductTrAinvBA(&outer, n, p, &inner, symmetric, &product);
    return 0;
}

int VB_M_ProductAinvBTrA(const double* a, int n, int p, const double* b, double* c)
{
    auto outer = frame::copyIn(a, n, p);
    auto inner = frame::copyIn(b, p, p);
    auto product = frame::borrow(c, n, n);
    M_ProductAinvBTrA(&outer, n, p, &inner, &product);
    return 0;
}

double VB_M_ProductTrVinvBV(const double* v, int n, const double* b)
{
    auto vector = frame::borrow(v, n);
    auto table = frame::borrow(b, n, n);
    return M_ProductTrVinvBV(&vector, n, &table);
}
