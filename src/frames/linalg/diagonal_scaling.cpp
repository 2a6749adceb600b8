#include "frames/linalg/diagonal_scaling.h"

#include "frames/frame.h"
#include "linalg/diagonal_scaling.h"

using namespace korvel;

int VB_M_ProductADiag(const double* a, int n, int p, const double* d, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto diagonal = frame::copyIn(d, p, p);
    auto result = frame::borrow(c, n, p);
    M_ProductADiag(&table, n, p, &diagonal, &result);
    return 0;
}

int VB_M_ProductTrADiag(const double* a, int n, int p, const double* d, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto diagonal = frame::copyIn(d, n, n);
    auto result = frame::borrow(c, p, n);
    M_ProductTrADiag(&table, n, p, &diagonal, &result);
    return 0;
}

int VB_M_ProductADiagV(const double* a, int n, int p, const double* d, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto diagonal = frame::copyIn(d, p);
    auto result = frame::borrow(c, n, p);
    M_ProductADiagV(&table, n, p, &diagonal, &result);
    return 0;
}

int VB_M_ProductDiagVA(const double* d, int n, const double* a, int p, double* c)
{
    auto diagonal = frame::copyIn(d, n);
    auto table = frame::copyIn(a, n, p);
    auto result = frame::borrow(c, n, p);
    M_ProductDiagVA(&diagonal, n, &table, p, &result);
    return 0;
}

int VB_M_ProductDiagV1ADiagV2(const double* d1, int n, const double* a, int p, const double* d2, double* c)
{
    auto left = frame::copyIn(d1, n);
    auto table = frame::copyIn(a, n, p);
    auto right = frame::copyIn(d2, p);
    auto result = frame::borrow(c, n, p);
    M_ProductDiagV1ADiagV2(&left, n, &table, p, &right, &result);
    return 0;
}

int VB_M_ProductTrADiagV(const double* a, int n, int p, const double* d, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto diagonal = frame::copyIn(d, n);
    auto result = frame::borrow(c, p, n);
    M_ProductTrADiagV(&table, n, p, &diagonal, &result);
    return 0;
}
