#include "frames/qualitative/category_codes.h"

#include "frames/frame.h"
#include "frames/known_categories.h"
#include "qualitative/category_codes.h"

using namespace korvel;

int VB_M_ReplaceStrByCodes(OLECHAR* const* data, int n, int p, const int* categoryCounts,
                           OLECHAR* const* categories, const short int* rowFlags, int firstCode,
                           double* result)
{
    auto cells = frame::readTexts(data, n, p);
    frame::known_categories known(categoryCounts, categories, p);
    auto flags = frame::borrow(rowFlags, n);
    auto codes = frame::filling(result, n, p);
    M_ReplaceStrByCodes(cells, n, p, known.counts, known.names, flags, firstCode, codes);
    return 0;
}

int Cpp_M_ReplaceStrByCodes_ST(ST_MVect* data, int n, int p, const int* categoryCounts,
                               OLECHAR* const* categories, const short int* rowFlags, int firstCode,
                               ST_MVect* result)
{
    auto cells = frame::record<text>(data);
    frame::known_categories known(categoryCounts, categories, p);
    auto flags = frame::borrow(rowFlags, n);
    auto codes = frame::record<double>(result);
    M_ReplaceStrByCodes(cells, n, p, known.counts, known.names, flags, firstCode, codes);
    return 0;
}

int Cpp_M_ReplaceStrByCodesSPV(OLECHAR* const* data, int n, int p, const int* categoryCounts,
                               OLECHAR* const* categories, const short int* rowFlags, int firstCode,
                               Hostarray** result)
{
    auto cells = frame::readTexts(data, n, p);
    frame::known_categories known(categoryCounts, categories, p);
    auto flags = frame::borrow(rowFlags, n);
    const auto codes = frame::chunks(result, p, n);
    M_ReplaceStrByCodesSPV(cells, n, p, known.counts, known.names, flags, firstCode, codes.get());
    return 0;
}

int Cpp_M_ReplaceCatByCodes(OLECHAR* const* data, int n, int p, const int* categoryCounts,
                            OLECHAR* const* categories, double* result)
{
    auto cells = frame::readTexts(data, n, p);
    frame::known_categories known(categoryCounts, categories, p);
    auto codes = frame::borrow(result, n, p);
    M_ReplaceCatByCodes(cells, n, p, known.counts, known.names, codes);
    return 0;
}

int Cpp_M_ReplaceCatByCodes_ST(ST_MVect* data, int n, int p, const int* categoryCounts,
                               OLECHAR* const* categories, ST_MVect* result)
{
    auto cells = frame::record<text>(data);
    frame::known_categories known(categoryCounts, categories, p);
    auto codes = frame::record<double>(result);
    M_ReplaceCatByCodes(cells, n, p, known.counts, known.names, codes);
    return 0;
}

int VB_M_ReplaceStrByCodesBinary(OLECHAR* const* data, int n, int p, const short int* rowFlags,
                                 double* result)
{
    auto cells = frame::readTexts(data, n, p);
    auto table = frame::filling(result, n, p);
    auto* codes = &table;
    M_ReplaceStrByCodesBinary(&cells, n, p, frame::readOnly(rowFlags), codes);
    return 0;
}

int Cpp_M_RecodeDataWithCodes_ST(ST_MVect* data, int n, int p, ST_MVect* codes, int codeCount,
                                 ST_MVect* result)
{
    // The result is put back last, after the texts that it was made from.
    auto recoded = frame::record<text>(result);
    auto cells = frame::record<text>(data);
    auto replacements = frame::record<text>(codes);
    M_RecodeDataWithCodes_ST(cells, n, p, replacements, codeCount, recoded);
    return 0;
}

int Cpp_V_RecodeToBinary(OLECHAR* const* column, int n, const OLECHAR* value, double* result)
{
    auto cells = frame::readTexts(column, n);
    auto numbers = frame::filling(result, n);
    V_RecodeToBinary(&cells, n, readBstr(frame::readOnly(value)), &numbers);
    return 0;
}
