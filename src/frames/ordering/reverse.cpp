#include "frames/ordering/reverse.h"

#include "frames/frame.h"
#include "ordering/reverse.h"

using namespace korvel;

int VB_V_ReverseDbl(const double* x, int n, double* out)
{
    auto result = frame::borrow(out, n);
    auto values = frame::besides(result, x, n);
    V_Reverse(&values, n, &result);
    return 0;
}

int VB_V_ReverseBool(const short int* x, int n, short int* out)
{
    const auto flags = frame::besides(frame::borrow(out, n), x, n);
    V_ReverseBool(flags.data, n, out);
    return 0;
}

int Cpp_V_Reverse2Dbl(double* x, int n)
{
    auto values = frame::borrow(x, n);
    V_Reverse2(&values, n);
    return 0;
}

int Cpp_V_Reverse2Lng(int* x, int n)
{
    auto values = frame::borrow(x, n);
    V_Reverse2(&values, n);
    return 0;
}

int Cpp_V_Reverse2Bool(short int* x, int n)
{
    auto values = frame::borrow(x, n);
    V_Reverse2(&values, n);
    return 0;
}
