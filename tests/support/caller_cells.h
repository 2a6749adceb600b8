/**
 * @file
 * Arrays of any element type as a caller has them, between guards, filled from and read as small whole
 * numbers: a number means itself, or a text of its digits (0 the empty text). So one table of cases serves
 * all forms of a function.
 */
#ifndef KORVEL_TESTS_SUPPORT_CALLER_CELLS_H
#define KORVEL_TESTS_SUPPORT_CALLER_CELLS_H

#include "support/caller_memory.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <type_traits>
#include <vector>

namespace korvel::test
{

using codes = std::vector<int>;

inline std::u16string textOf(int code)
{
    const std::string digits = code == 0 ? std::string() : std::to_string(code);
    return {digits.begin(), digits.end()};
}

inline int codeOf(const std::u16string& value)
{
    return value.empty() ? 0 : std::stoi(std::string(value.begin(), value.end()));
}

/** The element of a caller's block: a number, or a BSTR. */
using text_cell = OLECHAR*;

/** What a cell outside of a table reads as. */
template <class Cell>
inline constexpr int outside = std::same_as<Cell, double> || std::same_as<Cell, int> ? -1 : 0;

namespace detail
{

template <class Cell>
SAFEARRAY* makeArray(caller_memory& memory, const std::vector<ULONG>& counts, const codes& values)
{
    if constexpr (std::same_as<Cell, text_cell>) {
        std::vector<std::u16string> texts;
        std::transform(values.begin(), values.end(), std::back_inserter(texts), textOf);
        SAFEARRAY* const flat = memory.texts(texts);
        if (counts.size() == 1) {
            return flat;
        }
        SAFEARRAY* const shaped = memory.array(counts, std::vector<BSTR>());
        shaped->pvData = flat->pvData;
        shaped->cbElements = flat->cbElements;
        shaped->fFeatures |= FADF_BSTR;
        return shaped;
    } else {
        std::vector<Cell> cells;
        std::transform(values.begin(), values.end(), std::back_inserter(cells),
                       [](int code) { return static_cast<Cell>(code); });
        return memory.array(counts, cells);
    }
}

template <class Cell>
codes codesIn(const SAFEARRAY* array, std::size_t count)
{
    codes found;
    for (std::size_t k = 0; k < count; ++k) {
        const Cell cell = static_cast<const Cell*>(array->pvData)[k];
        if constexpr (std::same_as<Cell, text_cell>) {
            found.push_back(cell != nullptr ? codeOf(contentOf(cell)) : 0);
        } else {
            found.push_back(static_cast<int>(cell));
        }
    }
    return found;
}

} // namespace detail

/** A block of cells, or a host array of them. */
template <class Cell>
class caller_cells
{
public:
    caller_cells(std::initializer_list<int> values) : caller_cells(codes(values)) {}
    explicit caller_cells(const codes& values) : caller_cells({static_cast<ULONG>(values.size())}, values) {}

    /** With dimensions, the leftmost first. */
    caller_cells(const std::vector<ULONG>& counts, const codes& values)
        : count_(values.size()), array_(detail::makeArray<Cell>(memory_, counts, values))
    {
    }

    [[nodiscard]] Cell* data() { return static_cast<Cell*>(array_->pvData); }
    [[nodiscard]] SAFEARRAY** argument() { return &array_; }

    /** The cells, after a check that nothing round them was written. */
    [[nodiscard]] codes values() const
    {
        EXPECT_TRUE(memory_.guardsIntact());
        return detail::codesIn<Cell>(array_, count_);
    }

private:
    caller_memory memory_;
    std::size_t count_;
    SAFEARRAY* array_;
};

/** A chunked table: a host array of records, each with a column of numbers or of texts. */
template <class Cell>
class caller_chunks
{
public:
    explicit caller_chunks(const std::vector<codes>& columns)
    {
        std::vector<Hostarray> records;
        for (const codes& column : columns) {
            arrays_.push_back(detail::makeArray<Cell>(memory_, {static_cast<ULONG>(column.size())}, column));
            lengths_.push_back(column.size());
            if constexpr (std::same_as<Cell, text_cell>) {
                records.push_back({nullptr, arrays_.back()});
            } else {
                records.push_back({arrays_.back(), nullptr});
            }
        }
        records_ = memory_.array(records);
    }

    [[nodiscard]] Hostarray** argument() { return reinterpret_cast<Hostarray**>(&records_); }

    /** The columns, after a check that nothing round them was written. */
    [[nodiscard]] std::vector<codes> values() const
    {
        EXPECT_TRUE(memory_.guardsIntact());
        std::vector<codes> found;
        for (std::size_t j = 0; j < arrays_.size(); ++j) {
            found.push_back(detail::codesIn<Cell>(arrays_[j], lengths_[j]));
        }
        return found;
    }

private:
    caller_memory memory_;
    std::vector<SAFEARRAY*> arrays_;
    std::vector<std::size_t> lengths_;
    SAFEARRAY* records_;
};

} // namespace korvel::test

#endif
