#include "frames/containers/record_copies.h"

#include "containers/record_copies.h"
#include "frames/frame.h"

using namespace korvel;

int Cpp_CopyDblToMVDbl(const double* m, int rows, int cols, ST_MVect* mv)
{
    auto source = frame::borrow(m, rows, cols);
    auto target = frame::record<double>(mv);
    CopyDblToMV(source, rows, cols, target);
    return 0;
}

int Cpp_M_DuplicateMVDblTriang_ST(ST_MVect* src, ST_MVect* dst)
{
    auto source = frame::record<double>(src);
    auto target = frame::record<double>(dst);
    M_DuplicateMVDblTriang_ST(source, target);
    return 0;
}
