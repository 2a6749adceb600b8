#include "frames/ordering/ranks.h"

#include "frames/frame.h"
#include "ordering/ranks.h"

using namespace korvel;

int VB_V_GetRanksDbl(const double* x, int n, double* out)
{
    auto values = frame::borrow(x, n);
    auto ranks = frame::borrow(out, n);
    V_GetRanks(&values, n, &ranks);
    return 0;
}

int VB_V_GetRanksLng(const double* x, int n, int* out)
{
    auto values = frame::borrow(x, n);
    auto ranks = frame::borrow(out, n);
    V_GetRanks(&values, n, &ranks);
    return 0;
}

int VB_V_GetRanksTiesDbl(double* x, int n, short int bRestore, double* w, double* ranks, int* nTies,
                         double* tieSizes)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    auto result = frame::borrow(ranks, n);
    auto sizes = frame::borrow(tieSizes, n);
    V_GetRanksTies(&values, n, bRestore, &weights, &result, nTies, &sizes);
    return 0;
}

int VB_V_GetRanksTiesDbl2(double* x, int n, short int bRestore, double* ranks, int* nTies, double* tieSizes)
{
    auto values = frame::borrow(x, n);
    auto result = frame::borrow(ranks, n);
    auto sizes = frame::borrow(tieSizes, n);
    V_GetRanksTies2(&values, n, bRestore, &result, nTies, &sizes);
    return 0;
}

int VB_V_GetRanksTiesIntDbl(const double* x, int n, const double* w, double* ranks, int* nTies,
                            double* tieSizes)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    auto result = frame::borrow(ranks, n);
    auto sizes = frame::borrow(tieSizes, n);
    V_GetRanksTiesInt(&values, n, &weights, &result, nTies, &sizes);
    return 0;
}

int VB_V_GetPositionInMatNNm1o2(int k, int n, int* row, int* col)
{
    V_GetPositionInMatNNm1o2(k, n, row, col);
    return 0;
}

int VB_V_GetPositionInMatNN(int k, int n, int* row, int* col)
{
    positionInSquare(k, n, row, col);
    return 0;
}
