/**
 * @file
 * Square tables in each form that flat functions take, so that one test serves all.
 */
#ifndef KORVEL_TESTS_ABI_TABLES_SQUARE_FORMS_H
#define KORVEL_TESTS_ABI_TABLES_SQUARE_FORMS_H

#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace korvel::test
{

/** A square table as one block. */
struct dense_form {
    guarded<double> block;
    int order;

    dense_form(const doubles& cells, int n) : block(cells), order(n) {}
    doubles cells() const { return valuesOf(block); }

    short int isSymmetric() { return VB_M_IsSymmetric(block.data(), order); }
    int symmetrize() { return VB_M_Symmetrize(block.data(), order, order); }
    int kind() { return VB_M_CheckIfSimOrDissim(block.data(), order, order); }
    int triangle(short int bMirror) { return VB_M_IsTriangular(block.data(), order, bMirror); }
};

/** A square table as separate columns. */
struct chunked_form {
    caller_columns columns;
    int order;

    chunked_form(const doubles& cells, int n) : columns(cut(cells, n)), order(n) {}

    doubles cells() const
    {
        doubles joined;
        for (const doubles& column : columns.values()) {
            joined.insert(joined.end(), column.begin(), column.end());
        }
        return joined;
    }

    short int isSymmetric() { return VB_M_IsSymmetricSPV(columns.argument(), order); }
    int symmetrize() { return VB_M_SymmetrizeSPV(columns.argument(), order, order); }
    int kind() { return VB_M_CheckIfSimOrDissimSPV(columns.argument(), order, order); }
    int triangle(short int bMirror) { return VB_M_IsTriangularSPV(columns.argument(), order, bMirror); }

private:
    static caller_columns::columns cut(const doubles& cells, int n)
    {
        caller_columns::columns found;
        for (auto first = cells.begin(); first != cells.end(); first += n) {
            found.emplace_back(first, first + n);
        }
        return found;
    }
};

using square_forms = ::testing::Types<dense_form, chunked_form>;

/** Equal cells, a NaN to a NaN. */
inline void expectCells(const doubles& actual, const doubles& expected)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_TRUE(actual[k] == expected[k] || (std::isnan(actual[k]) && std::isnan(expected[k])))
            << "cell " << k << ": " << actual[k] << ", not " << expected[k];
    }
}

} // namespace korvel::test

#endif
