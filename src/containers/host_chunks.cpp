#include "containers/host_chunks.h"

#include "containers/bstr.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>

namespace
{

/** The records of a chunked table; none when there is no array or it has no block. */
std::span<const Hostarray> recordsOf(Hostarray** a, int n)
{
    const SAFEARRAY* array = n > 0 ? *reinterpret_cast<SAFEARRAY**>(a) : nullptr;
    if (array == nullptr || array->pvData == nullptr) {
        return {};
    }
    return {static_cast<const Hostarray*>(array->pvData), static_cast<std::size_t>(n)};
}

/**
 * An array of `n` pointers. Each is the chunk that `makeChunk(block, rows)` makes of a record's column, or
 * null when the column has no block.
 */
template <class T, class MakeChunk>
matrix<T>** loadColumns(Hostarray** a, int n, int rows, int cols, SAFEARRAY* Hostarray::*column,
                        MakeChunk makeChunk)
{
    const auto freeAll = [n](matrix<T>** made) {
        deletecascade(made, n);
        delete[] made;
    };
    std::unique_ptr<matrix<T>*[], decltype(freeAll)> chunks(
        new matrix<T>*[static_cast<std::size_t>(std::max(n, 0))](), freeAll);
    auto** chunk = chunks.get();
    for (const Hostarray& record : recordsOf(a, n)) {
        const SAFEARRAY* array = record.*column;
        if (array != nullptr && array->pvData != nullptr) {
            *chunk = makeChunk(array->pvData, rows);
            if (cols == 0) {
                --rows;
            }
        }
        ++chunk;
    }
    return chunks.release();
}

} // namespace

matrix<double>** LoadHostarray(Hostarray** a, int n, int rows, int cols)
{
    return loadColumns<double>(a, n, rows, cols, &Hostarray::numbers, [cols](void* block, int length) {
        return new matrix<double>(length, cols != 0 ? cols : 1, static_cast<double*>(block), true);
    });
}

matrix<text>** LoadHostarrayStr(Hostarray** a, int n, int rows, int cols)
{
    return loadColumns<text>(a, n, rows, cols, &Hostarray::texts, [](void* block, int length) {
        return new matrix<text>(length, 1, static_cast<OLECHAR**>(block), 0, 0);
    });
}

void SaveHostarray(matrix<text>** chunks, int n, int, Hostarray** a)
{
    for (const Hostarray& record : recordsOf(a, n)) {
        const matrix<text>* chunk = *chunks++;
        if (record.texts != nullptr && record.texts->pvData != nullptr) {
            korvel::writeBack(chunk->data, chunk->nbElem, static_cast<BSTR*>(record.texts->pvData));
        }
    }
}

void DeleteHostarray(matrix<double>** chunks, int n)
{
    deletecascade(chunks, n);
    delete[] chunks;
}

void DeleteHostarrayStr(matrix<text>** chunks, int n)
{
    deletecascade(chunks, n);
    delete[] chunks;
}

template <class T>
void deletecascade(matrix<T>** chunks, int n)
{
    for (int k = 0; k < n; ++k) {
        delete chunks[k];
    }
}

template void deletecascade(matrix<double>** chunks, int n);
template void deletecascade(matrix<int>** chunks, int n);
template void deletecascade(matrix<short int>** chunks, int n);
template void deletecascade(matrix<text>** chunks, int n);
