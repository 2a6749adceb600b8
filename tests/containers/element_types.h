/**
 * @file
 * The four element types of the dense container, and a distinct value of each for a number.
 */
#ifndef KORVEL_TESTS_CONTAINERS_ELEMENT_TYPES_H
#define KORVEL_TESTS_CONTAINERS_ELEMENT_TYPES_H

#include "containers/matrix.h"

#include <gtest/gtest.h>
#include <vector>

namespace korvel::test
{

using all_elements = ::testing::Types<double, int, short int, text>;
using numeric_elements = ::testing::Types<double, int, short int>;

template <class T>
T element(int k)
{
    if constexpr (is_text<T>) {
        return text(1, static_cast<char16_t>(u'a' + k));
    } else {
        return static_cast<T>(k);
    }
}

/** Elements `first`, `first + 1` and so on. */
template <class T>
std::vector<T> elements(int n, int first = 1)
{
    std::vector<T> values;
    for (int k = 0; k < n; ++k) {
        values.push_back(element<T>(first + k));
    }
    return values;
}

/** A table that owns `element(1)`, `element(2)` and so on, in linear order. */
template <class T>
matrix<T> numbered(int rows, int cols)
{
    matrix<T> result(rows, cols, T{});
    for (std::uint64_t k = 0; k < result.nbElem; ++k) {
        result.data[k] = element<T>(1 + static_cast<int>(k));
    }
    return result;
}

/** A table that borrows the elements at `block`. */
template <class T>
matrix<T> viewOf(int rows, int cols, T* block)
{
    if constexpr (is_text<T>) {
        return matrix<T>(rows, cols, block);
    } else {
        return matrix<T>(rows, cols, block, true);
    }
}

/** All elements in linear order. */
template <class T>
std::vector<T> linear(const matrix<T>& m)
{
    return {m.data, m.data + m.nbElem};
}

template <class T>
void expectShape(const matrix<T>& m, int rows, int cols, std::uint64_t count)
{
    EXPECT_EQ(m.nbrows, rows);
    EXPECT_EQ(m.nbcols, cols);
    EXPECT_EQ(m.nbElem, count);
}

/** The initial value of the spare slot that an index outside reaches, as callers know it. */
template <class T>
T outside()
{
    if constexpr (is_text<T>) {
        return text{};
    } else if constexpr (std::same_as<T, short int>) {
        return 0;
    } else {
        return -1;
    }
}

} // namespace korvel::test

#endif
