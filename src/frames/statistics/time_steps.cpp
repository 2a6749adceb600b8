#include "frames/statistics/time_steps.h"

#include "frames/frame.h"
#include "statistics/time_steps.h"

using namespace korvel;

double VB_V_TimeIntervalSize(const double* x, int n, short int bSort)
{
    auto values = frame::borrow(x, n);
    return V_TimeIntervalSize(&values, n, bSort);
}

int Cpp_V_CheckDateInterval(const double* x, int n, int kind, double* d)
{
    auto values = frame::borrow(x, n);
    V_CheckDateInterval(&values, n, kind, *d);
    return 0;
}
