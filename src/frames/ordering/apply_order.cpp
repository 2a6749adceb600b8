#include "frames/ordering/apply_order.h"

#include "containers/records.h"
#include "frames/frame.h"
#include "ordering/apply_order.h"

using namespace korvel;

namespace
{

template <class T>
int applyOrder(const T* x, int rows, int cols, const double* order, T* out)
{
    auto result = frame::borrow(out, rows, cols);
    auto table = frame::besides(result, x, rows, cols);
    auto positions = frame::borrow(order, rows);
    SortApply(&table, rows, cols, &positions, &result);
    return 0;
}

} // namespace

int VB_SortApply(const double* x, int rows, int cols, const double* order, double* out)
{
    return applyOrder(x, rows, cols, order, out);
}

int VB_SortApplyLng(const int* x, int rows, int cols, const double* order, int* out)
{
    return applyOrder(x, rows, cols, order, out);
}

int VB_SortApplyStr(OLECHAR* const* x, int rows, int cols, const double* order, OLECHAR** out)
{
    auto table = frame::readTexts(x, rows, cols);
    auto positions = frame::borrow(order, rows);
    auto result = frame::filling(out, rows, cols);
    SortApply(&table, rows, cols, &positions, &result);
    frame::writeTexts(result, out);
    return 0;
}

int VB_SortApply2(double* x, int rows, int cols, const double* order)
{
    auto table = frame::borrow(x, rows, cols);
    auto positions = frame::borrow(order, rows);
    SortApply2(&table, rows, cols, &positions);
    return 0;
}

int VB_SortApply2Lng(int* x, int rows, int cols, const double* order)
{
    auto table = frame::borrow(x, rows, cols);
    auto positions = frame::borrow(order, rows);
    SortApply2(&table, rows, cols, &positions);
    return 0;
}

int Cpp_SortApply2Bool(short int* x, int rows, int cols, const double* order)
{
    auto table = frame::borrow(x, rows, cols);
    auto positions = frame::borrow(order, rows);
    SortApply2(&table, rows, cols, &positions);
    return 0;
}

int VB_SortApply2Str(OLECHAR** x, int rows, int cols, const double* order)
{
    auto table = frame::readTexts(x, rows, cols);
    auto positions = frame::borrow(order, rows);
    SortApply2(&table, rows, cols, &positions);
    frame::writeTexts(table, x);
    return 0;
}

int Cpp_SortApply2_ST(ST_MVect* x, int rows, int cols, const double* order)
{
    cST_MVect<double> table(x);
    auto positions = frame::borrow(order, rows);
    SortApply2(table, rows, cols, &positions);
    return 0;
}
