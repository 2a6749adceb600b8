#include "frames/linalg/products_table_vector.h"

#include "frames/frame.h"
#include "linalg/products_table_vector.h"

using namespace korvel;

int VB_M_ProductBV(const double* b, int n, int p, const double* v, double* y)
{
    auto table = frame::copyIn(b, n, p);
    auto vector = frame::copyIn(v, p);
    auto product = frame::borrow(y, n);
    return M_ProductBV(&table, n, p, &vector, &product);
}

int VB_M_ProductVB(const double* v, int n, const double* b, int q, double* y)
{
    auto vector = frame::copyIn(v, n);
    auto table = frame::copyIn(b, n, q);
    auto product = frame::borrow(y, q);
    auto* result = &product;
    M_ProductVB(&vector, n, &table, q, result);
    return 0;
}

int VB_M_ProductTrBV(const double* b, int n, int p, const double* v, double* y)
{
    auto table = frame::copyIn(b, n, p);
    auto vector = frame::copyIn(v, n);
    auto product = frame::borrow(y, p);
    M_ProductTrBV(&table, n, p, &vector, &product);
    return 0;
}

int VB_M_ProductVTrB(const double* v, int n, const double* b, int m, double* y)
{
    auto vector = frame::copyIn(v, n);
    auto table = frame::copyIn(b, m, n);
    auto product = frame::borrow(y, m);
    M_ProductVTrB(&vector, n, &table, m, &product);
    return 0;
}

double VB_M_ProductTrVBV(const double* v, int n, const double* b)
{
    auto vector = frame::borrow(v, n);
    auto table = frame::borrow(b, n, n);
    return M_ProductTrVBV(&vector, n, &table);
}

double VB_M_ProductTrV1BV2(const double* x1, int n, const double* b, const double* x2)
{
    auto first = frame::borrow(x1, n);
    auto table = frame::borrow(b, n, n);
    auto second = frame::borrow(x2, n);
    return M_ProductTrV1BV2(&first, n, &table, &second);
}
