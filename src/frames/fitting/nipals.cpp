#include "frames/fitting/nipals.h"

#include "fitting/nipals.h"
#include "frames/frame.h"

using namespace korvel;

int Cpp_NIPALS(int n, int p, double* x, const double* weights, double tolerance, int components,
               double columnShare, double tableShare)
{
    auto table = frame::copyIn(x, n, p);
    auto w = frame::insteadOfCopy(weights, n);
    const int status = NIPALS(n, p, &table, &w, tolerance, components, columnShare, tableShare);
    frame::copyOut(table, x);
    return status;
}
