#include "frames/linalg/lu.h"

#include "frames/frame.h"
#include "linalg/lu.h"

using namespace korvel;

int VB_M_LUDecomp(double* a, int n, int* pivots, double* sign, short int* status)
{
    auto table = frame::changing(a, n, n);
    auto swapped = frame::filling(pivots, n);
    int wholeSign = 0;
    M_LUDecomp(&table, n, &swapped, wholeSign, status);
    *sign = wholeSign;
    return 0;
}
