#include "frames/random/indicator.h"

#include "frames/frame.h"
#include "random/indicator.h"

using namespace korvel;

int VB_GenerateIndicator(double* out, int n, int first, int last)
{
    auto marks = frame::borrow(out, n);
    GenerateIndicator(&marks, n, first, last);
    return 0;
}

int Cpp_GenerateIndicator_ST(SAFEARRAY** out, int n, int first, int last)
{
    auto marks = frame::attach<double>(out);
    GenerateIndicator(&marks, n, first, last);
    return 0;
}

int VB_GenerateRandomIndicator(double* out, int n, int k, int* seed, short int flag, int* nextSeed)
{
    auto marks = frame::borrow(out, n);
    GenerateRandomIndicator(&marks, n, k, seed, flag, nextSeed);
    return 0;
}

int Cpp_GenerateRandomIndicator_ST(SAFEARRAY** out, int n, int k, int* seed, short int flag, int* nextSeed)
{
    auto marks = frame::attach<double>(out);
    GenerateRandomIndicator(&marks, n, k, seed, flag, nextSeed);
    return 0;
}
