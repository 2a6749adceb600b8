#include "frames/tables/matrix_dump.h"

#include "frames/frame.h"
#include "tables/matrix_dump.h"

using namespace korvel;

void Cpp_WriteMatrixDbl(const double* a, int rows, int cols, const char* name)
{
    dumpTable(frame::insteadOfCopy(a, rows, cols), rows, cols, name);
}

void Cpp_WriteMatrixLng(const int* a, int rows, int cols, const char* name)
{
    dumpTable(frame::insteadOfCopy(a, rows, cols), rows, cols, name);
}

int Cpp_WriteMatrixStr(OLECHAR* const* a, int rows, int cols, const char* name)
{
    dumpTable(frame::readTexts(a, rows, cols), rows, cols, name);
    return 0;
}
