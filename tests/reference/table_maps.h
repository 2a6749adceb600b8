/**
 * @file
 * Plain twins of moves between tables and vectors, and of the maps of cells and rows: loops over the checked
 * access, with nothing done for speed. `chunks` are reached by linear index, as column chunks are.
 */
#ifndef KORVEL_TESTS_REFERENCE_TABLE_MAPS_H
#define KORVEL_TESTS_REFERENCE_TABLE_MAPS_H

#include "containers/matrix.h"
#include "containers/missing.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace korvel::reference
{

using table = matrix<double>;

/** A checked store by linear index. */
template <class T>
void store(matrix<T>& v, std::int64_t k, const T& value)
{
    if (k >= 0 && static_cast<std::uint64_t>(k) < v.nbElem) {
        v.data[k] = value;
    }
    v.oobValue = value;
}

inline void toVector(const table& x, int rows, int cols, table& v)
{
    for (int j = 0; j < cols; ++j) {
        for (int i = 0; i < rows; ++i) {
            store(v, i + std::int64_t{rows} * j, x.getElement(i, j));
        }
    }
}

inline void toTable(const table& v, const table& pattern, int rows, int cols, table& x)
{
    for (int j = 0; j < cols; ++j) {
        for (int i = 0; i < rows; ++i) {
            const double value = v[i + std::int64_t{rows} * j];
            x.setElement(i, j, pattern.getElement(i, j) == MISSING_DBL ? MISSING_DBL : value);
        }
    }
}

inline void toVectorByRow(const table& x, int rows, int cols, table& v)
{
    std::int64_t k = 0;
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            store(v, k++, x.getElement(i, j));
        }
    }
}

inline void toTableByRow(const table& v, int rows, int cols, table& x)
{
    std::int64_t k = 0;
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            x.setElement(i, j, v[k++]);
        }
    }
}

inline void pack(const table& x, int n, table& v)
{
    std::int64_t k = 0;
    for (int i = 1; i <= n; ++i) {
        for (int j = 1; j <= i; ++j) {
            store(v, k++, x.vbget(i, j));
        }
    }
}

inline void unpack(const table& v, int n, table& x)
{
    for (int i = 1; i <= n; ++i) {
        for (int j = 1; j <= i; ++j) {
            const double value = v[i * (i - 1) / 2 + j - 1];
            x.vbset(i, j, value);
            x.vbset(j, i, value);
        }
    }
}

inline void symmetrize(table& x, int n)
{
    for (int j = 1; j <= n; ++j) {
        for (int i = j + 1; i <= n; ++i) {
            const double a = x.vbget(i, j);
            const double b = x.vbget(j, i);
            const double mean = a == MISSING_DBL ? b : b == MISSING_DBL ? a : (a + b) / 2.0;
            x.vbset(i, j, mean);
            x.vbset(j, i, mean);
        }
    }
}

inline bool isSymmetric(const table& x, int n)
{
    bool equal = true;
    for (int j = 1; j <= n; ++j) {
        for (int i = 1; i < j; ++i) {
            equal = equal && x.vbget(i, j) == x.vbget(j, i);
        }
    }
    return equal;
}

inline bool hasConstantDiagonal(const table& x, int n)
{
    bool equal = true;
    for (int i = 2; i <= n; ++i) {
        equal = equal && x.vbget(i, i) == x.vbget(1, 1);
    }
    return equal;
}

/** 2 for dissimilarities, 1 for similarities, 0 for neither. */
inline int kindOfProximity(const table& x, int n)
{
    bool similar = n > 0;
    bool dissimilar = n > 0;
    for (int i = 1; i <= n; ++i) {
        const double own = x.vbget(i, i);
        similar = similar && own == x.vbget(1, 1) && own != MISSING_DBL;
        dissimilar = dissimilar && own == 0.0;
        for (int j = 1; j <= n; ++j) {
            const double cell = x.vbget(i, j);
            const bool counts = i != j && cell != MISSING_DBL;
            similar = similar && (!counts || cell <= x.vbget(1, 1));
            dissimilar = dissimilar && (!counts || cell >= 0.0);
        }
    }
    return dissimilar ? 2 : similar ? 1 : 0;
}

/** 2 when no cell below the diagonal is filled, 1 when none above it is, 0 otherwise. */
inline int filledHalf(const table& x, int n)
{
    bool below = false;
    bool above = false;
    for (int i = 2; i <= n; ++i) {
        for (int j = 1; j < i; ++j) {
            below = below || !(x.vbget(i, j) == 0.0 || x.vbget(i, j) == MISSING_DBL);
            above = above || !(x.vbget(j, i) == 0.0 || x.vbget(j, i) == MISSING_DBL);
        }
    }
    return !below ? 2 : !above ? 1 : 0;
}

inline void toDissimilarities(table& x, int n)
{
    double largest = MISSING_DBL;
    for (int i = 1; i <= n; ++i) {
        for (int j = 1; j <= n; ++j) {
            largest = x.vbget(i, j) > largest ? x.vbget(i, j) : largest;
        }
    }
    for (int j = 1; j <= n; ++j) {
        for (int i = 1; i <= n; ++i) {
            const double cell = x.vbget(i, j);
            x.vbset(i, j, cell == MISSING_DBL ? MISSING_DBL : largest - cell);
        }
    }
}

inline void squareRoots(const table& x, int rows, int cols, table& y)
{
    for (int j = 0; j < cols; ++j) {
        for (int i = 0; i < rows; ++i) {
            const double cell = x.getElement(i, j);
            y.setElement(i, j, cell < 0.0 ? MISSING_DBL : std::sqrt(cell));
        }
    }
}

inline void newVariable(const table& x, int rows, int cols, const table& coefficients, table& out)
{
    for (int i = 0; i < rows; ++i) {
        double sum = 0.0;
        bool isMissing = false;
        for (int j = 0; j < cols; ++j) {
            const double cell = x.getElement(i, j);
            const double factor = coefficients[j];
            isMissing = isMissing || cell == MISSING_DBL || factor == MISSING_DBL;
            sum += cell * factor;
        }
        out.setElement(i, 0, isMissing ? MISSING_DBL : sum);
    }
}

inline void largestPositions(const table& x, int rows, int cols, matrix<int>& positions)
{
    for (int i = 0; i < rows; ++i) {
        int best = 1;
        for (int j = 2; j <= cols; ++j) {
            if (x.getElement(i, j - 1) > x.getElement(i, best - 1)) {
                best = j;
            }
        }
        positions.setElement(i, 0, best);
    }
}

inline int keptRows(const table& x, int rows, int cols, double threshold, matrix<short int>& kept)
{
    int count = 0;
    for (int i = 0; i < rows; ++i) {
        double sum = 0.0;
        for (int j = 0; j < cols; ++j) {
            const double cell = x.getElement(i, j);
            if (cell != MISSING_DBL) {
                sum += cell * cell;
            }
        }
        const bool isKept = sum > threshold;
        kept.setElement(i, 0, isKept ? short{-1} : short{0});
        count += isKept ? 1 : 0;
    }
    return count;
}

} // namespace korvel::reference

#endif
