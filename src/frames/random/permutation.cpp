#include "frames/random/permutation.h"

#include "frames/frame.h"
#include "random/permutation.h"

using namespace korvel;

namespace
{

/** The array of a range as its callers have it: two places short of the range. */
template <class T>
matrix<T> borrowRange(T* out, int a, int b)
{
    return frame::borrow(out, static_cast<int>(static_cast<unsigned>(b) - static_cast<unsigned>(a) - 1U));
}

} // namespace

int Cpp_Random1toNLong(int* out, int n, short int bReset, int* seed, short int* flag, int* nextSeed)
{
    auto places = frame::borrow(out, n);
    random1toN(places, n, bReset, seed, flag, nextSeed);
    return 0;
}

int Cpp_Random1toNDbl(double* out, int n, short int bReset, int* seed, short int* flag, int* nextSeed)
{
    auto places = frame::borrow(out, n);
    random1toN(places, n, bReset, seed, flag, nextSeed);
    return 0;
}

int Cpp_RandomAtoBLng(int* out, int a, int b, short int bReset, int* seed, short int* flag, int* nextSeed)
{
    auto places = borrowRange(out, a, b);
    RandomAtoB(&places, a, b, bReset, *seed, *flag, *nextSeed);
    return 0;
}

int Cpp_RandomAtoBDbl(double* out, int a, int b, short int bReset, int* seed, short int* flag, int* nextSeed)
{
    auto places = borrowRange(out, a, b);
    RandomAtoB(&places, a, b, bReset, *seed, *flag, *nextSeed);
    return 0;
}
