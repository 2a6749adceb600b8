// The members that only tables of texts have. They have a source of their own, apart from the explicit
// instantiations of the whole class: where Clang 14 sees both, it makes a constrained member for every
// element type.
#include "containers/matrix.h"

#include "containers/bstr.h"
#include "containers/host_array.h"

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
matrix<T>::matrix(int rows, int cols, SAFEARRAY* sa) requires korvel::is_text<T> : matrix()
{
    allocate(rows, cols, false);
    if (sa != nullptr && sa->pvData != nullptr) {
        readTexts(*this, static_cast<const BSTR*>(sa->pvData), korvel::hostArrayLength(*sa));
    }
    safeArray = sa;
}

template <class T>
matrix<T>::matrix(int rows, int cols, OLECHAR** bstrs, int srcRows, int srcCols) requires korvel::is_text<T>
    : matrix()
{
    allocate(rows, cols, false);
    const auto given = static_cast<std::int64_t>(
        korvel::elementCount(srcRows != 0 ? srcRows : nbrows, srcCols != 0 ? srcCols : nbcols));
    readTexts(*this, bstrs, static_cast<std::uint64_t>(std::max(given, std::int64_t{0})));
}

template <class T>
void matrix<T>::writeBackToHostArray() noexcept requires korvel::is_text<T>
{
    // There is no block if memory ran out while the shape was changed.
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
        // A destructor must not throw; the texts not reached keep their old value.
    }
}

template matrix<text>::matrix(int, int, SAFEARRAY*);
template matrix<text>::matrix(int, int, OLECHAR**, int, int);
template void matrix<text>::writeBackToHostArray() noexcept;
