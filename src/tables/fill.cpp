#include "tables/fill.h"

#include "containers/map_cells.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace
{

/** The number as an element: in decimal digits when the element is a text. */
template <class T>
T numberAs(int k)
{
    if constexpr (korvel::is_text<T>) {
        std::array<char, std::numeric_limits<int>::digits10 + 2> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), k).ptr;
        return text(digits.data(), end);
    } else {
        return static_cast<T>(k);
    }
}

template <class T>
void setToNumbers(matrix<T>& x, int n)
{
    korvel::withCells(
        [n](auto& out) {
            for (int i = 0; i < n; ++i) {
                out.set(i, numberAs<T>(i + 1));
            }
        },
        korvel::writeVector(x, n));
}

} // namespace

void V_Set1toN(matrix<double>* x, int n)
{
    setToNumbers(*x, n);
}

void V_Set1toN(matrix<int>* x, int n)
{
    setToNumbers(*x, n);
}

void V_Set1toN(matrix<text>* x, int n)
{
    setToNumbers(*x, n);
}

int SetVectorToValue(matrix<double>*& x, int n, double value)
{
    x->Redim(n, 1);
    korvel::withCells(
        [=](auto& out) {
            for (int i = 0; i < n; ++i) {
                out.set(i, value);
            }
        },
        korvel::writeVector(*x, n));
    return 0;
}

int InitVectorToFalse(short int* flags, int n)
{
    std::fill_n(flags, n, short{0});
    return 0;
}

int InitVectorToTrue(short int* flags, int n)
{
    std::fill_n(flags, n, short{-1});
    return 0;
}

void M_SetBooleanIfLng(matrix<int>* x, int rows, int cols, int value, matrix<short int>* flags)
{
    korvel::mapCells(
        rows, cols, [value](int cell) { return cell == value ? short{-1} : short{0}; },
        korvel::writing(*flags), korvel::reading(*x));
}
