#include "linalg/cholesky.h"

#include "containers/views.h"
#include "linalg/cholesky_columns.h"
#include "linalg/clear_result.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

namespace
{

using korvel::reading;
using korvel::withCells;
using korvel::writing;

constexpr double least = 1e-12;

bool isNotPositive(double pivot)
{
    return pivot < least;
}

/** The exchanges of a decomposition with pivoting. */
template <class Factor>
class exchanges
{
public:
    exchanges(matrix<double>& table, int n, Factor& factor, std::vector<int>& variables)
        : table_(&table), n_(n), factor_(&factor), variables_(&variables)
    {
    }

    /** Brings the variable with the largest score to position k. */
    void operator()(int k)
    {
        if (k == n_ - 1) {
            return;
        }
        int best = k;
        double most = score(k, k);
        for (int i = k + 1; i < n_; ++i) {
            const double other = score(k, i);
            if (other > most) {
                most = other;
                best = i;
            }
        }
        if (best != k) {
            exchange(k, best);
        }
    }

private:
    [[nodiscard]] double score(int k, int i) const
    {
        const double own = table_->getElement(i, i);
        if (k == 0) {
            return own;
        }
        const double before = table_->getElement(k - 1, i);
        return own - before * before / factor_->get(k - 1, k - 1);
    }

    void exchange(int k, int other)
    {
        double* const cells = table_->data;
        const std::ptrdiff_t n = n_;
        std::swap_ranges(cells + k * n, cells + (k + 1) * n, cells + other * n);
        for (int j = 0; j < n_; ++j) {
            std::swap(cells[k + j * n], cells[other + j * n]);
        }
        for (int j = 0; k > 0 && j < n_; ++j) {
            const double kept = factor_->get(k, j);
            factor_->set(k, j, factor_->get(other, j));
            factor_->set(other, j, kept);
        }
        std::swap((*variables_)[static_cast<std::size_t>(k)], (*variables_)[static_cast<std::size_t>(other)]);
    }

    matrix<double>* table_;
    int n_;
    Factor* factor_;
    std::vector<int>* variables_;
};

/** Copies an `n` by `n` block of any form, element by element. */
template <class From, class To>
void copyElements(const From& from, int n, const To& to)
{
    withCells(
        [n](const auto& in, auto& out) {
            for (int j = 0; j < n; ++j) {
                for (int i = 0; i < n; ++i) {
                    out.set(i, j, in.get(i, j));
                }
            }
        },
        from.table(n, n), to.table(n, n));
}

template <class Table, class Number>
int decomposeWithPivoting(Table& A, int n, Table& L, matrix<Number>& perm, short int replaceInput)
{
    const int order = std::max(n, 0);
    matrix<double> permuted(order, order, 0.0);
    copyElements(reading(A), n, writing(permuted));
    std::vector<int> variables(static_cast<std::size_t>(order));
    std::iota(variables.begin(), variables.end(), 1);
    const int status = withCells(
        [&](const auto& a, auto& l) {
            return korvel::formCholesky(a, n, l, exchanges(permuted, n, l, variables), isNotPositive);
        },
        reading(permuted).table(n, n), writing(L).table(n, n));
    withCells(
        [&](auto& numbers) {
            for (int i = 0; i < n; ++i) {
                numbers.set(i, static_cast<Number>(variables[static_cast<std::size_t>(i)]));
            }
        },
        korvel::writeVector(perm, n));
    if (replaceInput == -1) {
        copyElements(reading(permuted), n, writing(A));
    }
    return status;
}

} // namespace

int M_CholDecomp(matrix<double>* A, int n, matrix<double>* L)
{
    korvel::clearResult(*L, n, n);
    return korvel::formCholesky(*A, n, *L, least);
}

int M_CholDecomp(matrixSparse* A, int n, matrixSparse* L)
{
    L->Redim(n, n, 0.0);
    auto factor = writing(*L);
    return korvel::formCholesky(
        reading(*A), n, factor, [](int) {}, isNotPositive);
}

int M_CholDecompPrinc(matrix<double>* A, int n, matrix<double>* L, matrix<double>* perm,
                      short int replaceInput)
{
    korvel::clearResult(*L, n, n);
    return decomposeWithPivoting(*A, n, *L, *perm, replaceInput);
}

int M_CholDecompPrinc(matrix<double>* A, int n, matrix<double>* L, matrix<int>* perm, short int replaceInput)
{
    korvel::clearResult(*L, n, n);
    return decomposeWithPivoting(*A, n, *L, *perm, replaceInput);
}

int M_CholDecompPrinc(matrixSparse* A, int n, matrixSparse* L, matrix<double>* perm, short int replaceInput)
{
    L->Redim(n, n, 0.0);
    return decomposeWithPivoting(*A, n, *L, *perm, replaceInput);
}
