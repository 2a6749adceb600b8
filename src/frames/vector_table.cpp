#include "frames/vector_table.h"

#include "frames/frame.h"
#include "tables/vector_table.h"

using namespace korvel;

namespace
{

template <class T>
using core_move = void (*)(matrix<T>*, int, int, matrix<T>*);

// A vector is wrapped in the shape of its table: it is reached by linear index. The source is copied, so that
// one array may be passed for both.

int move(core_move<double> core, double* from, int rows, int cols, double* to)
{
    auto source = frame::copyIn(from, rows, cols);
    auto target = frame::borrow(to, rows, cols);
    core(&source, rows, cols, &target);
    return 0;
}

int move(core_move<text> core, OLECHAR** from, int rows, int cols, OLECHAR** to)
{
    auto source = frame::readTexts(from, rows, cols);
    auto target = frame::blank<text>(rows, cols);
    core(&source, rows, cols, &target);
    frame::writeTexts(target, to);
    return 0;
}

} // namespace

int Cpp_MatToVect(double* x, int rows, int cols, double* v)
{
    return move(MatToVect, x, rows, cols, v);
}

int Cpp_VectToMat(double* v, double* pattern, int rows, int cols, double* x)
{
    auto vector = frame::borrow(v, rows, cols);
    auto given = frame::borrow(pattern, rows, cols);
    auto table = frame::borrow(x, rows, cols);
    VectToMat(&vector, &given, rows, cols, &table);
    return 0;
}

int Cpp_M_CopyTabletoVectorByRowDbl(double* x, int rows, int cols, double* v)
{
    return move(M_CopyTabletoVectorByRow, x, rows, cols, v);
}

int Cpp_M_CopyTabletoVectorByRowStr(OLECHAR** x, int rows, int cols, OLECHAR** v)
{
    return move(M_CopyTabletoVectorByRow, x, rows, cols, v);
}

int Cpp_M_CopyVectortoTableByRowDbl(double* v, int rows, int cols, double* x)
{
    return move(M_CopyVectortoTableByRow, v, rows, cols, x);
}

int Cpp_M_CopyVectortoTableByRowStr(OLECHAR** v, int rows, int cols, OLECHAR** x)
{
    return move(M_CopyVectortoTableByRow, v, rows, cols, x);
}
