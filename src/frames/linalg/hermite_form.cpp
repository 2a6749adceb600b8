#include "frames/linalg/hermite_form.h"

#include "frames/frame.h"
#include "linalg/hermite_form.h"

using namespace korvel;

int Cpp_M_ForwardDoolittle(const double* a, int n, double* h)
{
    auto result = frame::borrow(h, n, n);
    auto table = frame::besides(result, a, n, n);
    M_ForwardDoolittle(&table, n, &result);
    return 0;
}

int Cpp_M_HermiteCanonical(const double* a, int n, double* h)
{
    auto result = frame::borrow(h, n, n);
    auto table = frame::besides(result, a, n, n);
    M_HermiteCanonical(&table, n, &result);
    return 0;
}
