#include "frames/statistics/vector_extremes.h"

#include "containers/conversion.h"
#include "frames/frame.h"
#include "statistics/vector_extremes.h"

using namespace korvel;

double VB_V_Min(const double* x, int n, const short int* iMissing)
{
    auto values = frame::borrow(x, n);
    return V_Min(&values, n, frame::readOnly(iMissing));
}

double VB_V_Min2(const double* x, int n)
{
    return V_Min2(frame::borrow(x, n), n);
}

double VB_V_Min2Lng(const int* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_Min2(&values, n);
}

double VB_V_Max(const double* x, int n, const short int* iMissing)
{
    auto values = frame::borrow(x, n);
    return V_Max(&values, n, frame::readOnly(iMissing));
}

double VB_V_Max2(const double* x, int n)
{
    return V_Max2(frame::borrow(x, n), n);
}

double VB_V_Max2Lng(const int* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_Max(&values, n, nullptr);
}

double Cpp_V_Max2_ST(SAFEARRAY** sa, int n)
{
    return V_Max2(frame::attach<double>(sa), n);
}

double Cpp_V_Max2Lng_ST(SAFEARRAY** sa, int n)
{
    auto values = frame::attach<int>(sa);
    return V_Max(&values, n, nullptr);
}

int VB_V_MaxInt(const int* x, int n, const short int* iMissing)
{
    auto values = frame::borrow(x, n);
    return truncateToInt(V_Max(&values, n, frame::readOnly(iMissing)));
}

int VB_V_MinMax(const double* x, int n, double* min, double* max, const short int* iMissing)
{
    auto values = frame::borrow(x, n);
    V_MinMax(&values, n, min, max, frame::readOnly(iMissing));
    return 0;
}

int VB_V_MinMaxLng(const int* x, int n, double* min, double* max, const short int* iMissing)
{
    auto values = frame::borrow(x, n);
    V_MinMax(&values, n, min, max, frame::readOnly(iMissing));
    return 0;
}

int VB_V_MinMax2(const double* x, int n, double* min, double* max, short int bSkipMissing)
{
    auto values = frame::borrow(x, n);
    V_MinMax2(&values, n, min, max, bSkipMissing);
    return 0;
}

int VB_V_MinMaxLng2(const int* x, int n, double* min, double* max, short int bSkipMissing)
{
    auto values = frame::borrow(x, n);
    V_MinMax2(&values, n, min, max, bSkipMissing);
    return 0;
}

double VB_V_MinAndMinPos(const double* x, int n, int* pos, short int bLast)
{
    auto values = frame::borrow(x, n);
    return V_MinAndMinPos(&values, n, pos, bLast != 0);
}

double VB_V_MaxAndMaxPos(const double* x, int n, int* pos)
{
    auto values = frame::borrow(x, n);
    return V_MaxAndMaxPos(&values, n, pos);
}
