#include "domain/range_texts.h"

#include "containers/matrix.h"
#include "ordering/sort_table.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

namespace
{

using view = std::u16string_view;

/** What stands between the first `opening` and the next `closing` behind it. */
std::optional<view> between(view value, char16_t opening, char16_t closing)
{
    const std::size_t first = value.find(opening);
    if (first == view::npos) {
        return std::nullopt;
    }
    const std::size_t last = value.find(closing, first + 1);
    if (last == view::npos) {
        return std::nullopt;
    }
    return value.substr(first + 1, last - first - 1);
}

/** What stands behind the first `mark`; nothing when there is none. */
view behind(view value, char16_t mark)
{
    const std::size_t place = value.find(mark);
    return place == view::npos ? view() : value.substr(place + 1);
}

/** The name of the sheet that all ranges are on; none when they are on several, or one has no quotes. */
std::optional<view> commonSheet(view list, int ranges)
{
    const auto sheet = between(list, u'\'', u'\'');
    view rest = behind(list, u',');
    for (int i = 1; sheet && i < ranges; ++i) {
        if (between(rest, u'\'', u'\'') != sheet) {
            return std::nullopt;
        }
        rest = behind(rest, u',');
    }
    return sheet;
}

/** Stores a column of a range, unless there is none or it is a row. */
bool store(const std::optional<view>& column, int i, int j, matrix<text>& columns)
{
    if (!column || (!column->empty() && column->front() >= u'0' && column->front() <= u'9')) {
        return false;
    }
    columns.setElement(i, j, text(*column));
    return true;
}

/** Fills a table with the columns of a list, the first and the last one of each range; false when it cannot.
 */
bool readColumns(view list, matrix<text>& columns)
{
    view rest = list;
    for (int i = 0; i < columns.nbrows; ++i) {
        if (!store(between(rest, u'$', u':'), i, 0, columns)) {
            return false;
        }
        rest = behind(rest, u':');
        const bool isLast = i == columns.nbrows - 1;
        const view whole = rest.substr(std::min<std::size_t>(rest.size(), 1));
        if (!store(isLast ? whole : between(rest, u'$', u','), i, 1, columns)) {
            return false;
        }
        rest = behind(rest, u',');
    }
    return true;
}

/** The number of a column: A is 1, Z is 26, AA is 27. */
double numberOf(const text& column)
{
    double number = 0.0;
    for (const char16_t letter : column) {
        number = number * 26.0 + (letter - u'A' + 1);
    }
    return number;
}

/** The list of sorted ranges, those that follow each other as one. */
text joined(const matrix<text>& columns, int ranges, view sheet)
{
    const auto first = [&](int i) -> const text& { return columns.getElement(i, 0); };
    const auto last = [&](int i) -> const text& { return columns.getElement(i, 1); };
    text list;
    const auto open = [&](int i) {
        list += u"'";
        list += sheet;
        list += u"'!$" + first(i) + u":";
    };
    open(0);
    bool isOpen = true;
    for (int i = 1; i < ranges; ++i) {
        if (AreContiguous(last(i - 1), first(i)) == 0) {
            list += last(i - 1) + u",";
            open(i);
            continue;
        }
        while (i + 1 < ranges && AreContiguous(last(i), first(i + 1)) != 0) {
            ++i;
        }
        list += u"$" + last(i);
        ++i;
        isOpen = i < ranges;
        if (isOpen) {
            list += u",";
            open(i);
        }
    }
    return isOpen ? list + u"$" + last(ranges - 1) : list;
}

} // namespace

text cSimplifyRange(text value)
{
    const int ranges = static_cast<int>(std::count(value.begin(), value.end(), u',')) + 1;
    const auto sheet = ranges > 1 ? commonSheet(value, ranges) : std::nullopt;
    matrix<text> columns(sheet ? ranges : 0, 2, text());
    if (!sheet || !readColumns(value, columns)) {
        return value;
    }
    matrix<double> keys(ranges, 1, 0.0);
    for (int i = 0; i < ranges; ++i) {
        keys.data[i] = numberOf(columns.getElement(i, 0));
    }
    SortQ(&columns, ranges, 2, 1, ranges, &keys, nullptr, 0, false, false);
    return joined(columns, ranges, *sheet);
}

text cIncrease1Col(text column)
{
    for (auto letter = column.rbegin(); letter != column.rend(); ++letter) {
        if (*letter != u'Z') {
            ++*letter;
            break;
        }
        *letter = u'A';
    }
    return column;
}

short int AreContiguous(text first, text second)
{
    return cIncrease1Col(std::move(first)) == second ? short{-1} : short{0};
}
