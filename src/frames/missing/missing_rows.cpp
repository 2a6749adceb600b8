#include "frames/missing/missing_rows.h"

#include "frames/frame.h"
#include "missing/missing_rows.h"

using namespace korvel;

namespace
{

template <class Read, class Written>
int removeRows(Read* x, int n, int p, int removed, const short int* flags, Written* result)
{
    auto shorter = frame::filling(result, n - removed, p);
    auto table = frame::besides(shorter, x, n, p);
    copyRowsKept(table, n, p, removed, flags, shorter);
    frame::bringBack(shorter, result);
    return 0;
}

template <class Read, class Written>
int removeFlaggedRows(Read* x, int n, int p, const short int* flags, Written* result)
{
    const int kept = countKept(flags, n);
    removeRows(x, n, p, n - kept, flags, result);
    return kept;
}

template <class Core, class Cell>
int insertRows(Core core, const Cell* x, int n, int p, const short int* flags, int m, Cell* result)
{
    auto longer = frame::filling(result, n + m, p);
    auto table = frame::besides(longer, x, n, p);
    core(&table, n, p, frame::readOnly(flags), m, &longer);
    return 0;
}

} // namespace

int Cpp_M_RemoveRowsWithMissing2(double* x, int n, int p, const short int* flags)
{
    auto table = frame::changing(x, n, frame::columns(p));
    auto* changed = &table;
    M_RemoveRowsWithMissing2(changed, n, table.nbcols, frame::readOnly(flags));
    return 0;
}

int VB_RemoveRowsWithMissing(const double* x, int n, int p, int removed, const short int* flags,
                             double* result)
{
    return removeRows(x, n, frame::columns(p), removed, flags, result);
}

int VB_RemoveRowsWithMissingStr(OLECHAR** x, int n, int p, int removed, const short int* flags,
                                OLECHAR** result)
{
    auto table = frame::changing(x, n, frame::columns(p));
    auto* changed = &table;
    M_RemoveRowsWithMissing2(changed, n, table.nbcols, frame::readOnly(flags));
    frame::bringBack(table, x);
    auto shorter = frame::filling(result, n - removed, table.nbcols);
    copyFirstRows(table, n - removed, table.nbcols, shorter);
    frame::bringBack(shorter, result);
    return 0;
}

int VB_RemoveRowsWithMissingBool(const short int* x, int n, int p, int removed, const short int* flags,
                                 short int* result)
{
    return removeRows(x, n, frame::columns(p), removed, flags, result);
}

int Cpp_RemoveRowsWithMissingOniMissing(const double* x, int n, int p, const short int* iMissing,
                                        double* result)
{
    return removeFlaggedRows(x, n, frame::columns(p), iMissing, result);
}

int Cpp_RemoveRowsWithMissingOniMissingStr(OLECHAR* const* x, int n, int p, const short int* iMissing,
                                           OLECHAR** result)
{
    return removeFlaggedRows(x, n, frame::columns(p), iMissing, result);
}

int Cpp_M_InsertMissingDbl(const double* x, int n, int p, const short int* flags, int m, double* result)
{
    return insertRows(M_InsertMissing, x, n, frame::columns(p), flags, m, result);
}

int Cpp_M_InsertMissingLng(const int* x, int n, int p, const short int* flags, int m, int* result)
{
    return insertRows(M_InsertMissingLng, x, n, frame::columns(p), flags, m, result);
}
