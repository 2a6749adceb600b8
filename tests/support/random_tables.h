/**
 * @file
 * Tables of random cells, for comparing a routine with its plain twin.
 */
#ifndef KORVEL_TESTS_SUPPORT_RANDOM_TABLES_H
#define KORVEL_TESTS_SUPPORT_RANDOM_TABLES_H

#include "containers/matrix3d.h"
#include "support/bits.h"
#include "support/random_cells.h"

#include <algorithm>
#include <array>
#include <vector>

namespace korvel::test
{

inline matrix<double> randomTable(random_cells& cells, int rows, int cols)
{
    matrix<double> made(rows, cols, 0.0);
    std::generate_n(made.data, made.nbElem, [&] { return cells.value(); });
    return made;
}

/** The columns of a table as chunks. */
template <class M>
matrix3D<M> chunksOf(const matrix<double>& from)
{
    matrix3D<M> made(from.nbcols, from.nbrows, from.nbcols, 0.0);
    for (int j = 0; j < from.nbcols; ++j) {
        std::copy_n(from.data + std::ptrdiff_t{from.nbrows} * j, from.nbrows,
                    made.chunks[static_cast<std::size_t>(j)].data);
    }
    return made;
}

/** Whether two tables have the same shape and the same bits, the spare slot among them. */
inline ::testing::AssertionResult sameTable(const matrix<double>& actual, const matrix<double>& expected)
{
    if (actual.nbrows != expected.nbrows || actual.nbcols != expected.nbcols) {
        return ::testing::AssertionFailure() << actual.nbrows << " by " << actual.nbcols << " is not "
                                             << expected.nbrows << " by " << expected.nbcols;
    }
    for (std::uint64_t k = 0; k < actual.nbElem; ++k) {
        if (const auto same = sameBits(actual.data[k], expected.data[k]); !same) {
            return ::testing::AssertionFailure() << "cell " << k << ": " << same.message();
        }
    }
    if (const auto same = sameBits(actual.oobValue, expected.oobValue); !same) {
        return ::testing::AssertionFailure() << "spare slot: " << same.message();
    }
    return ::testing::AssertionSuccess();
}

template <class M>
::testing::AssertionResult sameTable(const matrix3D<M>& actual, const matrix3D<M>& expected)
{
    for (std::size_t j = 0; j < actual.chunks.size(); ++j) {
        if (const auto same = sameTable(actual.chunks[j], expected.chunks[j]); !same) {
            return ::testing::AssertionFailure() << "chunk " << j << ": " << same.message();
        }
    }
    return ::testing::AssertionSuccess();
}

/** The sizes of one case: what is passed, and by how many rows and columns the tables fall short of it. */
struct table_sizes {
    int n;
    int p;
    int rowsShort;
    int colsShort;
};

/** Calls `compare(cells, sizes)` for each kind of odd cells and for sizes round every tile. */
template <class Compare>
void forRandomTables(Compare compare)
{
    constexpr std::array sizes{0, 1, 2, 3, 5, 8, 9, 17, 64, 129};
    std::uint64_t seed = 1;
    for (const odd_cells odd : {odd_cells::none, odd_cells::missing, odd_cells::all}) {
        for (const int n : sizes) {
            for (const int p : sizes) {
                random_cells cells(++seed, odd);
                const bool isShort = seed % 4 == 0;
                const table_sizes shape{n, p, isShort ? std::min(n, cells.integer(0, 2)) : 0,
                                        isShort ? std::min(p, cells.integer(0, 2)) : 0};
                SCOPED_TRACE(::testing::Message() << n << " by " << p << ", short by " << shape.rowsShort
                                                  << " and " << shape.colsShort);
                compare(cells, shape);
            }
        }
    }
}

} // namespace korvel::test

#endif
