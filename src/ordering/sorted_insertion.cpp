#include "ordering/sorted_insertion.h"

#include "containers/cells.h"
#include "ordering/sort_vector.h"

#include <type_traits>

namespace
{

/** A vector read from its end, with every sign changed: what ascends in it still ascends. */
template <class Cells>
struct mirrored {
    Cells& cells;
    int last;

    double operator[](int i) const { return -cells[last - i]; }
    void set(int i, double value) { cells.set(last - i, -value); }
};

template <class Cells>
void insertIntoLargest(Cells& x, int n, double val)
{
    const int last = n - 1;
    if (x[0] >= val) {
        return;
    }
    if (val > x[last]) {
        for (int i = 0; i < last; ++i) {
            x.set(i, x[i + 1]);
        }
        x.set(last, val);
        return;
    }
    for (int i = 0; i < last; ++i) {
        if (val > x[i]) {
            x.set(i, x[i + 1] >= val ? val : x[i + 1]);
        }
    }
}

/** Sorts the vector when asked to, and calls `insert` with its cells. */
template <class Insert>
void insertSorted(matrix<double>& x, int n, short int bSort, Insert insert)
{
    if (n < 1) {
        return;
    }
    if (bSort == -1) {
        SortQVector(&x, n, 1, n, false);
    }
    korvel::withCells(insert, korvel::writeVector(x, n));
}

} // namespace

void V_InsertValueLow(matrix<double>* x, int n, double val, short int bSort)
{
    insertSorted(*x, n, bSort, [=](auto& cells) { insertIntoLargest(cells, n, val); });
}

void V_InsertValueUp(matrix<double>* x, int n, double val, short int bSort)
{
    insertSorted(*x, n, bSort, [=](auto& cells) {
        mirrored<std::remove_reference_t<decltype(cells)>> image{cells, n - 1};
        insertIntoLargest(image, n, -val);
    });
}
