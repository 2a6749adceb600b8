#include "frames/linalg/square_roots.h"

#include "frames/frame.h"
#include "linalg/square_roots.h"

using namespace korvel;

int Cpp_M_SquareRoot(const double* a, int n, double* r)
{
    auto root = frame::filling(r, n, n);
    auto table = frame::source(root, a, n, n);
    return M_SquareRoot(&table, n, &root);
}
