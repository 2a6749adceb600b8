#include "frames/linalg/vector_products.h"

#include "frames/frame.h"
#include "linalg/vector_products.h"

using namespace korvel;

double VB_V_ProductTrV1V2(const double* x1, int n, const double* x2)
{
    auto left = frame::borrow(x1, n);
    auto right = frame::borrow(x2, n);
    return V_ProductTrV1V2(&left, n, &right);
}

int VB_V_ProductV1V2(const double* x1, int n, const double* x2, double* y)
{
    auto left = frame::copyIn(x1, n);
    auto right = frame::copyIn(x2, n);
    auto result = frame::borrow(y, n);
    V_ProductV1V2(&left, n, &right, &result);
    return 0;
}

int VB_V_ProductV1V22(double* x1, int n, const double* x2)
{
    auto left = frame::borrow(x1, n);
    auto right = frame::copyIn(x2, n);
    V_ProductV1V22(&left, n, &right);
    return 0;
}

int VB_V_ProductV1TrV2(const double* x1, int n, const double* x2, double* c)
{
    auto left = frame::copyIn(x1, n);
    auto right = frame::copyIn(x2, n);
    auto result = frame::borrow(c, n, n);
    V_ProductV1TrV2(&left, n, &right, &result);
    return 0;
}

double VB_V_Product1toNDbl(const double* v, int n)
{
    auto vector = frame::borrow(v, n);
    return V_Product1toN(&vector, n);
}

double VB_V_Product1toNLng(const int* v, int n)
{
    auto vector = frame::borrow(v, n);
    return V_Product1toN(&vector, n);
}
