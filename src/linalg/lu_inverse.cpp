#include "linalg/lu_inverse.h"

#include "linalg/inverse1.h"
#include "tables/block_copy.h"

#include <algorithm>

int Inverse1SPV(matrix<double>** A, matrix<double>* inverse, int n, int nChunks, short int& error,
                double tolerance)
{
    const int order = std::max(n, 0);
    matrix<double> table(order, order, korvel::initialOutOfBoundsValue<double>());
    korvel::copyBlock(korvel::reading(A), {}, korvel::writing(table), {}, order, std::min(order, nChunks));
    return Inverse1(&table, inverse, &error, tolerance);
}
