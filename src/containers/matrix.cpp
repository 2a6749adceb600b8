#include "containers/matrix.h"

#include "containers/bstr.h"
#include "containers/host_array.h"

#include <array>
#include <span>

namespace
{

void readTexts(matrix<text>& target, const BSTR* source, std::uint64_t count)
{
    for (std::uint64_t k = 0; k < std::min(count, target.nbElem); ++k) {
        target.data[k] = korvel::readBstr(source[k]);
    }
}

} // namespace

template <class T>
matrix<T>::matrix(SAFEARRAY* sa)
{
    if (sa == nullptr) {
        return;
    }
    const korvel::table_shape shape = korvel::hostArrayShape(*sa);
    if constexpr (korvel::is_text<T>) {
        *this = matrix(shape.rows, shape.cols, sa);
    } else {
        setCounts(shape.rows, shape.cols);
        data = static_cast<T*>(sa->pvData);
        bOwner = false;
        safeArray = sa;
    }
}

template <class T>
matrix<T>::matrix(int rows, int cols, SAFEARRAY* sa) requires korvel::is_text<T>
{
    allocate(rows, cols, false);
    if (sa != nullptr && sa->pvData != nullptr) {
        readTexts(*this, static_cast<const BSTR*>(sa->pvData), korvel::hostArrayLength(*sa));
    }
    safeArray = sa;
}

template <class T>
matrix<T>::matrix(int rows, int cols, OLECHAR** bstrs, int srcRows, int srcCols) requires korvel::is_text<T>
{
    allocate(rows, cols, false);
    readTexts(*this, bstrs,
              korvel::elementCount(srcRows != 0 ? srcRows : nbrows, srcCols != 0 ? srcCols : nbcols));
}

template <class T>
void matrix<T>::growBlock()
{
    if (capacity < nbElem) {
        releaseBlock();
        data = nullptr;
        capacity = 0;
        data = new T[nbElem];
        capacity = nbElem;
    }
}

template <class T>
void matrix<T>::Redim(int rows, int cols)
{
    cols = std::max(cols, 1);
    if (safeArray != nullptr) {
        if (korvel::hostArrayShape(*safeArray) != korvel::table_shape{rows, cols}) {
            const std::array counts{rows, cols};
            const bool oneDimension = safeArray->cDims == 1 && cols == 1;
            korvel::resizeHostArray(*safeArray, std::span(counts).first(oneDimension ? 1 : 2),
                                    korvel::is_text<T>);
        }
        setCounts(rows, cols);
        if constexpr (korvel::is_text<T>) {
            growBlock();
            bOwner = true;
        } else {
            data = static_cast<T*>(safeArray->pvData);
            bOwner = false;
        }
    } else if ((nbrows != rows || nbcols != cols) && bOwner) {
        setCounts(rows, cols);
        growBlock();
    }
}

template <class T>
void matrix<T>::writeBackToHostArray() noexcept requires korvel::is_text<T>
{
    // There is no block when memory ran out on the way to a new shape.
    if (safeArray == nullptr || safeArray->pvData == nullptr || data == nullptr) {
        return;
    }
    auto* places = static_cast<BSTR*>(safeArray->pvData);
    // A host array that refused to be resized may be smaller than this table.
    const std::uint64_t count = std::min(nbElem, korvel::hostArrayLength(*safeArray));
    try {
        for (auto k = static_cast<std::uint64_t>(firstElem); k < count; ++k) {
            if (places[k] == nullptr) {
                places[k] = korvel::makeBstr(data[k]);
            } else {
                korvel::replaceIfDifferent(places[k], data[k]);
            }
        }
    } catch (...) {
        // A destructor has no one to tell; the texts that were not reached keep their old value.
    }
}

template class matrix<double>;
template class matrix<int>;
template class matrix<short int>;
template class matrix<text>;
template class statistics_matrix<double>;
