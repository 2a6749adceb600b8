#include "frames/missing/missing_flags.h"

#include "frames/frame.h"
#include "missing/missing_flags.h"

using namespace korvel;

int VB_V_GetMissingDbl(const double* x, int n, const short int* iMissing, short int* iMissingOut)
{
    auto values = frame::borrow(x, n);
    return V_GetMissingDbl(&values, n, frame::readOnly(iMissing), iMissingOut);
}

int VB_V_GetMissingStr(OLECHAR* const* x, int n, const short int* iMissing, short int* iMissingOut)
{
    auto texts = frame::readTexts(x, n);
    return V_GetMissingStr(&texts, n, frame::readOnly(iMissing), iMissingOut);
}

int Cpp_M_GetMissingDbl(const double* x, int rows, int cols, const short int* iMissing,
                        short int* iMissingOut)
{
    getMissing(frame::borrow(x, rows, frame::columns(cols)), rows, frame::columns(cols), iMissing,
               iMissingOut);
    return 0;
}

int Cpp_M_GetMissingStr(OLECHAR* const* x, int rows, int cols, const short int* iMissing,
                        short int* iMissingOut)
{
    getMissing(frame::readTexts(x, rows, frame::columns(cols)), rows, frame::columns(cols), iMissing,
               iMissingOut);
    return 0;
}

int Cpp_M_GetMissingDblSPV(Hostarray** x, int rows, int cols, const short int* iMissing,
                           short int* iMissingOut)
{
    const auto columns = frame::chunks(x, cols, rows);
    getMissing(columns.get(), rows, cols, iMissing, iMissingOut);
    return 0;
}

int VB_SummarizeMissing(int n, int* count, short int* result, const short int* a, const short int* b,
                        const short int* c)
{
    *count = summarizeMissing(n, a, b, c, result);
    return 0;
}

int VB_SummarizeAllMissing(int n, const short int* a, const short int* b, int* count, short int* result)
{
    *count = summarizeAllMissing(n, a, b, result);
    return 0;
}

int VB_M_AllMissingRows(const double* x, int n, int p, const short int* flagsIn, short int* flagsOut)
{
    flagAllMissingRows(frame::borrow(x, n, frame::columns(p)), n, frame::columns(p), flagsIn, flagsOut);
    return 0;
}

int VB_M_AllMissingRowsStr(OLECHAR* const* x, int n, int p, const short int* flagsIn, short int* flagsOut)
{
    flagAllMissingRows(frame::readTexts(x, n, frame::columns(p)), n, frame::columns(p), flagsIn, flagsOut);
    return 0;
}

short int Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(const double* x, int n)
{
    auto table = frame::borrow(x, n, n);
    return M_IsMissingOutOfDiagonalAndNotOnDiags(&table, n);
}

short int Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(Hostarray** x, int n)
{
    const auto columns = frame::triangularChunks(x, n);
    return M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(columns.get(), n);
}
