#include "frames/statistics/standardize_row_sets.h"

#include "frames/frame.h"
#include "statistics/standardize_row_sets.h"

using namespace korvel;

int VB_M_StandardizeMatrix(double* x, int rows, int cols, double* y, int yRows, double* z, int zRows)
{
    auto values = frame::borrow(x, rows, cols);
    matrix<double>* table = &values;
    auto yValues = frame::borrow(y, yRows, cols);
    matrix<double>* first = &yValues;
    auto zValues = frame::borrow(z, zRows, cols);
    matrix<double>* second = &zValues;
    M_StandardizeMatrix(table, rows, cols, first, yRows, second, zRows);
    return 0;
}

int Cpp_M_StandardizeByGroup(double* x, int rows, int cols, const int* groups, int nGroups,
                             short int bStandardize, short int bUnbiased)
{
    auto table = frame::borrow(x, rows, cols);
    auto codes = frame::borrow(groups, rows);
    M_StandardizeByGroup(&table, rows, cols, &codes, nGroups, bStandardize, bUnbiased);
    return 0;
}
