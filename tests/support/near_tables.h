/**
 * @file
 * Random tables, dense and in chunks, of about a given size and with a random spare slot, and their exact
 * comparison.
 */
#ifndef KORVEL_TESTS_SUPPORT_NEAR_TABLES_H
#define KORVEL_TESTS_SUPPORT_NEAR_TABLES_H

#include "support/bits.h"
#include "support/random_cells.h"

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace korvel::test
{

template <class T>
T randomCell(random_cells& cells)
{
    if constexpr (std::same_as<T, double>) {
        return cells.value();
    } else if constexpr (std::same_as<T, text>) {
        // Short texts stand inside the string object, long ones elsewhere.
        return text(static_cast<std::size_t>(cells.integer(0, 12)),
                    static_cast<char16_t>(u'a' + cells.integer(0, 25)));
    } else {
        return static_cast<T>(cells.integer(-30000, 30000));
    }
}

template <class T>
void fillRandomly(random_cells& cells, matrix<T>& table)
{
    std::generate_n(table.data, table.nbElem, [&] { return randomCell<T>(cells); });
    table.oobValue = randomCell<T>(cells);
}

/** A table of `rows` by `cols`, or somewhat smaller or larger. */
template <class T>
matrix<T> nearTable(random_cells& cells, int rows, int cols)
{
    const auto about = [&](int count) {
        return std::max(count + cells.integer(-1, 1) * cells.integer(0, 2), 0);
    };
    matrix<T> table(about(rows), about(cols), T{});
    fillRandomly(cells, table);
    return table;
}

/** A copy, spare slot included. */
template <class T>
matrix<T> twinOf(const matrix<T>& table)
{
    matrix<T> twin(table);
    twin.oobValue = table.oobValue;
    return twin;
}

/** Columns that are chunks of their own. */
template <class T>
class random_chunks
{
public:
    /** Chunk j has about `length(j)` elements. */
    template <class Length>
    random_chunks(random_cells& cells, int count, Length length)
    {
        for (int j = 0; j < count; ++j) {
            add(nearTable<T>(cells, length(j), 1));
        }
    }
    random_chunks(const random_chunks& src)
    {
        for (const auto& chunk : src.chunks_) {
            add(twinOf(*chunk));
        }
    }
    random_chunks& operator=(const random_chunks&) = delete;

    [[nodiscard]] matrix<T>** get() { return pointers_.data(); }
    [[nodiscard]] int size() const { return static_cast<int>(chunks_.size()); }
    [[nodiscard]] matrix<T>& operator[](int j) { return *pointers_[static_cast<std::size_t>(j)]; }

private:
    void add(matrix<T>&& chunk)
    {
        chunks_.push_back(std::make_unique<matrix<T>>(std::move(chunk)));
        pointers_.push_back(chunks_.back().get());
    }

    std::vector<std::unique_ptr<matrix<T>>> chunks_;
    std::vector<matrix<T>*> pointers_;
};

template <class T>
::testing::AssertionResult sameCell(const T& actual, const T& expected)
{
    if constexpr (std::same_as<T, double>) {
        return sameBits(actual, expected);
    } else {
        return actual == expected ? ::testing::AssertionSuccess()
                                  : ::testing::AssertionFailure() << "differs";
    }
}

template <class T>
void expectSame(const matrix<T>& actual, const matrix<T>& expected)
{
    ASSERT_EQ(actual.nbrows, expected.nbrows);
    ASSERT_EQ(actual.nbcols, expected.nbcols);
    for (std::uint64_t k = 0; k < expected.nbElem; ++k) {
        ASSERT_TRUE(sameCell(actual.data[k], expected.data[k])) << "element " << k;
    }
    EXPECT_TRUE(sameCell(actual.oobValue, expected.oobValue)) << "spare slot";
}

template <class T>
void expectSame(random_chunks<T>& actual, random_chunks<T>& expected)
{
    for (int j = 0; j < expected.size(); ++j) {
        SCOPED_TRACE(j);
        expectSame(actual[j], expected[j]);
    }
}

/** Calls `body(cells, rows, cols)` for many shapes of a table, with a source of random cells. */
template <class Body>
void forRandomShapes(Body body)
{
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, odd_cells::all);
        const int longest = seed % 10 == 0 ? 70 : 6;
        const int rows = cells.integer(0, longest);
        const int cols = cells.integer(0, 6);
        body(cells, rows, cols);
        if (::testing::Test::HasFailure()) {
            return;
        }
    }
}

} // namespace korvel::test

#endif
