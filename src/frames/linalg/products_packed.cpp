#include "frames/linalg/products_packed.h"

#include "frames/frame.h"
#include "linalg/packed_sweep.h"
#include "linalg/products_packed.h"

using namespace korvel;

int VB_M_ProductASymV(const double* s, int m, const double* x, double* y)
{
    auto product = frame::borrow(y, m);
    auto table = frame::besides(product, s, packedElements(m));
    auto vector = frame::besides(product, x, m);
    M_ProductASymV(&table, m, &vector, &product);
    return 0;
}

int VB_M_ProductVASym(const double* x, int m, const double* s, double* y)
{
    auto product = frame::borrow(y, m);
    auto vector = frame::besides(product, x, m);
    auto table = frame::besides(product, s, packedElements(m));
    M_ProductVASym(&vector, m, &table, &product);
    return 0;
}

double Cpp_M_ProductTrVSymV(const double* v, int n, const double* s)
{
    auto vector = frame::borrow(v, n);
    auto table = frame::borrow(s, n, n);
    return M_ProductTrVSymV(&vector, n, &table);
}

int Cpp_MV_ProductAsymBsym(const double* a, int n, const double* b, double* c)
{
    auto product = frame::borrow(c, n);
    auto left = frame::besides(product, a, n);
    auto right = frame::besides(product, b, n);
    MV_ProductAsymBsym(&left, n, &right, &product);
    return 0;
}
