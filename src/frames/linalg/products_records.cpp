#include "frames/linalg/products_records.h"

#include "frames/frame.h"
#include "linalg/products_records.h"

using namespace korvel;

int Cpp_M_ProductAB_ST(ST_MVect* a, int n, int p, ST_MVect* b, int q, ST_MVect* c)
{
    auto left = frame::record<double>(a);
    auto right = frame::record<double>(b);
    auto product = frame::record<double>(c);
    return M_ProductAB_ST(left, n, p, right, q, product);
}

int Cpp_M_ProductTrAB_ST(ST_MVect* a, int n, int p, ST_MVect* b, int q, ST_MVect* c)
{
    auto left = frame::record<double>(a);
    auto right = frame::record<double>(b);
    auto product = frame::record<double>(c);
    M_ProductTrAB_ST(left, n, p, right, q, product);
    return 0;
}

int Cpp_M_ProductATrB_ST(ST_MVect* a, int n, int p, ST_MVect* b, int m, ST_MVect* c)
{
    auto left = frame::record<double>(a);
    auto right = frame::record<double>(b);
    auto product = frame::record<double>(c);
    M_ProductATrB_ST(left, n, p, right, m, product);
    return 0;
}

int Cpp_M_ProductABTrA_ST(ST_MVect* a, int n, int p, ST_MVect* b, short int symmetric, ST_MVect* c)
{
    auto outer = frame::record<double>(a);
    auto inner = frame::record<double>(b);
    auto product = frame::record<double>(c);
    M_ProductABTrA_ST(outer, n, p, inner, symmetric, product);
    return 0;
}
