/**
 * @file
 * Members of the product family beside their plain twins. The test of a topic lists its members and runs the
 * tests that all share: sizes, threads and instruction sets.
 */
#ifndef KORVEL_TESTS_LINALG_PRODUCT_MEMBERS_H
#define KORVEL_TESTS_LINALG_PRODUCT_MEMBERS_H

#include "linalg/kernels/product.h"
#include "support/bits.h"
#include "support/random_cells.h"

#include <algorithm>
#include <array>
#include <functional>
#include <omp.h>
#include <ostream>
#include <string>
#include <vector>

namespace korvel::test
{

struct counts {
    int n = 0;
    int p = 0;
    int q = 0;
    int r = 0;
};

struct shape {
    int rows = 0;
    int cols = 0;
};

using shapes = std::vector<shape>;
using table = matrix<double>;
using operands = std::vector<table>;

/** One member: the shapes of what it reads and writes, and the two routines that are to agree. */
struct product_member {
    std::string name;
    std::function<shapes(counts)> read;
    std::function<shape(counts)> written;
    std::function<void(operands&, counts, matrix<double>&)> core;
    std::function<void(operands&, counts, matrix<double>&)> plain;
    bool inTeam = false;  ///< leaves the spare slot without meaning
    bool usesQ = true;    ///< whether the third count matters
    bool byIndex = false; ///< writes a vector, by linear index
};

// Shapes of operands and results, by the counts n, p and q.
inline shapes tableNP(counts c)
{
    return {{c.n, c.p}};
}
inline shapes tablesNPAndPQ(counts c)
{
    return {{c.n, c.p}, {c.p, c.q}};
}
inline shapes tablesNPAndQP(counts c)
{
    return {{c.n, c.p}, {c.q, c.p}};
}
inline shapes tablesNPAndNQ(counts c)
{
    return {{c.n, c.p}, {c.n, c.q}};
}
inline shapes tablesNPAndPP(counts c)
{
    return {{c.n, c.p}, {c.p, c.p}};
}
inline shapes tablesNPAndNN(counts c)
{
    return {{c.n, c.p}, {c.n, c.n}};
}
inline shape resultNQ(counts c)
{
    return {c.n, c.q};
}
inline shape resultPQ(counts c)
{
    return {c.p, c.q};
}
inline shape resultNN(counts c)
{
    return {c.n, c.n};
}
inline shape resultPP(counts c)
{
    return {c.p, c.p};
}

inline void PrintTo(const product_member& member, std::ostream* out)
{
    *out << member.name;
}

inline std::string nameOf(const ::testing::TestParamInfo<product_member>& info)
{
    return info.param.name;
}

inline matrix<double> tableOfRandom(random_cells& cells, shape size)
{
    matrix<double> made(size.rows, size.cols, 0.0);
    for (std::uint64_t k = 0; k < made.nbElem; ++k) {
        made.data[k] = cells.value();
    }
    return made;
}

inline operands randomOperands(const product_member& member, counts sizes, random_cells& cells)
{
    operands made;
    for (const shape size : member.read(sizes)) {
        made.push_back(tableOfRandom(cells, size));
    }
    return made;
}

inline ::testing::AssertionResult sameTables(const matrix<double>& actual, const matrix<double>& expected)
{
    if (actual.nbrows != expected.nbrows || actual.nbcols != expected.nbcols) {
        return ::testing::AssertionFailure() << actual.nbrows << " by " << actual.nbcols << " is not "
                                             << expected.nbrows << " by " << expected.nbcols;
    }
    for (std::uint64_t k = 0; k < expected.nbElem; ++k) {
        if (const auto same = sameBits(actual.data[k], expected.data[k]); !same) {
            return ::testing::AssertionFailure() << "element " << k << ": " << same.message();
        }
    }
    return ::testing::AssertionSuccess();
}

/** Runs both routines on a result that holds something already, and compares. */
inline void expectTwins(const product_member& member, counts sizes, operands& tables, shape result)
{
    matrix<double> actual(result.rows, result.cols, 0.75);
    matrix<double> expected(result.rows, result.cols, 0.75);
    member.core(tables, sizes, actual);
    member.plain(tables, sizes, expected);
    ASSERT_TRUE(sameTables(actual, expected))
        << sizes.n << ", " << sizes.p << ", " << sizes.q << ", " << sizes.r;
    if (!member.inTeam) {
        ASSERT_SAME_BITS(actual.oobValue, expected.oobValue)
            << "spare slot of " << sizes.n << ", " << sizes.p << ", " << sizes.q << ", " << sizes.r;
    }
}

/** While it lives, teams have so many threads. */
class team_of
{
public:
    explicit team_of(int threads) : before_(omp_get_max_threads()) { omp_set_num_threads(threads); }
    ~team_of() { omp_set_num_threads(before_); }
    team_of(const team_of&) = delete;
    team_of& operator=(const team_of&) = delete;

private:
    int before_;
};

constexpr std::array productSizes{0, 1, 2, 3, 5, 8, 9, 17, 64, 129};

/**
 * Calls `compare` for each combination of sizes that matters to the member, but with at most two of the
 * largest sizes at once.
 */
template <class Compare>
void forProductSizes(const product_member& member, Compare compare)
{
    for (const int n : productSizes) {
        for (const int p : productSizes) {
            for (const int q : productSizes) {
                if (std::min({n, p, member.usesQ ? q : 0}) >= 64) {
                    continue;
                }
                compare(counts{n, p, member.usesQ ? q : 0, (7 * n + 3 * p + q) % 19});
                if (!member.usesQ) {
                    break;
                }
            }
        }
    }
}

/** Kinds of odd cells by turns. */
inline odd_cells oddCellsOf(counts sizes)
{
    constexpr std::array kinds{odd_cells::none, odd_cells::missing_and_zeros, odd_cells::all};
    return kinds[static_cast<std::size_t>(sizes.n + 2 * sizes.p + sizes.q) % kinds.size()];
}

/** The tests that every member passes. */
class ProductMember : public ::testing::TestWithParam<product_member>
{
};

/**
 * Further tests, not for members that take a list of columns, which must exist, or a record, whose columns
 * have their own lengths.
 */
class DenseProductMember : public ::testing::TestWithParam<product_member>
{
};

} // namespace korvel::test

#endif
