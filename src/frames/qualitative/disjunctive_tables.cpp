#include "frames/qualitative/disjunctive_tables.h"

#include "frames/frame.h"
#include "frames/known_categories.h"
#include "qualitative/disjunctive_tables.h"

using namespace korvel;

int VB_BuildDisjunctiveTable(OLECHAR* const* data, int n, int p, int totalColumns, const int* categoryCounts,
                             OLECHAR* const* categories, const double* frequencies, double* result,
                             int coding, int firstCategoryOption)
{
    auto cells = frame::readTexts(data, n, p);
    frame::known_categories known(categoryCounts, categories, p);
    auto sums = frame::borrow(frequencies, p, known.names.nbcols);
    auto table = frame::filling(result, n, totalColumns);
    BuildDisjunctiveTable(cells, n, p, totalColumns, known.counts, known.names, sums, table, coding,
                          firstCategoryOption);
    return 0;
}

int Cpp_BuildDisjunctiveTable_ST(ST_MVect* data, ST_QualiInfo* info, ST_MVect* result, int coding,
                                 int firstCategoryOption)
{
    auto cells = frame::record<text>(data);
    auto statistics = frame::record(info);
    auto table = frame::record<double>(result);
    BuildDisjunctiveTable_ST(cells, statistics, table, coding, firstCategoryOption);
    return 0;
}
