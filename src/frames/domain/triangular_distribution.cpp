#include "frames/domain/triangular_distribution.h"

#include "domain/triangular_distribution.h"

int Cpp_TriangularQFindAB(double q1, double mode, double q2, double p1, double p2, double* a, double* b)
{
    TriangularQFindAB(q1, mode, q2, p1, p2, a, b);
    return 0;
}
