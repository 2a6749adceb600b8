#include "frames/missing/pairwise_deletion.h"

#include "frames/frame.h"
#include "missing/pairwise_deletion.h"

using namespace korvel;

int Cpp_V_PairwiseDeletion(const double* x, const double* y, const double* z, int n, double* xOut,
                           double* yOut, double* zOut, int* count)
{
    const auto first = frame::copyIn(x, n);
    const auto second = frame::copyIn(y, n);
    const auto third = frame::copyIn(z, n);
    auto firstKept = frame::borrow(xOut, n + 1);
    auto secondKept = frame::borrow(yOut, n + 1);
    auto thirdKept = frame::borrow(zOut, n + 1);
    *count = V_PairwiseDeletion(first, second, third, n, firstKept, secondKept, thirdKept);
    return 0;
}
