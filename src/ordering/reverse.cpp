#include "ordering/reverse.h"

#include "containers/cells.h"

#include <algorithm>

namespace
{

template <class T>
void reverseInPlace(matrix<T>& x, int n)
{
    if (n > 0 && korvel::holds(x, n)) {
        std::reverse(x.data, x.data + n);
    }
}

} // namespace

void V_Reverse(matrix<double>* x, int n, matrix<double>* out)
{
    if (x->data == out->data) {
        reverseInPlace(*out, n);
        return;
    }
    korvel::withCells(
        [n](auto in, auto& reversed) {
            for (int i = 0; i < n; ++i) {
                reversed.set(i, in[n - 1 - i]);
            }
        },
        korvel::readVector(*x, n), korvel::writeVector(*out, n));
}

void V_ReverseBool(short int* x, int n, short int* out)
{
    if (x == out) {
        std::reverse(x, x + std::max(n, 0));
    } else {
        std::reverse_copy(x, x + std::max(n, 0), out);
    }
}

void V_Reverse2(matrix<double>* x, int n)
{
    reverseInPlace(*x, n);
}

void V_Reverse2(matrix<int>* x, int n)
{
    reverseInPlace(*x, n);
}

void V_Reverse2(matrix<short int>* x, int n)
{
    reverseInPlace(*x, n);
}
