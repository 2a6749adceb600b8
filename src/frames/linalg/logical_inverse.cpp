#include "frames/linalg/logical_inverse.h"

#include "frames/frame.h"
#include "linalg/logical_inverse.h"

using namespace korvel;

int Cpp_M_Inverse(short int* flags, int rows, int cols)
{
    auto table = frame::borrow(flags, rows, cols);
    M_Inverse(table, rows, cols);
    return 0;
}
