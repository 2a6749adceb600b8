/**
 * @file
 * The steps that a flat function is made of: wrap the caller's arguments, and bring results back. A frame is
 * a line for each argument, one call of a core routine, and a line for each result; it holds no logic of its
 * own.
 */
#ifndef KORVEL_FRAMES_FRAME_H
#define KORVEL_FRAMES_FRAME_H

#include "containers/bstr.h"
#include "containers/matrix.h"

#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

namespace korvel::frame
{

/** A column count of 0 stands for one column, in functions that take a vector and a table by one signature.
 */
[[nodiscard]] constexpr int columns(int cols) noexcept
{
    return cols != 0 ? cols : 1;
}

/** The caller's array as it stands: read or changed in place, never freed. Allocates nothing. */
template <class T>
[[nodiscard]] matrix<T> borrow(T* array, int rows, int cols = 1)
{
    return matrix<T>(rows, cols, array, true);
}

/** An owned copy of the caller's array. */
template <class T>
[[nodiscard]] matrix<T> copyIn(T* array, int rows, int cols = 1)
{
    return matrix<T>(rows, cols, array, false);
}

/** An owned copy on the heap, for core routines that take over or overwrite a table of their own. */
template <class T>
[[nodiscard]] std::unique_ptr<matrix<T>> copyToHeap(T* array, int rows, int cols = 1)
{
    return std::make_unique<matrix<T>>(rows, cols, array, false);
}

/** An owned table of zeros (of empty texts) for a result. */
template <class T>
[[nodiscard]] matrix<T> blank(int rows, int cols = 1)
{
    return matrix<T>(rows, cols, T{});
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
[[nodiscard]] inline matrix<text> readTexts(OLECHAR** block, int rows, int cols = 1)
{
    return matrix<text>(rows, cols, block, 0, 0);
}

/** Writes texts back over the caller's block; a BSTR that reads the same stays untouched. */
inline void writeTexts(const matrix<text>& result, OLECHAR** block)
{
    writeBack(result.data, result.nbElem, block);
}

/** The caller's host array, in the shape of its descriptor. Numbers stay in place; texts return on
 * destruction. */
template <class T>
[[nodiscard]] matrix<T> attach(SAFEARRAY** array)
{
    return matrix<T>(*array);
}

/** A number cut towards zero, and -2147483648 for what no `int` holds: what the machine's conversion gives.
 */
[[nodiscard]] constexpr int truncated(double value) noexcept
{
    return value > -2147483649.0 && value < 2147483648.0 ? static_cast<int>(value) : MISSING_LNG;
}

/** Flags of `n` rows of which none is set. */
[[nodiscard]] inline std::vector<short int> noFlags(int n)
{
    return std::vector<short int>(n > 0 ? static_cast<std::size_t>(n) : 0);
}

} // namespace korvel::frame

#endif
