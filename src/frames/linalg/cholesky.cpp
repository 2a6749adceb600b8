#include "frames/linalg/cholesky.h"

#include "frames/frame.h"
#include "linalg/cholesky.h"

using namespace korvel;

int VB_M_CholDecomp(const double* a, int n, double* l)
{
    auto factor = frame::filling(l, n, n);
    auto table = frame::source(factor, a, n, n);
    return M_CholDecomp(&table, n, &factor);
}

int VB_M_CholDecompPrinc(double* a, int n, double* l, int* perm, short int replaceInput)
{
    auto table = frame::copyIn(a, n, n);
    auto factor = frame::blank<double>(n, n);
    auto variables = frame::blank<int>(n);
    const int status = M_CholDecompPrinc(&table, n, &factor, &variables, replaceInput);
    frame::copyOut(table, a);
    frame::copyOut(factor, l);
    frame::copyOut(variables, perm);
    return status;
}
