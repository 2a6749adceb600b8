/**
 * @file
 * Tables of texts given column after column, and random ones.
 */
#ifndef KORVEL_TESTS_SUPPORT_TEXT_TABLES_H
#define KORVEL_TESTS_SUPPORT_TEXT_TABLES_H

#include "containers/matrix.h"
#include "support/random_cells.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace korvel::test
{

/** A table of `rows` rows with these cells, column after column. */
inline matrix<text> textTable(int rows, const std::vector<text>& cells)
{
    matrix<text> table(rows, rows > 0 ? static_cast<int>(cells.size()) / rows : 1, text());
    std::copy(cells.begin(), cells.end(), table.data);
    return table;
}

/** A vector of these texts. */
inline matrix<text> textVector(const std::vector<text>& cells)
{
    return textTable(static_cast<int>(cells.size()), cells);
}

inline std::vector<text> textsOf(const matrix<text>& table)
{
    return {table.data, table.data + table.nbElem};
}

/** A row of a table. */
template <class T>
std::vector<T> rowOf(const matrix<T>& table, int j)
{
    std::vector<T> found;
    for (int k = 0; k < table.nbcols; ++k) {
        found.push_back(table.getElement(j, k));
    }
    return found;
}

/** A text of one of some kinds: words, short and long, that share their beginnings; numbers; or nothing. */
inline text randomText(random_cells& cells, int different)
{
    static const std::array<text, 12> odd{u"0",   u"0.00", u"-3,5", u"1e2",  u" 7",   u"12 months",
                                          u"1.0", u"1",    u"+",    u"1,00", u"0x1F", u"2.5e-1"};
    const int number = cells.integer(0, different - 1);
    switch (cells.integer(0, 5)) {
    case 0:
        return {};
    case 1:
        return odd[static_cast<std::size_t>(number) % odd.size()];
    default:
        break;
    }
    const std::string digits = std::to_string(number);
    const text shown(digits.begin(), digits.end());
    return different % 2 == 0 ? shown : u"a name with a beginning " + shown;
}

/** A table of such texts. */
inline matrix<text> randomTexts(random_cells& cells, int rows, int cols, int different)
{
    matrix<text> table(rows, cols, text());
    std::generate_n(table.data, table.nbElem, [&] { return randomText(cells, different); });
    return table;
}

} // namespace korvel::test

#endif
