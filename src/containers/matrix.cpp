#include "containers/matrix.h"

#include "containers/host_array.h"

#include <array>
#include <span>

template <class T>
matrix<T>::matrix(SAFEARRAY* sa) : matrix()
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
std::uint64_t matrix<T>::fillable() const
{
    if (data == nullptr || static_cast<std::int64_t>(nbElem) < 0) {
        return 0;
    }
    return safeArray == nullptr || bOwner ? nbElem : std::min(nbElem, korvel::hostArrayLength(*safeArray));
}

template <class T>
void matrix<T>::Redim(int rows, int cols)
{
    cols = std::max(cols, 1);
    bool ownsBlock = false;
    if (safeArray != nullptr) {
        if (korvel::hostArrayShape(*safeArray) != korvel::table_shape{rows, cols}) {
            const std::array counts{rows, cols};
            const bool oneDimension = safeArray->cDims == 1 && cols == 1;
            korvel::resizeHostArray(*safeArray, std::span(counts).first(oneDimension ? 1 : 2),
                                    korvel::is_text<T>);
        }
        setCounts(rows, cols);
        if constexpr (korvel::is_text<T>) {
            ownsBlock = true;
            bOwner = true;
        } else {
            data = static_cast<T*>(safeArray->pvData);
            bOwner = false;
        }
    } else if ((nbrows != rows || nbcols != cols) && bOwner) {
        setCounts(rows, cols);
        ownsBlock = true;
    }
    if (ownsBlock) {
        try {
            growBlock();
        } catch (...) {
            setCounts(0, 0); // there is no block that cells could be read from
            throw;
        }
    }
}

template matrix<double>::matrix(SAFEARRAY*);
template matrix<int>::matrix(SAFEARRAY*);
template matrix<short int>::matrix(SAFEARRAY*);
template matrix<text>::matrix(SAFEARRAY*);

template std::uint64_t matrix<double>::fillable() const;
template std::uint64_t matrix<int>::fillable() const;
template std::uint64_t matrix<short int>::fillable() const;
template std::uint64_t matrix<text>::fillable() const;

template void matrix<double>::Redim(int, int);
template void matrix<int>::Redim(int, int);
template void matrix<short int>::Redim(int, int);
template void matrix<text>::Redim(int, int);
