#include "frames/ordering/sort_table.h"

#include "frames/frame.h"
#include "ordering/sort_table.h"

using namespace korvel;

namespace
{

/** What the sorts of rows have in common. */
template <class Table, class Key, class Cell>
void sortRows(Table&& table, int rows, int cols, int from, int to, matrix<Key>& keys, matrix<Cell>& companion,
              int auxCols, short int bDesc, short int bSortKey)
{
    SortQ(table, rows, frame::columns(cols), from, to, &keys, &companion, frame::columns(auxCols), bDesc != 0,
          bSortKey != 0);
}

/** The table, its key and its companion as they stand. */
template <class Cell, class Key>
int sortInPlace(Cell* x, int rows, int cols, int from, int to, Key* key, Cell* aux, int auxCols,
                short int bDesc, short int bSortKey)
{
    auto table = frame::changing(x, rows, frame::columns(cols));
    auto keys = frame::borrow(key, rows);
    auto companion = frame::changing(aux, rows, frame::columns(auxCols));
    sortRows(&table, rows, cols, from, to, keys, companion, auxCols, bDesc, bSortKey);
    frame::bringBack(table, x);
    frame::bringBack(companion, aux);
    return 0;
}

/** A caller's record or host array, which knows its own way back. */
template <class Table, class Cell, class Key>
int sortAttached(Table&& table, int rows, int cols, int from, int to, Key* key, Cell* aux, int auxCols,
                 short int bDesc, short int bSortKey)
{
    auto keys = frame::borrow(key, rows);
    auto companion = frame::changing(aux, rows, frame::columns(auxCols));
    sortRows(table, rows, cols, from, to, keys, companion, auxCols, bDesc, bSortKey);
    frame::bringBack(companion, aux);
    return 0;
}

template <class Cell>
int sortInPlaceBy01(Cell* x, int rows, int cols, double* key)
{
    auto table = frame::changing(x, rows, frame::columns(cols));
    auto keys = frame::borrow(key, rows);
    SortDataBy01(&table, rows, frame::columns(cols), &keys);
    frame::bringBack(table, x);
    return 0;
}

} // namespace

int VB_SortQDbl(double* x, int rows, int cols, int from, int to, double* key, double* aux, int auxCols,
                short int bDesc, short int bSortKey)
{
    auto table = frame::copyIn(x, rows, frame::columns(cols));
    auto keys = frame::copyIn(key, rows);
    auto companion = frame::copyIn(aux, rows, frame::columns(auxCols));
    sortRows(&table, rows, cols, from, to, keys, companion, auxCols, bDesc, bSortKey);
    frame::copyOut(keys, key);
    frame::copyOut(companion, aux);
    frame::copyOut(table, x);
    return 0;
}

int VB_SortQDbl2(double* x, int rows, int cols, int from, int to, double* key, double* aux, int auxCols,
                 short int bDesc, short int bSortKey)
{
    return sortInPlace(x, rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
}

int VB_SortQByColDbl(double* x, int rows, int cols, int from, int to, double* key, double* aux, int auxRows,
                     short int bDesc, short int bSortKey)
{
    auto table = frame::copyIn(x, frame::columns(rows), cols);
    auto keys = frame::copyIn(key, cols);
    auto companion = frame::copyIn(aux, frame::columns(auxRows), cols);
    SortQByCol(&table, frame::columns(rows), cols, from, to, &keys, &companion, frame::columns(auxRows),
               bDesc != 0, bSortKey != 0);
    frame::copyOut(keys, key);
    frame::copyOut(companion, aux);
    frame::copyOut(table, x);
    return 0;
}

int VB_SortQLng(int* x, int rows, int cols, int from, int to, int* key, int* aux, int auxCols,
                short int bDesc, short int bSortKey)
{
    return sortInPlace(x, rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
}

int VB_SortQBool(short int* x, int rows, int cols, int from, int to, double* key, short int* aux, int auxCols,
                 short int bDesc, short int bSortKey)
{
    return sortInPlace(x, rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
}

int VB_SortQStr(OLECHAR** x, int rows, int cols, int from, int to, double* key, OLECHAR** aux, int auxCols,
                short int bDesc, short int bSortKey)
{
    return sortInPlace(x, rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
}

int Cpp_SortQDbl_ST(ST_MVect* x, int rows, int cols, int from, int to, double* key, double* aux, int auxCols,
                    short int bDesc, short int bSortKey)
{
    auto table = frame::record<double>(x);
    return sortAttached(table, rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
}

int Cpp_SortQLng_ST(SAFEARRAY** x, int rows, int cols, int from, int to, int* key, int* aux, int auxCols,
                    short int bDesc, short int bSortKey)
{
    auto table = frame::attach<int>(x);
    return sortAttached(&table, rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
}

int Cpp_SortQStr_ST(ST_MVect* x, int rows, int cols, int from, int to, double* key, OLECHAR** aux,
                    int auxCols, short int bDesc, short int bSortKey)
{
    auto table = frame::record<text>(x);
    return sortAttached(table, rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
}

int VB_SortDataBy01(double* x, int rows, int cols, double* key)
{
    return sortInPlaceBy01(x, rows, cols, key);
}

int VB_SortDataBy01Bool(short int* x, int rows, int cols, double* key)
{
    return sortInPlaceBy01(x, rows, cols, key);
}

int VB_SortDataBy01Str(OLECHAR** x, int rows, int cols, double* key)
{
    return sortInPlaceBy01(x, rows, cols, key);
}
