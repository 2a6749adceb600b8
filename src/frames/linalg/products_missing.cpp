#include "frames/linalg/products_missing.h"

#include "frames/frame.h"
#include "linalg/products_missing.h"

using namespace korvel;

int VB_M_ProductABMissing(const double* a, int n, int p, const double* b, int q, double* c)
{
    auto left = frame::copyIn(a, n, p);
    auto right = frame::copyIn(b, p, q);
    auto product = frame::borrow(c, n, q);
    return M_ProductABMissing(&left, n, p, &right, q, &product);
}
