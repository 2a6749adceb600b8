#include "frames/linalg/products_symmetric.h"

#include "frames/frame.h"
#include "linalg/products_symmetric.h"

using namespace korvel;

int VB_M_ProductTrAA(const double* a, int n, int p, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto product = frame::borrow(c, p, p);
    M_ProductTrAA(&table, n, p, &product);
    return 0;
}

int Cpp_M_ProductTrAALng(const int* a, int n, int p, int* c)
{
    auto table = frame::copyIn(a, n, p);
    auto product = frame::borrow(c, p, p);
    M_ProductTrAA(&table, n, p, &product);
    return 0;
}

int VB_M_ProductATrA(const double* a, int n, int p, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto product = frame::borrow(c, n, n);
    M_ProductATrA(&table, n, p, &product);
    return 0;
}

int VB_M_ProductADTrA(const double* a, int n, int p, const double* d, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto diagonal = frame::copyIn(d, p, p);
    auto product = frame::borrow(c, n, n);
    M_ProductADTrA(&table, n, p, &diagonal, &product);
    return 0;
}

int VB_M_ProductTrADA(const double* a, int n, int p, const double* d, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto diagonal = frame::copyIn(d, n, n);
    auto product = frame::borrow(c, p, p);
    M_ProductTrADA(&table, n, p, &diagonal, &product);
    return 0;
}

int VB_M_ProductTrADiagVA(const double* a, int n, int p, const double* d, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto diagonal = frame::copyIn(d, n);
    auto product = frame::borrow(c, p, p);
    M_ProductTrADiagVA(&table, n, p, &diagonal, &product);
    return 0;
}

int VB_M_ProductADiagVTrA(const double* a, int n, int p, const double* d, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto diagonal = frame::copyIn(d, p);
    auto product = frame::borrow(c, n, n);
    M_ProductADiagVTrA(&table, n, p, &diagonal, &product);
    return 0;
}
