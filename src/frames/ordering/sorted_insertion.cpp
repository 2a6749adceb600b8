#include "frames/ordering/sorted_insertion.h"

#include "frames/frame.h"
#include "ordering/sorted_insertion.h"

using namespace korvel;

int Cpp_V_InsertValueLow(double* x, int n, double val, short int bSort)
{
    auto values = frame::borrow(x, n);
    V_InsertValueLow(&values, n, val, bSort);
    return 0;
}

int Cpp_V_InsertValueUp(double* x, int n, double val, short int bSort)
{
    auto values = frame::borrow(x, n);
    V_InsertValueUp(&values, n, val, bSort);
    return 0;
}
