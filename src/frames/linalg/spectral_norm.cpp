#include "frames/linalg/spectral_norm.h"

#include "frames/frame.h"
#include "linalg/spectral_norm.h"

using namespace korvel;

double Cpp_M_Norm2(const double* a, int rows, int cols)
{
    if (rows != cols) {
        return 0.0;
    }
    auto table = frame::borrow(a, rows, cols);
    return getNorm2(&table);
}
