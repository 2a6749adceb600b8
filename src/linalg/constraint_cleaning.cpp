#include "linalg/constraint_cleaning.h"

#include "containers/views.h"
#include "linalg/cholesky_columns.h"
#include "linalg/determinants.h"

#include <cstddef>
#include <vector>

namespace
{

using korvel::reading;
using korvel::withCells;
using korvel::writing;

/** Which positions of a table take part. */
struct free_part {
    std::vector<int> positions; ///< the free ones, ascending
    int order = 0;              ///< of the reduced table, at least as many
};

template <class Number>
free_part freePart(const matrix<Number>& constraints, int n)
{
    free_part found;
    for (int i = 0; i < n; ++i) {
        const Number constraint = constraints[i];
        if (constraint == Number{0}) {
            found.positions.push_back(i);
        }
        if (!(constraint > Number{0})) {
            ++found.order;
        }
    }
    return found;
}

/** The rows and columns of the free positions, and zeros where there are fewer of them than the order. */
template <class Cells>
matrix<double> reducedTable(const Cells& cells, const free_part& kept)
{
    matrix<double> made(kept.order, kept.order, 0.0);
    withCells(
        [&](const auto& full) {
            int b = 0;
            for (const int j : kept.positions) {
                int a = 0;
                for (const int i : kept.positions) {
                    made.setElement(a++, b, full.get(i, j));
                }
                ++b;
            }
        },
        cells);
    return made;
}

/** Writes the free columns: the reduced table in the free rows, and 0 in the others. */
void spread(const matrix<double>& reduced, const free_part& kept, int n, matrix<double>& result)
{
    withCells(
        [&](auto& out) {
            int b = 0;
            for (const int j : kept.positions) {
                std::size_t a = 0;
                for (int i = 0; i < n; ++i) {
                    const bool isFree = a < kept.positions.size() && kept.positions[a] == i;
                    out.set(i, j, isFree ? reduced.getElement(static_cast<int>(a), b) : 0.0);
                    a += isFree ? 1 : 0;
                }
                ++b;
            }
        },
        writing(result).table(n, n));
}

template <class Cells, class Number>
double determinant(const Cells& cells, int n, const matrix<Number>& constraints, short int* error)
{
    const free_part kept = freePart(constraints, n);
    matrix<double> reduced = reducedTable(cells, kept);
    return M_Determinant(&reduced, kept.order, error, 0);
}

template <class Number>
int cholesky(const matrix<double>& A, int n, const matrix<Number>& constraints, matrix<double>& L)
{
    const free_part kept = freePart(constraints, n);
    const matrix<double> reduced = reducedTable(reading(A).table(n, n), kept);
    matrix<double> factor(kept.order, kept.order, 0.0);
    const int status = korvel::formCholesky(reduced, kept.order, factor, 0.0);
    if (status == 0) {
        spread(factor, kept, n, L);
    }
    return status;
}

} // namespace

double M_DeterminantCleaned(matrix<double>* A, int n, matrix<double>* constraints, short int* error)
{
    return determinant(reading(*A).table(n, n), n, *constraints, error);
}

double M_DeterminantCleaned(matrix<double>* A, int n, matrix<int>* constraints, short int* error)
{
    return determinant(reading(*A).table(n, n), n, *constraints, error);
}

double M_DeterminantCleanedSPV_T(matrix<double>** A, int n, matrix<int>* constraints, short int* error)
{
    return determinant(reading(A).triangle(n), n, *constraints, error);
}

int M_CholDecompCleaned(matrix<double>* A, int n, matrix<double>* constraints, matrix<double>* L)
{
    return cholesky(*A, n, *constraints, *L);
}

int M_CholDecompCleaned(matrix<double>* A, int n, matrix<int>* constraints, matrix<double>* L)
{
    return cholesky(*A, n, *constraints, *L);
}
