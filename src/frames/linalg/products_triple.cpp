#include "frames/linalg/products_triple.h"

#include "frames/frame.h"
#include "linalg/products_triple.h"

using namespace korvel;

int VB_M_ProductABTrA(const double* a, int n, int p, const double* b, short int symmetric, double* c)
{
    auto outer = frame::copyIn(a, n, p);
    auto inner = frame::copyIn(b, p, p);
    auto product = frame::borrow(c, n, n);
    M_ProductABTrA(&outer, n, p, &inner, symmetric, &product);
    return 0;
}

int VB_M_ProductTrABA(const double* a, int n, int p, const double* b, short int symmetric, double* c)
{
    auto outer = frame::copyIn(a, n, p);
    auto inner = frame::copyIn(b, n, n);
    auto product = frame::borrow(c, p, p);
    M_ProductTrABA(&outer, n, p, &inner, symmetric, &product);
    return 0;
}

int VB_M_ProductABC(const double* a, int n, int p, const double* b, int q, const double* c, int r, double* d)
{
    auto first = frame::copyIn(a, n, p);
    auto second = frame::copyIn(b, p, q);
    auto third = frame::copyIn(c, q, r);
    auto product = frame::borrow(d, n, r);
    M_ProductABC(&first, n, p, &second, q, &third, r, &product);
    return 0;
}

int VB_M_ProductTrABC(const double* a, int n, int p, const double* b, int q, const double* c, int r,
                      double* d)
{
    auto first = frame::copyIn(a, n, p);
    auto second = frame::copyIn(b, n, q);
    auto third = frame::copyIn(c, q, r);
    auto product = frame::borrow(d, p, r);
    M_ProductTrABC(&first, n, p, &second, q, &third, r, &product);
    return 0;
}

int VB_M_ProductATrBC(const double* a, int n, int p, const double* b, int q, const double* c, int r,
                      double* d)
{
    auto first = frame::copyIn(a, n, p);
    auto second = frame::copyIn(b, q, p);
    auto third = frame::copyIn(c, q, r);
    auto product = frame::borrow(d, n, r);
    M_ProductATrBC(&first, n, p, &second, q, &third, r, &product);
    return 0;
}

int Cpp_M_ProductTrABV(const double* a, int n, int p, const double* b, int q, const double* v, double* y)
{
    auto first = frame::copyIn(a, n, p);
    auto second = frame::copyIn(b, n, q);
    auto vector = frame::copyIn(v, q);
    auto product = frame::borrow(y, p);
    M_ProductTrABV(&first, n, p, &second, q, &vector, &product);
    return 0;
}
