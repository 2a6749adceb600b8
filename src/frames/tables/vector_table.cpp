#include "frames/tables/vector_table.h"

#include "frames/frame.h"
#include "tables/vector_table.h"

using namespace korvel;

namespace
{

template <class T>
using core_move = void (*)(matrix<T>*, int, int, matrix<T>*);

/** A vector is wrapped in the shape of its table: it is reached by linear index. */
template <class T, class Cell>
int move(core_move<T> core, const Cell* from, int rows, int cols, Cell* to)
{
    auto target = frame::filling(to, rows, cols);
    auto source = frame::source(target, from, rows, cols);
    core(&source, rows, cols, &target);
    frame::bringBack(target, to);
    return 0;
}

} // namespace

int Cpp_MatToVect(const double* x, int rows, int cols, double* v)
{
    return move<double>(MatToVect, x, rows, cols, v);
}

int Cpp_VectToMat(const double* v, const double* pattern, int rows, int cols, double* x)
{
    auto table = frame::filling(x, rows, cols);
    auto vector = frame::source(table, v, rows, cols);
    auto given = frame::source(table, pattern, rows, cols);
    VectToMat(&vector, &given, rows, cols, &table);
    return 0;
}

int Cpp_M_CopyTabletoVectorByRowDbl(const double* x, int rows, int cols, double* v)
{
    return move<double>(M_CopyTabletoVectorByRow, x, rows, cols, v);
}

int Cpp_M_CopyTabletoVectorByRowStr(OLECHAR* const* x, int rows, int cols, OLECHAR** v)
{
    return move<text>(M_CopyTabletoVectorByRow, x, rows, cols, v);
}

int Cpp_M_CopyVectortoTableByRowDbl(const double* v, int rows, int cols, double* x)
{
    return move<double>(M_CopyVectortoTableByRow, v, rows, cols, x);
}

int Cpp_M_CopyVectortoTableByRowStr(OLECHAR* const* v, int rows, int cols, OLECHAR** x)
{
    return move<text>(M_CopyVectortoTableByRow, v, rows, cols, x);
}
