#include "frames/linalg/products_kronecker.h"

#include "frames/frame.h"
#include "linalg/products_kronecker.h"
#include "platform/counts.h"

using namespace korvel;

int Cpp_KroneckerTensorProduct(const double* a, int r1, int c1, const double* b, int r2, int c2, double* c)
{
    auto product = frame::borrow(c, productOfCounts(r1, r2), productOfCounts(c1, c2));
    auto left = frame::besides(product, a, r1, c1);
    auto right = frame::besides(product, b, r2, c2);
    KroneckerTensorProduct(&left, r1, c1, &right, r2, c2, &product);
    return 0;
}
