#include "tables/text_rows.h"

#include "containers/views.h"

void M_MergeStringsByRow(matrix<text>* x, int rows, int cols, matrix<text>* out)
{
    const auto cells = korvel::reading(*x);
    const auto target = korvel::writing(*out);
    text joined;
    for (int i = 0; i < rows; ++i) {
        joined.clear();
        for (int j = 0; j < cols; ++j) {
            joined += cells.get(i, j);
        }
        target.set(i, 0, joined);
    }
}

short int CheckSameVectorStr(matrix<text>* a, int nA, matrix<text>* b, int nB)
{
    if (nA != nB) {
        return 0;
    }
    return korvel::withCells(
        [nA](auto first, auto second) -> short int {
            for (int i = 0; i < nA; ++i) {
                if (first[i] != second[i]) {
                    return 0;
                }
            }
            return -1;
        },
        nA, *a, *b);
}
