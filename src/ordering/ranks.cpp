#include "ordering/ranks.h"

#include "ordering/sorted_keys.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace
{

constexpr double tieWidth = 1e-15;

korvel::sorted_numbers<double> ascending(const matrix<double>& x, int n)
{
    return {n, false, [&](std::int32_t k) { return x[k]; }};
}

/** Moves each of the first `n` elements to place `placeOf(i)`. */
template <class Order>
void rearrange(matrix<double>& x, int n, Order placeOf)
{
    std::vector<double> copy(static_cast<std::size_t>(std::max(n, 0)));
    for (int i = 0; i < n; ++i) {
        copy[static_cast<std::size_t>(i)] = x[i];
    }
    for (int i = 0; i < n; ++i) {
        x[placeOf(i)] = copy[static_cast<std::size_t>(i)];
    }
}

/** Stands in for weights that are all 1; sorting does not move them. */
struct repeated_once {
    double operator[](std::int64_t) const { return 1.0; }
};

/** The mean rank of a group of weight `g`, `below` being the weight of all smaller elements. */
struct mid_rank {
    double operator()(double below, double g) const { return (2.0 * below + g + 1.0) / 2.0; }
};

/** The lowest rank of such a group. */
struct lowest_rank {
    double operator()(double below, double) const { return below + 1.0; }
};

/** The groups found so far, in the caller's storage. */
struct tie_record {
    int* count;
    matrix<double>* sizes;

    void add(double size)
    {
        (*sizes)[*count] = size;
        ++*count;
    }
};

bool tied(const matrix<double>& x, int i)
{
    return std::fabs(x[i] - x[i - 1]) < tieWidth;
}

/** Ranks `x`, which is sorted together with its weights. */
template <class Weights, class GroupRank>
void rankSorted(const matrix<double>& x, int n, const Weights& w, matrix<double>& ranks, tie_record ties,
                GroupRank groupRank)
{
    *ties.count = 0;
    int i = 0;
    while (i < n && x[i] == MISSING_DBL) {
        ranks[i] = MISSING_DBL;
        ++i;
    }
    if (i >= n) {
        return;
    }
    double below = 0.0; // weight of the elements before i
    double upTo = w[i]; // the same with element i
    ranks[i] = (upTo + 1.0) / 2.0;
    if (w[i] > 1.0 && x[1] > x[0]) {
        ties.add(w[i]);
    }
    for (++i; i < n; ++i) {
        if (tied(x, i)) {
            const int first = i - 1;
            double group = w[first];
            for (; i < n && tied(x, i); ++i) {
                group += w[i];
                upTo += w[i];
            }
            ties.add(group);
            for (int member = first; member < i; ++member) {
                ranks[member] = groupRank(below, group);
            }
            --i;
        } else {
            below = upTo;
            upTo += w[i];
            ranks[i] = (w[i] + 1.0) / 2.0 + below;
            if (w[i] > 1.0 && !(i + 1 < n && tied(x, i + 1))) {
                ties.add(w[i]);
            }
        }
    }
}

/** Sorts `x`, calls `rank` to rank it, and restores the original order of `x` and `ranks` for `bRestore` -1.
 */
template <class Rank>
void rankInPlace(matrix<double>& x, int n, short int bRestore, matrix<double>& ranks, Rank rank)
{
    const auto sorted = ascending(x, n);
    const auto sortedPlace = [&](int k) { return sorted.position(static_cast<std::size_t>(k)); };
    for (int k = 0; k < n; ++k) {
        x[k] = sorted.key(static_cast<std::size_t>(k));
    }
    rank(sortedPlace);
    if (bRestore == -1) {
        rearrange(x, n, sortedPlace);
        rearrange(ranks, n, sortedPlace);
    }
}

template <class Out>
void denseRanks(const matrix<double>& x, int n, matrix<Out>& out)
{
    const auto sorted = ascending(x, n);
    int rank = 0;
    for (std::size_t k = 0; k < sorted.size(); ++k) {
        if (k == 0 || sorted.key(k) != sorted.key(k - 1)) {
            ++rank;
        }
        out[sorted.position(k)] = static_cast<Out>(rank);
    }
}

} // namespace

void V_GetRanks(matrix<double>* x, int n, matrix<double>* out)
{
    denseRanks(*x, n, *out);
}

void V_GetRanks(matrix<double>* x, int n, matrix<int>* out)
{
    denseRanks(*x, n, *out);
}

void V_GetRanksTies(matrix<double>* x, int n, short int bRestore, matrix<double>* w, matrix<double>* ranks,
                    int* nTies, matrix<double>* tieSizes)
{
    rankInPlace(*x, n, bRestore, *ranks, [&](auto sortedPlace) {
        std::vector<int> rankOf(static_cast<std::size_t>(std::max(n, 0)));
        for (int k = 0; k < n; ++k) {
            rankOf[static_cast<std::size_t>(sortedPlace(k))] = k;
        }
        // Weights that share the storage of `x` are sorted and put back together with it.
        const bool apart = w->data != x->data;
        if (apart) {
            rearrange(*w, n, [&](int i) { return rankOf[static_cast<std::size_t>(i)]; });
        }
        rankSorted(*x, n, *w, *ranks, {nTies, tieSizes}, mid_rank{});
        if (apart && bRestore == -1) {
            rearrange(*w, n, sortedPlace);
        }
    });
}

void V_GetRanksTies2(matrix<double>* x, int n, short int bRestore, matrix<double>* ranks, int* nTies,
                     matrix<double>* tieSizes)
{
    rankInPlace(*x, n, bRestore, *ranks, [&](auto) {
        rankSorted(*x, n, repeated_once{}, *ranks, {nTies, tieSizes}, mid_rank{});
    });
}

void V_GetRanksTiesMinDbl2(matrix<double>* x, int n, short int bRestore, matrix<double>* ranks, int* nTies,
                           matrix<double>* tieSizes)
{
    rankInPlace(*x, n, bRestore, *ranks, [&](auto) {
        rankSorted(*x, n, repeated_once{}, *ranks, {nTies, tieSizes}, lowest_rank{});
    });
}

void V_GetRanksTiesInt(matrix<double>* x, int n, matrix<double>* w, matrix<double>* ranks, int* nTies,
                       matrix<double>* tieSizes)
{
    matrix<double> values(n, 1, 0.0);
    matrix<double> weights(n, 1, 0.0);
    for (int i = 0; i < n; ++i) {
        values[i] = (*x)[i];
        weights[i] = (*w)[i];
    }
    const auto sorted = ascending(values, n); // made before `ranks` is written, which may be `x`
    V_GetRanksTies(&values, n, 0, &weights, ranks, nTies, tieSizes);

    int rank = 0;
    for (std::size_t k = 0; k < sorted.size(); ++k) {
        (*ranks)[sorted.position(k)] = sorted.key(k) == MISSING_DBL ? MISSING_DBL : ++rank;
    }
}

void M_GetRanksTies(matrix<double>* x, int rows, int cols, short int bRestore, matrix<double>* w,
                    matrix<double>* ranks, int* nTies, matrix<double>* tieSizes)
{
    const auto columnOf = [rows](matrix<double>& table, int j) {
        return matrix<double>(rows, 1, table.data + static_cast<std::ptrdiff_t>(table.nbrows) * j, true);
    };
    for (int j = 0; j < cols; ++j) {
        auto column = columnOf(*x, j);
        auto columnRanks = columnOf(*ranks, j);
        auto columnSizes = columnOf(*tieSizes, j);
        V_GetRanksTies(&column, rows, bRestore, w, &columnRanks, nTies + j, &columnSizes);
    }
}

void V_GetPositionInMatNNm1o2(int k, int n, int* row, int* col)
{
    std::int64_t upTo = 0; // number of cells in the rows so far
    for (int r = 1; r < n; ++r) {
        upTo += n - r;
        if (upTo >= k) {
            *row = r;
            *col = static_cast<int>(k - upTo + n);
            return;
        }
    }
}

void korvel::positionInSquare(int k, int n, int* row, int* col)
{
    if (n < 1) {
        return;
    }
    *row = k % n == 0 ? k / n : k / n + 1;
    *col = static_cast<int>((1 - std::int64_t{*row}) * n + k);
}
