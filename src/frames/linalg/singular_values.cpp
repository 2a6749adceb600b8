#include "frames/linalg/singular_values.h"

#include "frames/frame.h"
#include "linalg/singular_values.h"

using namespace korvel;

int VB_M_SVDecomp(const double* a, int n, int p, double* s, double* u, double* v, int job, int* info)
{
    const svd_job asked(job, n, p);
    auto table = frame::insteadOfCopy(a, n, p);
    auto values = frame::borrow(s, std::min(n + 1, p));
    auto left = frame::borrow(u, n, asked.columnsOfU > 0 ? asked.columnsOfU : 1);
    auto right = frame::borrow(v, p, asked.wantsV ? p : 1);
    M_SVDecomp(&table, n, p, &values, &left, &right, job, info);
    return 0;
}

int VB_M_SVDecompSPV(Hostarray** a, int n, int p, double* s, Hostarray** u, Hostarray** v, int job, int* info)
{
    const svd_job asked(job, n, p);
    matrix3D<matrix<double>> table(p, a);
    auto values = frame::borrow(s, std::min(n + 1, p));
    matrix3D<matrix<double>> left(asked.columnsOfU, u);
    matrix3D<matrix<double>> right(asked.wantsV ? p : 0, v);
    M_SVDecompSPV(&table, n, p, &values, &left, &right, job, info);
    return 0;
}
