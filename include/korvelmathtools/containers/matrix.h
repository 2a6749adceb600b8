/**
 * @file
 * The dense container. A vector is a matrix of one column; a table is a column-major block.
 */
#ifndef KORVEL_CONTAINERS_MATRIX_H
#define KORVEL_CONTAINERS_MATRIX_H

#include "containers/missing.h"
#include "platform/automation.h"
#include "platform/export.h"

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <limits>
#include <new>
#include <string>
#include <type_traits>
#include <utility>

namespace korvel
{

template <class T>
inline constexpr bool is_text = std::same_as<T, text>;

template <class T>
concept numeric_element = std::same_as<T, double> || std::same_as<T, int> || std::same_as<T, short int>;

/** What an index outside a fresh matrix reads: -1 for numbers, 0 for flags, the empty text. */
template <class T>
[[nodiscard]] T initialOutOfBoundsValue()
{
    if constexpr (std::same_as<T, double> || std::same_as<T, int>) {
        return T{-1};
    } else {
        return T{};
    }
}

/** Rows times columns as a 32-bit product that wraps, sign-extended: past 2147483647 no block can be had. */
[[nodiscard]] constexpr std::uint64_t elementCount(int rows, int cols) noexcept
{
    const auto wrapped =
        static_cast<std::int32_t>(static_cast<std::uint32_t>(rows) * static_cast<std::uint32_t>(cols));
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(wrapped));
}

} // namespace korvel

/**
 * A column-major table of `double`, `int`, `short int` or `text`, which owns its block, borrows the caller's,
 * or is attached to a host array.
 *
 * No access raises an error. An index outside reads and writes `oobValue`, which every `setElement` also
 * sets. Core loops are 0-based (`operator[]`, `getElement`, `setElement`); `vbget` and `vbset` are 1-based.
 */
template <class T>
class KORVEL_TYPE matrix
{
public:
    T oobValue = korvel::initialOutOfBoundsValue<T>(); ///< What an index outside the block reaches.
    T spareValue{};                                    ///< A second spare slot; nothing reads it.
    bool bOwner = true;                                ///< Whether `data` is this object's to free.
    std::int32_t firstElem = 0;     ///< First element written back to a host array of texts.
    std::uint64_t nbElem = 0;       ///< Elements; linear indices are checked against it.
    std::uint64_t capacity = 0;     ///< Elements that the present block can hold.
    std::int32_t nbrows = 0;        ///< Rows of the table.
    std::int32_t nbcols = 0;        ///< Columns of the table.
    T* data = nullptr;              ///< Element (i, j), 0-based, is at `data[i + nbrows * j]`.
    SAFEARRAY* safeArray = nullptr; ///< The host array that this object is attached to, or null.

    /** No rows, no columns, no block. */
    matrix() = default;

    // A constructor that may fail half-way hands over to the one above first, so that the destructor frees
    // what there is by then.

    /** An owned table with every element `value`. Like all owned tables it has at least one column. */
    matrix(int rows, int cols, const T& value) : matrix()
    {
        allocate(rows, cols, false);
        std::fill_n(data, nbElem, value);
    }

    /** An owned table, zero-filled when `noInit` is 0 and left as allocated otherwise. */
    matrix(int rows, int cols, int noInit) requires std::same_as<T, double> : matrix()
    {
        allocate(rows, cols, noInit == 0);
    }

    /** An owned table of zeros. */
    matrix(int rows, int cols) requires(std::same_as<T, int> || std::same_as<T, short int>) : matrix()
    {
        allocate(rows, cols, true);
    }

    /**
     * With `borrow` true, a view of the `rows` by `cols` elements at `ptr`, both counts taken as they are,
     * also a column count of 0; otherwise an owned copy of the `rows * cols` elements, none for a column
     * count below 1: the one column that the table then has is 0.
     */
    matrix(int rows, int cols, T* ptr, bool borrow) requires korvel::numeric_element<T> : matrix()
    {
        if (borrow) {
            view(rows, cols, ptr);
        } else {
            allocate(rows, cols, cols < 1);
            std::copy_n(ptr, cols < 1 ? 0 : nbElem, data);
        }
    }

    /** A view of an existing block of texts. */
    matrix(int rows, int cols, T* ptr) requires korvel::is_text<T> : matrix() { view(rows, cols, ptr); }

    /**
     * Numbers: attached to the array's own block without a copy, in the array's shape. Texts: an owned copy,
     * which the destructor writes back. A null array gives an empty object.
     * @throws boost::numeric::positive_overflow when a dimension is above 0x7FFFFFFF
     */
    KORVEL_API explicit matrix(SAFEARRAY* sa);

    /** An owned copy of a host array's texts in a shape of the caller's, written back by the destructor. */
    KORVEL_API matrix(int rows, int cols, SAFEARRAY* sa) requires korvel::is_text<T>;

    /**
     * An owned copy of a block of BSTR. The first `srcRows * srcCols` elements are read from `bstrs`, a count
     * of 0 standing for this table's own; the others stay empty.
     */
    KORVEL_API matrix(int rows, int cols, OLECHAR** bstrs, int srcRows,
                      int srcCols) requires korvel::is_text<T>;

    /** An owned table of `rows` rows that takes the first `rows * src.nbcols` elements of `src` in linear
     * order; what `src` does not have is 0. */
    matrix(int rows, const matrix<double>& src) requires std::same_as<T, double> : matrix()
    {
        allocate(rows, src.nbcols, true);
        std::copy_n(src.data, std::min(nbElem, src.nbElem), data);
    }

    /** A deep copy in a block of its own, attached to nothing, with the initial `oobValue`. What `src` has no
     * block for is 0. */
    matrix(const matrix& src) : matrix()
    {
        allocate(src.nbrows, src.nbcols, src.nbcols < 1 || src.data == nullptr);
        if (src.data != nullptr) {
            std::copy_n(src.data, std::min(nbElem, src.nbElem), data);
        }
    }

    /** Takes over everything that `src` has; see the move assignment. */
    matrix(matrix&& src) noexcept { takeFrom(src); }

    virtual ~matrix()
    {
        if constexpr (korvel::is_text<T>) {
            writeBackToHostArray();
        }
        releaseBlock();
    }

    matrix& operator=(const matrix&) = delete;

    /**
     * Takes every field of `src` and leaves it without block and host array. What this object owned is freed,
     * and a host array that it was attached to is destroyed, unless `src` has the same one.
     */
    matrix& operator=(matrix&& src) noexcept
    {
        if (this != &src) {
            if (data != src.data) {
                releaseBlock();
            }
            if (safeArray != nullptr && safeArray != src.safeArray) {
                SafeArrayDestroy(safeArray);
            }
            takeFrom(src);
        }
        return *this;
    }

    /** Element `k`, 0-based, in linear order. Any other `k`, a negative one too, reaches `oobValue`. */
    const T& operator[](std::int64_t k) const
    {
        return static_cast<std::uint64_t>(k) < nbElem ? data[k] : oobValue;
    }
    T& operator[](std::int64_t k) { return static_cast<std::uint64_t>(k) < nbElem ? data[k] : oobValue; }

    /** Element (i, j), 0-based. Only the upper bounds are tested: a negative index is the caller's mistake.
     */
    const T& getElement(int i, int j) const
    {
        return i < nbrows && j < nbcols ? data[offset(i, j)] : oobValue;
    }

    /** Stores into element (i, j), 0-based, under the same test, and into `oobValue` in every case. */
    void setElement(int i, int j, const T& value)
    {
        if (i < nbrows && j < nbcols) {
            data[offset(i, j)] = value;
        }
        oobValue = value;
    }

    /** `getElement` and `setElement` with indices from 1. */
    const T& vbget(int i, int j) const { return getElement(i - 1, j - 1); }
    void vbset(int i, int j, const T& value) { setElement(i - 1, j - 1, value); }

    /**
     * Gives the object a new shape; a column count below 1 counts as 1.
     *
     * An attached object has its host array resized, by the array's own allocator; when that cannot be done,
     * the object takes the new counts all the same. An owned block is kept when it is large enough, with its
     * elements in their linear order, and otherwise replaced without keeping them. A borrowed object stays as
     * it is.
     * @throws std::bad_alloc when memory is short
     */
    KORVEL_API void Redim(int rows, int cols);

    /** `Redim(rows, cols)`, and then every element, whatever the shape has become, set to `value`. */
    void Redim(int rows, int cols, const T& value)
    {
        const T fill = value;
        Redim(rows, cols);
        std::fill_n(data, fillable(), fill);
    }

private:
    [[nodiscard]] std::ptrdiff_t offset(int i, int j) const
    {
        return i + static_cast<std::ptrdiff_t>(nbrows) * j;
    }

    /** Elements that the block really has: a host array that refused a new shape has fewer than `nbElem`. */
    KORVEL_API std::uint64_t fillable() const;

    void setCounts(int rows, int cols)
    {
        nbrows = rows;
        nbcols = cols;
        nbElem = korvel::elementCount(rows, cols);
    }

    void view(int rows, int cols, T* block)
    {
        setCounts(rows, cols);
        capacity = nbElem;
        data = block;
        bOwner = false;
    }

    /** A count that turned negative has no block, whatever a compiler makes of its size in bytes. */
    [[nodiscard]] static T* newBlock(std::uint64_t count, bool zeroed)
    {
        if (count > static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max())) {
            throw std::bad_alloc();
        }
        return zeroed ? new T[count]() : new T[count];
    }

    void allocate(int rows, int cols, bool zeroed)
    {
        setCounts(rows, std::max(cols, 1));
        data = newBlock(nbElem, zeroed);
        capacity = nbElem;
    }

    void releaseBlock() noexcept
    {
        if (bOwner) {
            delete[] data;
        }
    }

    /** Replaces the block when it is too small for `nbElem`. */
    void growBlock()
    {
        if (capacity < nbElem || data == nullptr) {
            releaseBlock();
            data = nullptr;
            capacity = 0;
            data = newBlock(nbElem, false);
            capacity = nbElem;
        }
    }

    void takeFrom(matrix& src) noexcept
    {
        oobValue = std::move(src.oobValue);
        spareValue = std::move(src.spareValue);
        bOwner = src.bOwner;
        firstElem = src.firstElem;
        nbElem = src.nbElem;
        capacity = src.capacity;
        nbrows = src.nbrows;
        nbcols = src.nbcols;
        data = std::exchange(src.data, nullptr);
        safeArray = std::exchange(src.safeArray, nullptr);
    }

    KORVEL_API void writeBackToHostArray() noexcept requires korvel::is_text<T>;
};

/**
 * A `matrix` with seven spare buffers for a column's statistics. Nothing in this library fills them; the
 * destructor frees them with `delete[]`.
 */
template <class T>
class KORVEL_TYPE statistics_matrix : public matrix<T>
{
public:
    double* buffer1 = nullptr; ///< The caller's.
    double* buffer2 = nullptr; ///< The caller's.
    double* buffer3 = nullptr; ///< The caller's.
    double* buffer4 = nullptr; ///< The caller's.
    double* buffer5 = nullptr; ///< The caller's.
    double* buffer6 = nullptr; ///< The caller's.
    double* buffer7 = nullptr; ///< The caller's.
    std::int32_t count1 = 0;   ///< The caller's.
    std::int32_t count2 = 0;   ///< The caller's.
    bool flag1 = false;        ///< The caller's.
    bool flag2 = false;        ///< The caller's.
    /** Empty; as those of `matrix`, without buffers; moved with the buffers. */
    statistics_matrix() = default;
    statistics_matrix(int rows, int cols, const T& value) : matrix<T>(rows, cols, value) {}
    statistics_matrix(const statistics_matrix&) = delete;
    statistics_matrix(statistics_matrix&& src) noexcept : matrix<T>(std::move(src)) { takeBuffers(src); }
    ~statistics_matrix() override { freeBuffers(); }

    statistics_matrix& operator=(const statistics_matrix&) = delete;

    /** As for `matrix`, and takes the buffers, counts and flags, leaving the source's buffers null. */
    statistics_matrix& operator=(statistics_matrix&& src) noexcept
    {
        if (this != &src) {
            matrix<T>::operator=(std::move(src));
            freeBuffers();
            takeBuffers(src);
        }
        return *this;
    }

private:
    void freeBuffers() noexcept
    {
        delete[] buffer5;
        delete[] buffer7;
        delete[] buffer6;
        delete[] buffer3;
        delete[] buffer4;
        delete[] buffer1;
        delete[] buffer2;
    }

    void takeBuffers(statistics_matrix& src) noexcept
    {
        buffer1 = std::exchange(src.buffer1, nullptr);
        buffer2 = std::exchange(src.buffer2, nullptr);
        buffer3 = std::exchange(src.buffer3, nullptr);
        buffer4 = std::exchange(src.buffer4, nullptr);
        buffer5 = std::exchange(src.buffer5, nullptr);
        buffer6 = std::exchange(src.buffer6, nullptr);
        buffer7 = std::exchange(src.buffer7, nullptr);
        count1 = src.count1;
        count2 = src.count2;
        flag1 = src.flag1;
        flag2 = src.flag2;
    }
};

#endif
