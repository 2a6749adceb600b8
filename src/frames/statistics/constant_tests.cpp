#include "frames/statistics/constant_tests.h"

#include "frames/frame.h"
#include "statistics/constant_tests.h"

using namespace korvel;

short int VB_V_IsConstant(const double* x, int n, short int bSkipMissing, int col)
{
    auto table = frame::borrow(x, n, frame::columns(col));
    return V_IsConstant(&table, n, bSkipMissing, table.nbcols);
}

short int VB_V_IsConstantLng(const int* x, int n, short int bSkipMissing)
{
    auto values = frame::borrow(x, n);
    return V_IsConstantLng(&values, n, bSkipMissing);
}

short int VB_V_IsConstantStr(OLECHAR* const* x, int n, short int bSkipMissing)
{
    auto texts = frame::readTexts(x, n);
    return V_IsConstantStr(&texts, n, bSkipMissing);
}

short int VB_V_IsConstantBool(const short int* x, int n)
{
    return V_IsConstantBool(frame::readOnly(x), n);
}

short int VB_M_IsColConstant(const double* x, int rows, int cols)
{
    auto table = frame::borrow(x, rows, frame::columns(cols));
    return M_EachColIsConstant(&table, rows, table.nbcols);
}

short int VB_M_IsColConstantSPV(Hostarray** x, int rows, int cols)
{
    matrix3D<matrix<double>> table(cols, x);
    return M_EachColIsConstant(&table, rows, cols);
}
