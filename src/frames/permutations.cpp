#include "frames/permutations.h"

#include "frames/frame.h"
#include "random/permutation.h"
#include "random/shuffle.h"

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

int Cpp_V_Shuffle(double* x, int n, int* seed, short int flag, int* nextSeed)
{
    auto values = frame::borrow(x, n);
    shuffleRows(values, n, 1, values, seed, flag, nextSeed);
    return 0;
}

int Cpp_V_ShuffleLng(int* x, int n, int* seed, short int flag, int* nextSeed)
{
    auto values = frame::borrow(x, n);
    shuffleRows(values, n, 1, values, seed, flag, nextSeed);
    return 0;
}

int Cpp_M_ShuffleDbl2(double* x, int rows, int cols, int* seed, short int flag, int* nextSeed)
{
    auto table = frame::borrow(x, rows, cols);
    shuffleRows(table, rows, cols, table, seed, flag, nextSeed);
    return 0;
}

int Cpp_M_ShuffleStr2(OLECHAR** x, int rows, int cols, int* seed, short int flag, int* nextSeed)
{
    auto table = frame::readTexts(x, rows, cols);
    shuffleRows(table, rows, cols, table, seed, flag, nextSeed);
    frame::writeTexts(table, x);
    return 0;
}

int Cpp_M_ShuffleDbl(double* x, int rows, int cols, double* out, int* seed, short int flag, int* nextSeed)
{
    auto result = frame::borrow(out, rows, cols);
    const auto table = frame::besides(result, x, rows, cols);
    shuffleRows(table, rows, cols, result, seed, flag, nextSeed);
    return 0;
}

int Cpp_M_ShuffleStr(OLECHAR** x, int rows, int cols, OLECHAR** out, int* seed, short int flag, int* nextSeed)
{
    auto table = frame::readTexts(x, rows, cols);
    auto result = frame::filling(out, rows, cols);
    shuffleRows(table, rows, cols, result, seed, flag, nextSeed);
    frame::writeTexts(result, out);
    return 0;
}
