#include "frames/domain/comparison_letters.h"

#include "domain/comparison_letters.h"
#include "frames/frame.h"

#include <algorithm>

using namespace korvel;

int Cpp_GetCompMatrices(double* means, int k, int column, const int* significance, short int sortResult,
                        int* order, OLECHAR** labels, int* groupCount, short int* success,
                        short int descending)
{
    auto letters = frame::filling(labels, k, std::min(k, 256));
    auto table = frame::changing(means, k, frame::columns(column));
    auto pairs = frame::borrow(significance, k, k);
    auto levels = frame::filling(order, k);
    GetCompMatrices(table, k, column, pairs, sortResult, levels, &letters, groupCount, success, descending);
    frame::bringBack(letters, labels);
    return 0;
}
