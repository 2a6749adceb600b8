#include "qualitative/category_codes.h"

#include "containers/map_cells.h"
#include "qualitative/category_slots.h"
#include "qualitative/text_index.h"
#include "statistics/stand_ins.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace
{

using korvel::row_slots;

/** Positions of names by their text; of equal names the first one counts. */
template <class Names>
void indexFirst(const Names& names, int count, korvel::text_index& index)
{
    index.clear();
    for (int k = 0; k < count; ++k) {
        index.findOrPut(names.get(k), k);
    }
}

/** What becomes of a row that is left out, and of a cell that is no category. */
enum class no_code { isMissing, leavesTheCell };

/** The codes of each variable: `firstCode` for its first category, and one more for each next one. */
template <no_code rule, class From, class Flags, class To>
void replaceByCodes(const From& from, int n, int p, const matrix<int>& categoryCounts,
                    const matrix<text>& categories, const Flags& rowFlags, int firstCode, const To& to)
{
    korvel::text_index index;
    for (int j = 0; j < p; ++j) {
        indexFirst(row_slots<const text>(categories, j), categoryCounts[j], index);
        korvel::withCells(
            [&](auto cells, auto& codes) {
                for (int i = 0; i < n; ++i) {
                    const int k = rowFlags[i] == 0 ? index.find(cells[i]) : -1;
                    if (k >= 0) {
                        codes.set(i, static_cast<double>(firstCode) + k);
                    } else if (rule == no_code::isMissing) {
                        codes.set(i, MISSING_DBL);
                    }
                }
            },
            from.column(j, n), to.column(j, n));
    }
}

/** How many of `p` columns both records have. */
template <class From, class To>
int sharedColumns(int p, const cST_MVect<From>& from, const cST_MVect<To>& to)
{
    return static_cast<int>(
        std::min({static_cast<std::size_t>(std::max(p, 0)), from.Vectors.size(), to.Vectors.size()}));
}

} // namespace

void M_ReplaceStrByCodes(matrix<text>& data, int n, int p, matrix<int>& categoryCounts,
                         matrix<text>& categories, matrix<short int>& rowFlags, int firstCode,
                         matrix<double>& result)
{
    replaceByCodes<no_code::isMissing>(korvel::reading(data), n, p, categoryCounts, categories,
                                       std::as_const(rowFlags), firstCode, korvel::writing(result));
}

void M_ReplaceStrByCodes(cST_MVect<text>& data, int n, int p, matrix<int>& categoryCounts,
                         matrix<text>& categories, matrix<short int>& rowFlags, int firstCode,
                         cST_MVect<double>& result)
{
    replaceByCodes<no_code::isMissing>(korvel::reading(data), n, sharedColumns(p, data, result),
                                       categoryCounts, categories, std::as_const(rowFlags), firstCode,
                                       korvel::writing(result));
}

void M_ReplaceStrByCodesSPV(matrix<text>& data, int n, int p, matrix<int>& categoryCounts,
                            matrix<text>& categories, matrix<short int>& rowFlags, int firstCode,
                            matrix<double>** result)
{
    replaceByCodes<no_code::isMissing>(korvel::reading(data), n, p, categoryCounts, categories,
                                       std::as_const(rowFlags), firstCode, korvel::writing(result));
}

void M_ReplaceCatByCodes(matrix<text>& data, int n, int p, matrix<int>& categoryCounts,
                         matrix<text>& categories, matrix<double>& result)
{
    replaceByCodes<no_code::leavesTheCell>(korvel::reading(data), n, p, categoryCounts, categories,
                                           korvel::no_flags{}, 1, korvel::writing(result));
}

void M_ReplaceCatByCodes(cST_MVect<text>& data, int n, int p, matrix<int>& categoryCounts,
                         matrix<text>& categories, cST_MVect<double>& result)
{
    replaceByCodes<no_code::leavesTheCell>(korvel::reading(data), n, sharedColumns(p, data, result),
                                           categoryCounts, categories, korvel::no_flags{}, 1,
                                           korvel::writing(result));
}

void M_ReplaceStrByCodesBinary(matrix<text>* data, int n, int p, short int* rowFlags, matrix<double>*& result)
{
    if (result == nullptr) {
        result = new matrix<double>();
    }
    result->Redim(n, p, MISSING_DBL);
    korvel::text_index index;
    int different = 0;
    korvel::withFlags(rowFlags, [&](auto flags) {
        for (int j = 0; j < p; ++j) {
            korvel::withCells(
                [&](auto cells, auto& codes) {
                    for (int i = 0; i < n; ++i) {
                        if (flags[i] == 0) {
                            const int code = index.findOrPut(cells[i], different);
                            different += code == different ? 1 : 0;
                            codes.set(i, code);
                        }
                    }
                },
                korvel::reading(*data).column(j, n), korvel::writing(*result).column(j, n));
        }
    });
}

void M_RecodeDataWithCodes_ST(cST_MVect<text>& data, int n, int p, cST_MVect<text>& codes, int codeCount,
                              cST_MVect<text>& result)
{
    if (codeCount < 1) {
        return;
    }
    korvel::column_slots<text> columns(codes);
    korvel::text_index index;
    indexFirst(columns[0], codeCount, index);
    const auto replacements = columns[1];
    korvel::mapCells(
        n, sharedColumns(p, data, result),
        [&](const text& cell) {
            const int k = index.find(cell);
            return k >= 0 ? replacements.get(k) : cell;
        },
        korvel::writing(result), korvel::reading(data));
}

void V_RecodeToBinary(matrix<text>* column, int n, text value, matrix<double>* result)
{
    korvel::withCells(
        [&](auto cells, auto& numbers) {
            for (int i = 0; i < n; ++i) {
                numbers.set(i, cells[i] == value ? 1.0 : 0.0);
            }
        },
        korvel::readVector(*column, n), korvel::writeVector(*result, n));
}
