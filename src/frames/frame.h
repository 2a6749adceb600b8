/**
 * @file
 * The steps that a flat function is made of: wrap the caller's arguments, and bring results back. A frame is
 * a line for each argument, one call of a core routine, and a line for each result; it holds no logic of its
 * own.
 */
#ifndef KORVEL_FRAMES_FRAME_H
#define KORVEL_FRAMES_FRAME_H

#include "containers/bstr.h"
#include "containers/caller_texts.h"
#include "containers/host_chunks.h"
#include "containers/matrix.h"
#include "containers/records.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <optional>

namespace korvel::frame
{

/** A column count of 0 stands for one column, in functions that take a vector and a table by one signature.
 */
[[nodiscard]] constexpr int columns(int cols) noexcept
{
    return cols != 0 ? cols : 1;
}

/** The caller's array for a core routine that reads it and declares it without `const`. */
template <class T>
[[nodiscard]] T* readOnly(const T* array)
{
    return const_cast<T*>(array);
}

/** The caller's array as it stands: read or changed in place, never freed. Allocates nothing. */
template <class T>
[[nodiscard]] matrix<T> borrow(const T* array, int rows, int cols = 1)
{
    return matrix<T>(rows, cols, readOnly(array), true);
}

// The other steps stand for an owned table, also where they borrow because nobody could tell. So all of them
// refuse counts of which no table can be made, numbers and texts alike; and a table without columns has no
// cell, so that nothing of the caller's memory is touched for it.

/** @throws std::bad_alloc for a row count below 0, and for more cells than a table can have */
inline void refuseImpossible(int rows, int cols)
{
    constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max());
    if (elementCount(rows, std::max(cols, 1)) > most) {
        throw std::bad_alloc();
    }
}

/** A table without columns, which no core routine can give any. */
template <class T>
[[nodiscard]] matrix<T> withoutCells(int rows)
{
    refuseImpossible(rows, 0);
    if constexpr (is_text<T>) {
        return matrix<text>(rows, 0, static_cast<text*>(nullptr));
    } else {
        return borrow(static_cast<T*>(nullptr), rows, 0);
    }
}

/** An owned copy of the caller's array. */
template <class T>
[[nodiscard]] matrix<T> copyIn(const T* array, int rows, int cols = 1)
{
    return cols > 0 ? matrix<T>(rows, cols, readOnly(array), false) : withoutCells<T>(rows);
}

/** What would be such a copy, were it not that nothing is written while it is read. */
template <class T>
[[nodiscard]] matrix<T> insteadOfCopy(const T* array, int rows, int cols = 1)
{
    refuseImpossible(rows, cols);
    return cols > 0 ? borrow(array, rows, cols) : withoutCells<T>(rows);
}

/** An owned copy on the heap, for core routines that take over or overwrite a table of their own. */
template <class T>
[[nodiscard]] std::unique_ptr<matrix<T>> copyToHeap(const T* array, int rows, int cols = 1)
{
    return std::make_unique<matrix<T>>(copyIn(array, rows, cols));
}

/** The caller's array as it stands, when there is one. */
template <class T>
[[nodiscard]] std::optional<matrix<T>> borrowIfGiven(const T* array, int rows, int cols = 1)
{
    return array != nullptr ? std::optional<matrix<T>>(borrow(array, rows, cols)) : std::nullopt;
}

/** What a core routine gets for an argument that may be null. */
template <class T>
[[nodiscard]] matrix<T>* pointerTo(std::optional<matrix<T>>& table)
{
    return table ? &*table : nullptr;
}

/** What a core routine writes: its result, or the table that it changes when there is none. */
template <class T>
[[nodiscard]] const matrix<T>& resultOr(const matrix<T>& table, const std::optional<matrix<T>>& result)
{
    return result ? *result : table;
}

/** An owned table of zeros (of empty texts) for a result. */
template <class T>
[[nodiscard]] matrix<T> blank(int rows, int cols = 1)
{
    return cols > 0 ? matrix<T>(rows, cols, T{}) : withoutCells<T>(rows);
}

/** Copies all elements of a result over the caller's array, which must have room for them. */
template <numeric_element T>
void copyOut(const matrix<T>& result, T* array)
{
    if (result.nbElem != 0) {
        std::memmove(array, result.data, result.nbElem * sizeof(T));
    }
}

/** An owned copy of the caller's texts. */
[[nodiscard]] inline matrix<text> readTexts(OLECHAR* const* block, int rows, int cols = 1)
{
    return cols > 0 ? matrix<text>(rows, cols, readOnly(block), 0, 0) : withoutCells<text>(rows);
}

/** What would be such a copy, for core routines that read the caller's texts where they stand. */
[[nodiscard]] inline caller_texts insteadOfTexts(OLECHAR* const* block, int rows, int cols = 1)
{
    refuseImpossible(rows, cols);
    return {block, rows};
}

/** Writes texts back over the caller's block; a BSTR that reads the same stays untouched. */
inline void writeTexts(const matrix<text>& result, OLECHAR** block)
{
    writeBack(result.data, result.nbElem, block);
}

/**
 * The caller's table, to be changed in place by a core routine: its numbers as they stand, or a copy of its
 * texts, which `bringBack` returns.
 */
template <numeric_element T>
[[nodiscard]] matrix<T> changing(T* array, int rows, int cols = 1)
{
    return borrow(array, rows, cols);
}
[[nodiscard]] inline matrix<text> changing(OLECHAR** block, int rows, int cols = 1)
{
    return readTexts(block, rows, cols);
}

/** What a core routine fills for the caller: the numbers in place, or empty texts for `bringBack`. */
template <numeric_element T>
[[nodiscard]] matrix<T> filling(T* array, int rows, int cols = 1)
{
    return insteadOfCopy(array, rows, cols);
}
[[nodiscard]] inline matrix<text> filling(OLECHAR**, int rows, int cols = 1)
{
    return blank<text>(rows, cols);
}

/** Sets numbers to be filled to 0, for a core routine that may leave some of them out. */
template <class T>
void clearUnless(bool allStored, matrix<T>& result)
{
    if (!allStored) {
        result.Redim(result.nbrows, result.nbcols, T{});
    }
}

/** Returns the texts of `changing` and `filling`; numbers are where they belong already. */
template <numeric_element T>
void bringBack(const matrix<T>&, T*)
{
}
inline void bringBack(const matrix<text>& result, OLECHAR** block)
{
    writeTexts(result, block);
}

/**
 * The caller's table, to be read while `written` is written: its numbers as they stand, or a copy of them
 * when they share memory with that; a copy of its texts.
 */
template <numeric_element T, class R>
[[nodiscard]] matrix<T> besides(const matrix<R>& written, const T* array, int rows, int cols = 1)
{
    const auto start = [](const auto* place) { return reinterpret_cast<std::uintptr_t>(place); };
    const auto bytes = [](int height, int width, std::size_t cell) {
        return height > 0 && width > 0
                   ? static_cast<std::uintptr_t>(height) * static_cast<unsigned>(width) * cell
                   : 0;
    };
    const bool apart = start(array) + bytes(rows, cols, sizeof(T)) <= start(written.data) ||
                       start(written.data) + bytes(written.nbrows, written.nbcols, sizeof(R)) <= start(array);
    return apart ? borrow(array, rows, cols) : copyIn(array, rows, cols);
}
template <numeric_element T, class R>
[[nodiscard]] matrix<T> besides(const std::optional<matrix<R>>& written, T* array, int rows, int cols = 1)
{
    return written ? besides(*written, array, rows, cols) : borrow(array, rows, cols);
}
template <numeric_element T, class R>
[[nodiscard]] std::optional<matrix<T>> besidesIfGiven(const matrix<R>& written, const T* array, int rows,
                                                      int cols = 1)
{
    return array != nullptr ? std::optional<matrix<T>>(besides(written, array, rows, cols)) : std::nullopt;
}
template <class R>
[[nodiscard]] matrix<text> besides(const matrix<R>&, OLECHAR* const* block, int rows, int cols = 1)
{
    return readTexts(block, rows, cols);
}

/** The table that a result of `filling` is made from: read as `besides` it, where a copy of it could be made.
 */
template <class Cell, class R>
[[nodiscard]] auto source(const matrix<R>& result, Cell* array, int rows, int cols = 1)
{
    refuseImpossible(rows, cols);
    return besides(result, array, rows, cols);
}

/** The caller's host array, in the shape of its descriptor. Numbers stay in place; texts return on
 * destruction. */
template <class T>
[[nodiscard]] matrix<T> attach(SAFEARRAY** array)
{
    return matrix<T>(*array);
}

/** The caller's labelled table. Its scalars, and texts, return on destruction; numbers stay in place. */
template <class T>
[[nodiscard]] cST_MVect<T> record(ST_MVect* caller)
{
    return cST_MVect<T>(caller);
}

/** The caller's labelled column. Its count and label, and texts, return on destruction. */
template <class T>
[[nodiscard]] cST_Vect<T> record(ST_Vect* caller)
{
    return cST_Vect<T>(caller);
}

/** The same for category statistics. */
[[nodiscard]] inline cST_QualiInfo record(ST_QualiInfo* caller)
{
    return cST_QualiInfo(caller);
}

/** The columns of the caller's chunked table, for as long as the object lives. */
template <class T>
class chunk_list
{
public:
    /** The arguments of `LoadHostarray`. */
    chunk_list(Hostarray** records, int n, int rows, int cols) : chunks_(load(records, n, rows, cols)), n_(n)
    {
    }
    chunk_list(const chunk_list&) = delete;
    chunk_list& operator=(const chunk_list&) = delete;

    ~chunk_list()
    {
        if constexpr (is_text<T>) {
            DeleteHostarrayStr(chunks_, n_);
        } else {
            DeleteHostarray(chunks_, n_);
        }
    }

    [[nodiscard]] matrix<T>** get() const noexcept { return chunks_; }
    [[nodiscard]] int size() const noexcept { return n_; }

private:
    static matrix<T>** load(Hostarray** records, int n, int rows, int cols)
    {
        if constexpr (is_text<T>) {
            return LoadHostarrayStr(records, n, rows, cols);
        } else {
            return LoadHostarray(records, n, rows, cols);
        }
    }

    matrix<T>** chunks_;
    int n_;
};

/** The numeric columns of a chunked table, each of `rows` rows, read or changed in place. */
[[nodiscard]] inline chunk_list<double> chunks(Hostarray** records, int n, int rows)
{
    return {records, n, rows, 1};
}

/** The numeric columns of a triangle, of which the first has `n` rows and each next one a row less. */
[[nodiscard]] inline chunk_list<double> triangularChunks(Hostarray** records, int n)
{
    return {records, n, n, 0};
}

/** A copy of the text columns of a chunked table. */
[[nodiscard]] inline chunk_list<text> textChunks(Hostarray** records, int n, int rows)
{
    return {records, n, rows, 1};
}

/** Writes texts back into the caller's columns; a BSTR that reads the same stays untouched. */
inline void writeTexts(const chunk_list<text>& result, Hostarray** records)
{
    SaveHostarray(result.get(), result.size(), 0, records);
}

} // namespace korvel::frame

#endif
