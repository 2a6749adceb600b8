#include "frames/random/shuffle.h"

#include "frames/frame.h"
#include "random/shuffle.h"

using namespace korvel;

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

int Cpp_M_ShuffleDbl(const double* x, int rows, int cols, double* out, int* seed, short int flag,
                     int* nextSeed)
{
    auto result = frame::borrow(out, rows, cols);
    const auto table = frame::besides(result, x, rows, cols);
    shuffleRows(table, rows, cols, result, seed, flag, nextSeed);
    return 0;
}

int Cpp_M_ShuffleStr(OLECHAR* const* x, int rows, int cols, OLECHAR** out, int* seed, short int flag,
                     int* nextSeed)
{
    auto table = frame::readTexts(x, rows, cols);
    auto result = frame::filling(out, rows, cols);
    shuffleRows(table, rows, cols, result, seed, flag, nextSeed);
    frame::writeTexts(result, out);
    return 0;
}
