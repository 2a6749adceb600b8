#include "qualitative/disjunctive_tables.h"

#include "containers/views.h"
#include "qualitative/category_slots.h"

#include <algorithm>

namespace
{

using korvel::column_slots;
using korvel::row_slots;

/** How categories are written. */
struct coding_rule {
    int coding;
    int firstCategoryOption;

    /**
     * Whether a row of the category at position c, of the variable that starts in column `start` and has
     * `count` categories, has 1 there. Where two categories are told apart by the -1 of the last one, neither
     * has.
     */
    [[nodiscard]] bool marks(int c, int start, int count) const
    {
        const bool noFirst = firstCategoryOption != 1 && firstCategoryOption != 2;
        if (coding == 2 && count == 2 && noFirst) {
            return false;
        }
        return c > 0 || coding == 0 || firstCategoryOption == 2 || (firstCategoryOption == 1 && start == 0);
    }

    /** Whether a row of the last category has a number of its own in the other columns. */
    [[nodiscard]] bool marksLast() const { return 1 <= coding && coding <= 3; }

    /** That number, in the column of the category at position c. */
    template <class Frequencies>
    [[nodiscard]] double ofLast(int c, int last, const Frequencies& frequencies) const
    {
        if (coding == 3) {
            return -frequencies.get(c) / frequencies.get(last);
        }
        return coding == 2 ? -1.0 : 0.0;
    }
};

/** The columns of one variable, which start at column `start` of the result. */
template <class Column, class Names, class Frequencies, class Result>
void codeVariable(int n, const Column& column, int count, const Names& names, const Frequencies& frequencies,
                  Result&& result, int start, const coding_rule& rule)
{
    const int last = count - 1;
    for (int i = 0; i < n; ++i) {
        const text& cell = column[i];
        const bool isLast = count > 0 && cell == names.get(last);
        for (int c = 0; c < count; ++c) {
            if (cell.empty()) {
                result.set(i, start + c, MISSING_DBL);
            } else if (rule.marks(c, start, count) && cell == names.get(c)) {
                result.set(i, start + c, 1.0);
            } else if (isLast && c < last && rule.marksLast()) {
                result.set(i, start + c, rule.ofLast(c, last, frequencies));
            }
        }
    }
}

} // namespace

void BuildDisjunctiveTable(matrix<text>& data, int n, int p, int totalColumns, matrix<int>& categoryCounts,
                           matrix<text>& categories, matrix<double>& frequencies, matrix<double>& result,
                           int coding, int firstCategoryOption)
{
    result.Redim(n, totalColumns, 0.0);
    const coding_rule rule{coding, firstCategoryOption};
    int start = 0;
    for (int j = 0; j < p; ++j) {
        const int count = std::max(categoryCounts[j], 0);
        codeVariable(n, korvel::reading(data).column(j, n), count, row_slots<const text>(categories, j),
                     row_slots<const double>(frequencies, j), korvel::writing(result), start, rule);
        start += count;
    }
}

void BuildDisjunctiveTable_ST(cST_MVect<text>& data, cST_QualiInfo& info, cST_MVect<double>& result,
                              int coding, int firstCategoryOption)
{
    const int n = data.nbrowsmax;
    const coding_rule rule{coding, firstCategoryOption};
    column_slots<text> cells(data);
    column_slots<text> names(*info.CatNames);
    column_slots<double> frequencies(*info.CatFreq);
    column_slots<double> columns(result);
    int start = 0;
    for (int j = 0; j < data.nbcols; ++j) {
        const int count = std::max((*info.NbCat)[j], 0);
        for (int c = 0; c < count; ++c) {
            if (columns.has(start + c)) {
                columns.column(start + c).Redim(n, 1, 0.0);
            }
        }
        codeVariable(n, korvel::readVector(cells.column(j), n), count, names[j], frequencies[j], columns,
                     start, rule);
        start += count;
    }
}

void BuildDisjunctiveTableWithCLabels_ST(cST_MVect<text>& data, cST_QualiInfo& info,
                                         cST_MVect<double>& result, int coding, int firstCategoryOption,
                                         short int longLabels)
{
    BuildDisjunctiveTable_ST(data, info, result, coding, firstCategoryOption);
    column_slots<text> names(*info.CatNames);
    int start = 0;
    for (int j = 0; j < data.nbcols; ++j) {
        const text prefix = longLabels == -1 ? (*info.VarLabels)[j] + u'-' : text();
        const int count = std::max((*info.NbCat)[j], 0);
        for (int c = 0; c < count; ++c) {
            korvel::storeChecked(result.CLabels, start + c, prefix + names[j].get(c));
        }
        start += count;
    }
}
