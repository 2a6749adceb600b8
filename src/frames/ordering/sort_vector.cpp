#include "frames/ordering/sort_vector.h"

#include "frames/frame.h"
#include "ordering/sort_vector.h"

using namespace korvel;

int VB_SortQVectorDbl(SAFEARRAY** sa, int, int from, int to, short int bDesc)
{
    auto values = frame::attach<double>(sa);
    SortQVector(&values, static_cast<int>(values.nbElem), from, to, bDesc != 0);
    return 0;
}

int VB_SortQVectorLng(SAFEARRAY** sa, int, int from, int to, short int bDesc)
{
    auto values = frame::attach<int>(sa);
    SortQVector(&values, static_cast<int>(values.nbElem), from, to, bDesc != 0);
    return 0;
}

int VB_SortQVectorStr(OLECHAR** x, int n, int from, int to, short int bDesc)
{
    auto values = frame::readTexts(x, n);
    SortQVector(&values, n, from, to, bDesc != 0);
    frame::writeTexts(values, x);
    return 0;
}

int Cpp_SortQVector2Str(OLECHAR** x, int n, int from, int to, short int bDesc, int* index)
{
    auto values = frame::readTexts(x, n);
    auto positions = frame::borrow(index, n);
    SortQVector2(&values, n, from, to, bDesc != 0, &positions);
    frame::writeTexts(values, x);
    return 0;
}

short int VB_V_IsSorted(const double* x, int n, short int bStrict)
{
    auto values = frame::borrow(x, n);
    return V_IsSorted(&values, n, bStrict != 0);
}
