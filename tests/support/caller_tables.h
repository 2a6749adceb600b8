/**
 * @file
 * A caller's texts, and tables of separate columns of numbers, with guards round every block. Where small
 * whole numbers will do for cells of every type, `caller_cells.h` has blocks of all types.
 */
#ifndef KORVEL_TESTS_SUPPORT_CALLER_TABLES_H
#define KORVEL_TESTS_SUPPORT_CALLER_TABLES_H

#include "support/caller_memory.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

namespace korvel::test
{

/** A block of texts; `data()` is what a flat function gets. */
class text_block
{
public:
    using texts = std::vector<std::u16string>;

    explicit text_block(const texts& values) : places_(memory_.texts(values)) {}

    OLECHAR** data() { return static_cast<OLECHAR**>(places_->pvData); }

    /** The texts, after a check that nothing round them was written. */
    texts values() const
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

    columns values() const
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

} // namespace korvel::test

#endif
