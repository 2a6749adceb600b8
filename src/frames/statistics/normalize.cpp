#include "frames/statistics/normalize.h"

#include "frames/frame.h"
#include "statistics/normalize.h"

using namespace korvel;

int VB_V_Norm(double* x, int n)
{
    auto values = frame::borrow(x, n);
    matrix<double>* vector = &values;
    V_Norm(vector, n);
    return 0;
}

int VB_V_NormW(double* x, int n, const double* w)
{
    auto values = frame::borrow(x, n);
    matrix<double>* vector = &values;
    auto weights = frame::besides(values, w, n);
    V_NormW(vector, n, &weights);
    return 0;
}

int VB_V_NormToVal(double* x, int n, double value)
{
    auto values = frame::borrow(x, n);
    matrix<double>* vector = &values;
    V_NormToVal(vector, n, value);
    return 0;
}

int VB_V_NormToValW(double* x, int n, double value, const double* w)
{
    auto values = frame::borrow(x, n);
    matrix<double>* vector = &values;
    auto weights = frame::besides(values, w, n);
    V_NormToValW(vector, n, value, &weights);
    return 0;
}

int VB_M_Normalize(double* x, int rows, int cols, const double* w, const short int* iMissing)
{
    auto values = frame::borrow(x, rows, cols);
    matrix<double>* table = &values;
    auto weights = frame::besidesIfGiven(values, w, rows);
    M_Normalize(table, rows, cols, frame::pointerTo(weights), frame::readOnly(iMissing));
    return 0;
}

int VB_M_NormalizeMatrix(double* x, int rows, int cols, double* y, int yRows, double* z, int zRows)
{
    auto values = frame::borrow(x, rows, cols);
    matrix<double>* table = &values;
    auto yValues = frame::borrow(y, yRows, cols);
    matrix<double>* first = &yValues;
    auto zValues = frame::borrow(z, zRows, cols);
    matrix<double>* second = &zValues;
    M_NormalizeMatrix(table, rows, cols, first, yRows, second, zRows);
    return 0;
}
