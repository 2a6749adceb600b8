#include "statistics/constant_tests.h"

#include "containers/constant.h"
#include "containers/conversion.h"
#include "containers/views.h"

#include <cstdint>

namespace
{

using korvel::flagOf;

template <class Column>
short int constantColumn(const Column& column, int n, short int bSkipMissing)
{
    const auto test = [=](const auto& cells) {
        return bSkipMissing == -1 ? korvel::isConstantWherePresent(cells, n) : korvel::isConstant(cells, n);
    };
    return flagOf(korvel::withCells(test, column));
}

template <class View>
short int constantColumns(const View& table, int rows, int cols)
{
    int j = 0;
    while (j < cols && constantColumn(table.column(j, rows), rows, -1) != 0) {
        ++j;
    }
    return flagOf(j >= cols);
}

} // namespace

short int V_IsConstant(matrix<double>* x, int n, short int bSkipMissing, int col)
{
    return constantColumn(korvel::reading(*x).column(col - 1, n), n, bSkipMissing);
}

short int V_IsConstantLng(matrix<int>* x, int n, short int bSkipMissing)
{
    return constantColumn(korvel::readVector(*x, n), n, bSkipMissing);
}

short int V_IsConstantStr(matrix<text>* x, int n, short int bSkipMissing)
{
    return constantColumn(korvel::readVector(*x, n), n, bSkipMissing);
}

short int V_IsConstantBool(short int* x, int n)
{
    return flagOf(korvel::isConstant(x, n));
}

short int M_IsConstant(matrix<double>* x, int, short int bSkipMissing)
{
    const int cells = static_cast<std::int32_t>(x->nbElem);
    return constantColumn(korvel::readVector(*x, cells), cells, bSkipMissing);
}

short int M_EachColIsConstant(matrix<double>* x, int rows, int cols)
{
    return constantColumns(korvel::reading(*x), rows, cols);
}

short int M_EachColIsConstant(matrix3D<matrix<double>>* x, int rows, int cols)
{
    return constantColumns(korvel::reading(*x), rows, cols);
}
