#include "qualitative/binary_tables.h"

#include "containers/conversion.h"
#include "containers/map_cells.h"
#include "qualitative/category_slots.h"
#include "statistics/stand_ins.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <utility>

namespace
{

constexpr double epsilon = std::numeric_limits<double>::epsilon();

constexpr auto binary = [](double x) { return std::abs(x) < epsilon ? 0.0 : 1.0; };

bool areSame(double x, double y)
{
    return std::abs(x - y) <= epsilon;
}

/** Neither missing nor a NaN. */
bool isKept(double x)
{
    return x > MISSING_DBL;
}

/** The position of the first element that is kept; `n` when there is none. */
template <class Cells>
int firstKept(const Cells& x, int n)
{
    int i = 0;
    while (i < n && !isKept(x[i])) {
        ++i;
    }
    return i;
}

/** The sum of row i, from the first column on. */
template <class Cells>
double rowSumOf(const Cells& x, int i, int p)
{
    double sum = 0.0;
    for (int j = 0; j < p; ++j) {
        sum += x.get(i, j);
    }
    return sum;
}

/** Whether the elements from the first that counts on pass the test that `testFrom(first element)` gives; a
 * single one does not. */
template <class TestFrom>
short int areBinary(const matrix<double>& x, int n, bool skipMissing, TestFrom testFrom)
{
    return korvel::withCells(
        [&](auto cells) -> short int {
            const int first = skipMissing ? firstKept(cells, n) : 0;
            if (first == n - 1 || (skipMissing && first >= n)) {
                return 0;
            }
            auto passes = testFrom(cells[first]);
            for (int i = first; i < n; ++i) {
                if (!(skipMissing && cells[i] == MISSING_DBL) && !passes(cells[i])) {
                    return 0;
                }
            }
            return -1;
        },
        korvel::readVector(x, std::max(n, 1)));
}

/** Passes the values of a vector as long as there are at most two. An infinity is not the same as itself. */
class two_values
{
public:
    explicit two_values(double first) : first_(first) {}

    bool operator()(double value)
    {
        if (!isKept(value)) {
            return false;
        }
        if (areSame(value, first_) || (second_ && areSame(value, *second_))) {
            return true;
        }
        if (second_) {
            return false;
        }
        second_ = value;
        return true;
    }

private:
    double first_;
    std::optional<double> second_;
};

} // namespace

void M_Binarize(matrix<double>* x, int n, int p, matrix<double>* result)
{
    korvel::mapCells(
        n, p, [](double cell) { return cell == MISSING_DBL ? cell : binary(cell); }, korvel::writing(*result),
        korvel::reading(*x));
}

void M_Binarize2(matrix<double>* x, int n, int p)
{
    korvel::mapCells(n, p, binary, korvel::writing(*x), korvel::reading(*x));
}

void M_Binarize2SPV(matrix<double>** x, int p, int n)
{
    korvel::mapCells(n, p, binary, korvel::writing(x), korvel::reading(x));
}

short int M_IsDisjTable(matrix<double>* x, int n, int p, short int* rowFlags, int& rowSum)
{
    return korvel::withFlags(rowFlags, [&](auto flags) {
        return korvel::withCells(
            [&](auto cells) -> short int {
                int reference = 0;
                while (reference + 1 < n && flags[reference + 1] == -1) {
                    ++reference;
                }
                rowSum = korvel::truncateToInt(rowSumOf(cells, reference, p));
                bool lastVaries = p < 1;
                for (int i = reference + 1; i < n; ++i) {
                    if (flags[i] != 0) {
                        continue;
                    }
                    if (std::abs(rowSumOf(cells, i, p) - rowSum) > 1e-12) {
                        return 0;
                    }
                    lastVaries =
                        lastVaries || std::abs(cells.get(i, p - 1) - cells.get(reference, p - 1)) > epsilon;
                }
                return korvel::flagOf(lastVaries);
            },
            korvel::reading(*x).table(std::max(n, 1), p));
    });
}

short int V_IsBinary(matrix<double> const& x, int n, short int skipMissing)
{
    return areBinary(x, n, skipMissing == -1, [](double first) { return two_values(first); });
}

short int V_IsBinaryXY(matrix<double>* x, int n, double a, double b, short int skipMissing)
{
    return areBinary(*x, n, skipMissing == -1, [=](double) {
        return [=](double value) { return areSame(value, a) || areSame(value, b); };
    });
}

short int M_IsBinary_ST(cST_MVect<double>& x, short int skipMissing)
{
    korvel::column_slots<double> columns(x);
    for (int j = 0; j < x.nbcols && columns.has(j); ++j) {
        const auto& column = x.Vectors[static_cast<std::size_t>(j)];
        if (V_IsBinary(column.Vect, column.Count, skipMissing) == 0) {
            return 0;
        }
    }
    return -1;
}

void V_ConvertBinaryTo01(matrix<double>* x, int n)
{
    korvel::withCells(
        [n](auto& cells) {
            const int first = firstKept(cells, n);
            if (first >= n - 1) {
                return;
            }
            double a = cells[first];
            double b = 0.0;
            for (int i = first + 1; i < n; ++i) {
                if (isKept(cells[i]) && std::abs(cells[i] - a) > epsilon) {
                    b = cells[i];
                    break;
                }
            }
            if (a > b) {
                std::swap(a, b);
            }
            for (int i = 0; i < n; ++i) {
                if (areSame(cells[i], a)) {
                    cells.set(i, 0.0);
                } else if (areSame(cells[i], b)) {
                    cells.set(i, 1.0);
                }
            }
        },
        korvel::writeVector(*x, n));
}

void M_ConvertBinarytoDisjTable(matrix<double>* x, int n, int p, matrix<double>* result)
{
    const auto fill = [&](int from, int to, auto cell) {
        korvel::withCells(
            [&](auto in, auto& out) {
                for (int i = 0; i < n; ++i) {
                    out.set(i, cell(in[i]));
                }
            },
            korvel::reading(*x).column(from, n), korvel::writing(*result).column(to, n));
    };
    for (int j = 0; j < p; ++j) {
        fill(j, 2 * j, [](double cell) { return cell; });
        fill(j, 2 * j + 1, [](double cell) { return 1.0 - cell; });
    }
}
