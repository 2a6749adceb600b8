/**
 * @file
 * Finds out what a column holds whose cells are not all plain numbers.
 */
#ifndef KORVEL_EXAMPLES_COLUMN_KINDS_H
#define KORVEL_EXAMPLES_COLUMN_KINDS_H

#include "data_set.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace report
{

/** A column in which each different text is kept once. */
class interned_column
{
public:
    static constexpr int missing = -1;

    void addMissing() { cells_.push_back(missing); }
    void add(std::string_view text);
    void reserve(std::size_t rows) { cells_.reserve(rows); }

    /** For each row the number of its text, or `missing`. */
    [[nodiscard]] const std::vector<int>& cells() const { return cells_; }
    /** The different texts in order of appearance. */
    [[nodiscard]] const std::deque<std::string>& texts() const { return texts_; }

private:
    std::deque<std::string> texts_;
    std::unordered_map<std::string_view, int> numbers_;
    std::vector<int> cells_;
};

/** What such a column holds, and what is to be told of that. */
struct column_kind {
    const number_style* numbers = nullptr; ///< Not null: numbers in that style.
    const date_style* dates = nullptr;     ///< Not null: dates in that style.
    std::string note;                      ///< Empty when there is nothing to tell.
};

/** The first style that all cells of the column have. */
column_kind kindOf(const std::string& name, const interned_column& column, char separator);

/** Writes the numbers of a column in a style, one for each row, and returns the most decimals of any. */
int storeNumbers(const interned_column& column, const number_style& style, double* values);

date_column datesOf(std::string name, const interned_column& column, const date_style& style);

text_column textsOf(std::string name, const interned_column& column);

} // namespace report

#endif
