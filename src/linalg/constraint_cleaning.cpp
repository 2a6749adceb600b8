#include "linalg/constraint_cleaning.h"

#include "containers/views.h"
#include "linalg/cholesky_columns.h"
#include "linalg/determinants.h"
#include "linalg/g2_sweep.h"
#include "linalg/inverse1.h"
#include "linalg/triangular_inverse.h"

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

constexpr double tolerance = 1e-12;

/**
 * Inverts the reduced table by `invert(reduced, order, result)` and spreads the result unless the status of
 * that is negative. A single cell has its reciprocal.
 */
template <class Number, class Invert>
int invertFreePart(const matrix<double>& table, int n, const matrix<Number>& constraints,
                   matrix<double>& inverse, Invert invert)
{
    const free_part kept = freePart(constraints, n);
    matrix<double> reduced = reducedTable(reading(table).table(n, n), kept);
    matrix<double> found(kept.order, kept.order, 0.0);
    int status = 0;
    if (kept.order == 1) {
        const double cell = reduced.data[0];
        found.data[0] = 1.0 / (cell == 0.0 ? tolerance : cell);
    } else {
        status = invert(reduced, kept.order, found);
    }
    if (status >= 0) {
        spread(found, kept, n, inverse);
    }
    return status;
}

/** The inverse, or the swept one of a singular table and status 1. */
int invertOrSweep(matrix<double>& table, int n, matrix<double>& inverse)
{
    short int error = 0;
    if (Inverse1(&table, &inverse, &error, tolerance) == 0) {
        return 0;
    }
    M_InverseG2(&table, n, tolerance, &inverse);
    return 1;
}

auto invertTriangle(short int lowerFlag)
{
    return [lowerFlag](matrix<double>& table, int n, matrix<double>& inverse) {
        auto* place = &inverse;
        return M_InverseTriang(&table, n, lowerFlag, place, tolerance);
    };
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

int cCleanConstraintsAndInvert(int n, matrix<double> const& constraints, matrix<double> const& H,
                               matrix<double>& inverse)
{
    return invertFreePart(H, n, constraints, inverse, invertOrSweep);
}

int cCleanConstraintsAndInvert(int n, matrix<int> const& constraints, matrix<double> const& H,
                               matrix<double>& inverse)
{
    return invertFreePart(H, n, constraints, inverse, invertOrSweep);
}

int cCleanConstraintsAndInvert(int n, matrix<double>* constraints, matrix<double>* H, matrix<double>* inverse)
{
    return cCleanConstraintsAndInvert(n, *constraints, *H, *inverse);
}

int cCleanConstraintsAndInvert(int n, matrix<int>* constraints, matrix<double>* H, matrix<double>* inverse)
{
    return cCleanConstraintsAndInvert(n, *constraints, *H, *inverse);
}

int cCleanConstraintsAndInvertTriang(int n, matrix<double>* constraints, matrix<double>* T,
                                     short int lowerFlag, matrix<double>*& inverse)
{
    return invertFreePart(*T, n, *constraints, *inverse, invertTriangle(lowerFlag));
}

int cCleanConstraintsAndInvertTriang(int n, matrix<int>* constraints, matrix<double>* T, short int lowerFlag,
                                     matrix<double>* inverse)
{
    return invertFreePart(*T, n, *constraints, *inverse, invertTriangle(lowerFlag));
}
