#include "frames/linalg/products_design.h"

#include "frames/frame.h"
#include "linalg/every_product.h"
#include "linalg/products_design.h"
#include "platform/counts.h"

#include <algorithm>

using namespace korvel;

int VB_M_ProductDesignAB2(double* a, int n, int* colsA, const double* b, int colsB, int type,
                          const double* weights, double* sums)
{
    auto design = frame::borrow(a, n, productOfCounts(*colsA, std::max(colsB, 1)));
    auto factors = frame::besides(design, b, n, colsB);
    auto rowWeights = frame::borrow(weights, n);
    auto columnSums = frame::borrow(sums, productOfCounts(*colsA, colsB));
    M_ProductDesignAB2(&design, n, *colsA, &factors, colsB, type, &rowWeights, &columnSums);
    return 0;
}

int VB_M_ProductHorizAB(const double* a, int n, int colsA, const double* b, int colsB, double* c, int extra)
{
    auto result = frame::borrow(c, n, productOfCounts(colsA, colsB));
    auto left = frame::besides(result, a, n, colsA);
    auto right = frame::besides(result, b, n, colsB);
    auto* product = &result;
    M_ProductHorizAB(&left, n, colsA, &right, colsB, product, extra);
    return 0;
}

int VB_M_ProductHorizAB2(double* a, int n, int* colsA, const double* b, int colsB)
{
    auto table = frame::borrow(a, n, productOfCounts(*colsA, std::max(colsB, 1)));
    auto factors = frame::borrow(b, n, colsB);
    M_ProductHorizAB2(&table, n, *colsA, &factors, colsB);
    return 0;
}

int VB_V_ProductHorizV1V2(const double* x, int n, const double* y, int m, double* out)
{
    auto products = frame::borrow(out, productOfCounts(n, m));
    const auto left = frame::besides(products, x, n);
    const auto right = frame::besides(products, y, m);
    storeEveryProduct(left.data, n, right.data, m, products.data);
    return 0;
}

int VB_V_ProductHorizV1V22(double* x, int* n, const double* y, int m)
{
    auto vector = frame::borrow(x, productOfCounts(*n, std::max(m, 1)));
    auto factors = frame::borrow(y, m);
    V_ProductHorizV1V22(&vector, *n, &factors, m);
    return 0;
}
