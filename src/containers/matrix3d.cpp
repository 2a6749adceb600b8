#include "containers/matrix3d.h"

#include "containers/cells.h"
#include "containers/host_array.h"
#include "containers/sparse_matrix.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace
{

template <class M>
double elementOf(M& chunk, int k)
{
    if constexpr (std::derived_from<M, matrix<double>>) {
        return std::as_const(chunk)[k];
    } else {
        return chunk.getElement(k);
    }
}

template <class M>
void storeElement(M& chunk, int k, double v)
{
    if constexpr (std::derived_from<M, matrix<double>>) {
        korvel::storeChecked(chunk, k, v);
    } else {
        chunk.setElement(k, v);
    }
}

template <class M>
M& at(std::vector<M>& chunks, int k)
{
    return chunks[static_cast<std::size_t>(k)];
}

/** The numeric columns behind a block of records or of plain pointers. Which of the two it is, is guessed. */
std::vector<SAFEARRAY*> numericColumns(const void* block, std::size_t n)
{
    const std::span words(static_cast<SAFEARRAY* const*>(block), n);
    std::vector<SAFEARRAY*> columns(words.begin(), words.end());
    if (std::find(words.begin(), words.end(), nullptr) != words.end()) {
        const std::span records(static_cast<const Hostarray*>(block), n);
        std::transform(records.begin(), records.end(), columns.begin(),
                       [](const Hostarray& record) { return record.numbers; });
    }
    return columns;
}

} // namespace

template <class M>
matrix3D<M>::matrix3D(int n, Hostarray** a) requires std::same_as<M, matrix<double>>
{
    const auto count = static_cast<std::size_t>(std::max(n, 0));
    this->chunks.resize(count);
    const SAFEARRAY* array = *reinterpret_cast<SAFEARRAY**>(a);
    if (array == nullptr || array->pvData == nullptr) {
        return;
    }
    const std::vector<SAFEARRAY*> columns = numericColumns(array->pvData, count);
    for (std::size_t k = 0; k < count; ++k) {
        this->chunks[k] = M(columns[k]);
    }
}

template <class M>
matrix3D<M>::matrix3D(int n, int rows, int, double value) requires std::derived_from<M, matrix<double>>
{
    this->chunks.reserve(static_cast<std::size_t>(std::max(n, 0)));
    for (int k = 0; k < n; ++k) {
        this->chunks.emplace_back(rows, 1, value);
    }
}

template <class M>
double matrix3D<M>::getElement(int a, int b)
{
    return elementOf(at(this->chunks, a), b);
}

template <class M>
double matrix3D<M>::vbget(int a, int b)
{
    return getElement(a - 1, b - 1);
}

template <class M>
void matrix3D<M>::setElement(int a, int b, const double& v)
{
    storeElement(at(this->chunks, a), b, v);
}

template <class M>
void matrix3D<M>::vbset(int a, int b, double v)
{
    setElement(a - 1, b - 1, v);
}

template <class M>
matrix3DVect<M>::matrix3DVect(SAFEARRAY* vectors)
{
    const auto records = korvel::recordsIn<ST_Vect>(vectors);
    this->chunks.reserve(records.size());
    for (const ST_Vect& record : records) {
        this->chunks.emplace_back(record.Vect);
    }
}

template <class M>
double matrix3DVect<M>::getElement(int a, int b)
{
    return elementOf(at(this->chunks, b), a);
}

template <class M>
double matrix3DVect<M>::vbget(int a, int b)
{
    return getElement(a - 1, b - 1);
}

template <class M>
void matrix3DVect<M>::setElement(int a, int b, const double& v)
{
    storeElement(at(this->chunks, b), a, v);
}

template <class M>
void matrix3DVect<M>::vbset(int a, int b, double v)
{
    setElement(a - 1, b - 1, v);
}

// Instantiated member by member: when a whole class is instantiated, Clang 14 also makes the members whose
// constraint does not hold.
template matrix3D<matrix<double>>::matrix3D(int, Hostarray**);
template matrix3D<matrix<double>>::matrix3D(int, int, int, double);
template matrix3D<statistics_matrix<double>>::matrix3D(int, int, int, double);

template double matrix3D<matrix<double>>::getElement(int, int);
template double matrix3D<matrix<double>>::vbget(int, int);
template void matrix3D<matrix<double>>::setElement(int, int, const double&);
template void matrix3D<matrix<double>>::vbset(int, int, double);

template double matrix3D<statistics_matrix<double>>::getElement(int, int);
template double matrix3D<statistics_matrix<double>>::vbget(int, int);
template void matrix3D<statistics_matrix<double>>::setElement(int, int, const double&);
template void matrix3D<statistics_matrix<double>>::vbset(int, int, double);

template double matrix3D<matrixSparse>::getElement(int, int);
template double matrix3D<matrixSparse>::vbget(int, int);
template void matrix3D<matrixSparse>::setElement(int, int, const double&);
template void matrix3D<matrixSparse>::vbset(int, int, double);

template matrix3DVect<matrix<double>>::matrix3DVect(SAFEARRAY*);
template double matrix3DVect<matrix<double>>::getElement(int, int);
template double matrix3DVect<matrix<double>>::vbget(int, int);
template void matrix3DVect<matrix<double>>::setElement(int, int, const double&);
template void matrix3DVect<matrix<double>>::vbset(int, int, double);

double korvel::sumOfElements(const matrix3DVect<matrix<double>>& table)
{
    double sum = 0.0;
    for (const matrix<double>& chunk : table.chunks) {
        for (std::uint64_t k = 0; k < chunk.nbElem; ++k) {
            sum += chunk.data[k];
        }
    }
    return sum;
}
