#include "frames/domain/correlation_order.h"

#include "domain/correlation_order.h"
#include "frames/frame.h"

using namespace korvel;

int Cpp_ReOrderCorrelations(double* corr, int n, int method, OLECHAR** labels, double* pValues, int* flags)
{
    auto names = frame::changing(labels, n);
    auto table = frame::changing(corr, n, n);
    auto probabilities = frame::changing(pValues, n, n);
    auto marks = frame::changing(flags, n, n);
    ReOrderCorrelations(&table, n, method, &names, &probabilities, &marks);
    frame::bringBack(names, labels);
    return 0;
}
