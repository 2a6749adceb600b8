/**
 * @file
 * Tables whose columns are separate chunks, held by value behind virtual accessors. A routine that uses the
 * accessors serves any layout of chunks. Routines on hot paths take a view of the chunks instead.
 *
 * The number of a chunk is not checked. The number of an element is checked, unsigned and from 0, against the
 * count of its own chunk, as `matrix` does it: a read outside gives that chunk's `oobValue`, and a store
 * always leaves its value there too.
 */
#ifndef KORVEL_CONTAINERS_MATRIX3D_H
#define KORVEL_CONTAINERS_MATRIX3D_H

#include "containers/caller_records.h"
#include "containers/matrix.h"
#include "platform/export.h"

#include <concepts>
#include <vector>

/** The common base of both layouts. The layout decides which index is the chunk's. */
template <class M>
class matrix3DBase
{
public:
    std::vector<M> chunks; ///< The chunks, in their order.

    virtual double getElement(int a, int b) = 0;                ///< 0-based.
    virtual double vbget(int a, int b) = 0;                     ///< `getElement(a - 1, b - 1)`.
    virtual void setElement(int a, int b, const double& v) = 0; ///< Stores where `getElement` reads.
    virtual void vbset(int a, int b, double v) = 0;             ///< Stores where `vbget` reads.

protected:
    matrix3DBase() = default;
    matrix3DBase(matrix3DBase&&) noexcept = default;
    matrix3DBase& operator=(matrix3DBase&&) noexcept = default;
    ~matrix3DBase() = default;
};

/**
 * Chunks read as (column, row): element `b` of chunk `a`. For `matrix<double>`, `statistics_matrix<double>`
 * and `matrixSparse`, whose linear accessors read 0.0 and store nothing.
 *
 * In a triangular table chunk c holds column c from the diagonal down.
 */
template <class M>
class matrix3D final : public matrix3DBase<M>
{
public:
    /** No chunks. */
    matrix3D() = default;

    /**
     * The caller's columns, in place.
     *
     * @param n number of columns; below 0 as 0
     * @param a reference to a host array. Its block holds either `n` records of 16 bytes, or `n` pointers to
     * the host arrays of the columns. Which of the two is guessed: when any of the first `n` words of 8 bytes
     * is null, they are records, since a record of a numeric column has no text column; otherwise they are
     * pointers. Records that all have both columns are therefore taken for pointers
     *
     * A column that is not there gives an empty chunk, and a null array, or one without a block, `n` of them.
     * @throws boost::numeric::positive_overflow when a dimension of a column is above 0x7FFFFFFF
     * @throws std::bad_alloc when memory is short
     */
    KORVEL_API matrix3D(int n, Hostarray** a) requires std::same_as<M, matrix<double>>;

    /**
     * `n` chunks of their own of `rows` by 1, every element `value`; none when `n` is below 0. The third
     * argument is not used; callers pass `n` again.
     * @throws std::bad_alloc when memory is short
     */
    KORVEL_API matrix3D(int n, int rows, int ignored,
                        double value) requires std::derived_from<M, matrix<double>>;

    KORVEL_API double getElement(int a, int b) override;
    KORVEL_API double vbget(int a, int b) override;
    KORVEL_API void setElement(int a, int b, const double& v) override;
    KORVEL_API void vbset(int a, int b, double v) override;
};

/** Chunks read as (row, column): element `a` of chunk `b`. For `matrix<double>`. */
template <class M>
class matrix3DVect final : public matrix3DBase<M>
{
public:
    /** No chunks. */
    matrix3DVect() = default;

    /**
     * The columns of a labelled table, in place.
     *
     * @param vectors host array of `ST_Vect` records, as many as its leftmost dimension says; none when it is
     * null or has no block. A record without a column gives an empty chunk
     * @throws boost::numeric::positive_overflow when a dimension is above 0x7FFFFFFF
     * @throws std::bad_alloc when memory is short
     */
    KORVEL_API explicit matrix3DVect(SAFEARRAY* vectors);

    KORVEL_API double getElement(int a, int b) override;
    KORVEL_API double vbget(int a, int b) override;
    KORVEL_API void setElement(int a, int b, const double& v) override;
    KORVEL_API void vbset(int a, int b, double v) override;
};

namespace korvel
{

/** Sum of all elements, chunk after chunk, missing ones too; 0.0 when there are none. */
[[nodiscard]] double sumOfElements(const matrix3DVect<matrix<double>>& table);

} // namespace korvel

#endif
