/**
 * @file
 * The singular value decomposition in its three forms, called alike and compared with the plain loops.
 */
#ifndef KORVEL_TESTS_LINALG_SINGULAR_VALUES_FORMS_H
#define KORVEL_TESTS_LINALG_SINGULAR_VALUES_FORMS_H

#include "linalg/singular_values.h"

#include "containers/views.h"
#include "reference/singular_values.h"
#include "support/column_tables.h"
#include "support/matrix_kinds.h"
#include "support/random_tables.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace korvel::test
{

/** What a member left behind; the cells of U and V column after column. */
struct outcome {
    int info = 9;
    std::vector<double> s;
    std::vector<double> U;
    std::vector<double> V;
};

using member = outcome (*)(const matrix<double>&, int job);

struct wanted {
    int columnsOfU;
    int columnsOfV;
    int values;

    wanted(const matrix<double>& A, int job)
        : columnsOfU(svd_job(job, A.nbrows, A.nbcols).columnsOfU),
          columnsOfV(svd_job(job, A.nbrows, A.nbcols).wantsV ? A.nbcols : 0),
          values(std::min(A.nbrows + 1, A.nbcols))
    {
    }
};

inline std::vector<double> cellsIn(const matrix3D<matrix<double>>& chunks)
{
    std::vector<double> cells;
    for (const auto& chunk : chunks.chunks) {
        cells.insert(cells.end(), chunk.data, chunk.data + chunk.nbElem);
    }
    return cells;
}

inline ::testing::AssertionResult sameCells(const std::vector<double>& found,
                                            const std::vector<double>& expected)
{
    if (found.size() != expected.size()) {
        return ::testing::AssertionFailure() << found.size() << " cells and not " << expected.size();
    }
    for (std::size_t k = 0; k < found.size(); ++k) {
        if (const auto same = sameBits(found[k], expected[k]); !same) {
            return ::testing::AssertionFailure() << "cell " << k << ": " << same.message();
        }
    }
    return ::testing::AssertionSuccess();
}

inline outcome denseForm(const matrix<double>& A, int job)
{
    const wanted size(A, job);
    outcome found;
    matrix<double> copy(A);
    matrix<double> s(size.values, 1, 7.0);
    matrix<double> U(A.nbrows, size.columnsOfU, 7.0);
    matrix<double> V(A.nbcols, size.columnsOfV, 7.0);
    M_SVDecomp(&copy, A.nbrows, A.nbcols, &s, size.columnsOfU > 0 ? &U : nullptr,
               size.columnsOfV > 0 ? &V : nullptr, job, &found.info);
    EXPECT_TRUE(sameCells(cellsOf(copy), cellsOf(A))) << "the table comes out as it was";
    found.s = cellsOf(s);
    found.U = size.columnsOfU > 0 ? cellsOf(U) : std::vector<double>();
    found.V = size.columnsOfV > 0 ? cellsOf(V) : std::vector<double>();
    return found;
}

inline outcome chunkedForm(const matrix<double>& A, int job)
{
    const wanted size(A, job);
    outcome found;
    auto chunks = chunksOf<matrix<double>>(A);
    matrix<double> s(size.values, 1, 7.0);
    matrix3D<matrix<double>> U(size.columnsOfU, A.nbrows, 0, 7.0);
    matrix3D<matrix<double>> V(size.columnsOfV, A.nbcols, 0, 7.0);
    M_SVDecompSPV(&chunks, A.nbrows, A.nbcols, &s, &U, &V, job, &found.info);
    EXPECT_TRUE(sameTable(chunks, chunksOf<matrix<double>>(A)));
    found.s = cellsOf(s);
    found.U = cellsIn(U);
    found.V = cellsIn(V);
    return found;
}

inline cST_MVect<double> recordOf(const matrix<double>& from)
{
    cST_MVect<double> made(from.nbrows, from.nbcols);
    for (int j = 0; j < from.nbcols; ++j) {
        std::copy_n(from.data + std::ptrdiff_t{from.nbrows} * j, from.nbrows,
                    made.Vectors[static_cast<std::size_t>(j)].Vect.data);
    }
    return made;
}

inline std::vector<double> cellsIn(const cST_MVect<double>& record)
{
    std::vector<double> cells;
    for (const auto& column : record.Vectors) {
        cells.insert(cells.end(), column.Vect.data, column.Vect.data + column.Vect.nbElem);
    }
    return cells;
}

inline outcome recordForm(const matrix<double>& A, int job)
{
    const wanted size(A, job);
    outcome found;
    cST_MVect<double> record = recordOf(A);
    cST_MVect<double> s(size.values, 1);
    cST_MVect<double> U(A.nbrows, size.columnsOfU);
    cST_MVect<double> V(A.nbcols, size.columnsOfV);
    M_SVDecomp_Fast_ST(record, A.nbrows, A.nbcols, s, U, V, job, &found.info);
    found.s = cellsIn(s);
    found.U = size.columnsOfU > 0 ? cellsIn(U) : std::vector<double>();
    found.V = size.columnsOfV > 0 ? cellsIn(V) : std::vector<double>();
    return found;
}

inline void expectPlain(const outcome& found, const plain_svd& expected)
{
    ASSERT_EQ(found.info, expected.info);
    ASSERT_TRUE(sameCells(found.s, {expected.s.begin() + 1, expected.s.end()})) << "s";
    ASSERT_TRUE(sameCells(found.U, expected.U.cells())) << "U";
    ASSERT_TRUE(sameCells(found.V, expected.V.cells())) << "V";
}

} // namespace korvel::test

#endif
