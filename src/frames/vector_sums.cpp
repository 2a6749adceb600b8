#include "frames/vector_sums.h"

#include "frames/frame.h"
#include "statistics/vector_sums.h"

using namespace korvel;

double VB_V_Sum(double* x, int n, short int* iMissing, double* w)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_Sum(&values, n, iMissing, &weights);
}
