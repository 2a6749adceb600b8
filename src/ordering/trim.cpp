#include "ordering/trim.h"

namespace
{

text trimLeft(const text& value)
{
    const auto first = value.find_first_not_of(u' ');
    return first == text::npos ? text{} : value.substr(first);
}

text trimRight(const text& value)
{
    return value.substr(0, value.find_last_not_of(u' ') + 1);
}

text trimmed(const text& value, bool left, bool right)
{
    if (left && right) {
        return StrLRTrim(value);
    }
    if (left) {
        return trimLeft(value);
    }
    return right ? trimRight(value) : value;
}

} // namespace

text StrLRTrim(const text& value)
{
    return trimLeft(trimRight(value));
}

int V_Trim(matrix<text>* labels, int n, short int bLeft, short int bRight, matrix<text>* out)
{
    for (int i = 0; i < n; ++i) {
        (*out)[i] = trimmed((*labels)[i], bLeft == -1, bRight == -1);
    }
    return 0;
}

int V_Trim2(matrix<text>* labels, int n, short int bLeft, short int bRight)
{
    return V_Trim(labels, n, bLeft, bRight, labels);
}
