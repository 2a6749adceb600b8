/**
 * @file
 * A caller's tables in the forms that flat functions take, with guards round every block: one type of block
 * for every element type, so that a test can run over all of them, and tables of separate columns.
 */
#ifndef KORVEL_TESTS_SUPPORT_CALLER_TABLES_H
#define KORVEL_TESTS_SUPPORT_CALLER_TABLES_H

#include "support/caller_memory.h"
#include "support/guarded.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

namespace korvel::test
{

/** A block of cells; `argument()` is what a flat function gets. */
template <class T>
class caller_block
{
public:
    explicit caller_block(const std::vector<T>& cells) : cells_(cells) {}

    T* argument() { return cells_.data(); }

    /** The cells, after a check that nothing round them was written. */
    std::vector<T> cells() const { return valuesOf(cells_); }

private:
    guarded<T> cells_;
};

template <>
class caller_block<std::u16string>
{
public:
    explicit caller_block(const std::vector<std::u16string>& cells) : places_(memory_.texts(cells)) {}

    OLECHAR** argument() { return static_cast<OLECHAR**>(places_->pvData); }

    std::vector<std::u16string> cells() const
    {
        EXPECT_TRUE(memory_.guardsIntact());
        return textsIn(places_);
    }

private:
    caller_memory memory_;
    SAFEARRAY* places_;
};

/** A table of separate columns of numbers; the columns may differ in length. */
class caller_columns
{
public:
    using columns = std::vector<std::vector<double>>;

    explicit caller_columns(const columns& cells)
    {
        std::vector<Hostarray> records;
        for (const std::vector<double>& column : cells) {
            arrays_.push_back(memory_.array(column));
            records.push_back({arrays_.back(), nullptr});
        }
        records_ = memory_.array(records);
    }

    Hostarray** argument() { return reinterpret_cast<Hostarray**>(&records_); }

    columns cells() const
    {
        EXPECT_TRUE(memory_.guardsIntact());
        columns found;
        std::transform(arrays_.begin(), arrays_.end(), std::back_inserter(found), numbersIn<double>);
        return found;
    }

private:
    caller_memory memory_;
    std::vector<SAFEARRAY*> arrays_;
    SAFEARRAY* records_ = nullptr;
};

/** A cell of any type for a small number. */
template <class T>
T cellFor(int number)
{
    if constexpr (std::is_arithmetic_v<T>) {
        return static_cast<T>(number);
    } else {
        return std::u16string(1, static_cast<char16_t>(u'a' + number));
    }
}

/** Cells of any type for small numbers. */
template <class T>
std::vector<T> cellsFor(const std::vector<int>& numbers)
{
    std::vector<T> cells;
    std::transform(numbers.begin(), numbers.end(), std::back_inserter(cells), cellFor<T>);
    return cells;
}

} // namespace korvel::test

#endif
