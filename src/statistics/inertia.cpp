#include "statistics/inertia.h"

#include "containers/views.h"

namespace
{

using korvel::reading;
using korvel::withCells;
using korvel::writing;

/** Which rows are taken. */
template <class Id>
struct group_of_rows {
    int group;
    const matrix<Id>* ids;

    [[nodiscard]] bool takes(int r) const { return group == -1 || (*ids)[r] == static_cast<Id>(group); }
};

template <class View, class Id, class Out>
void scatter(const View& x, int rows, int cols, const matrix<double>& w, group_of_rows<Id> taken,
             const matrix<double>& centres, const Out& out)
{
    const auto sumOfProducts = [&](int i, int j) {
        const double centreI = centres[i];
        const double centreJ = centres[j];
        return withCells(
            [=](auto left, auto right, auto weights) {
                double sum = 0.0;
                for (int r = 0; r < rows; ++r) {
                    if (taken.takes(r)) {
                        sum += weights[r] * (left[r] - centreI) * (right[r] - centreJ);
                    }
                }
                return sum;
            },
            x.column(i, rows), x.column(j, rows), korvel::readVector(w, rows));
    };
    withCells(
        [&](auto& to) {
            for (int i = 0; i < cols; ++i) {
                for (int j = i; j < cols; ++j) {
                    const double sum = sumOfProducts(i, j);
                    to.set(i, j, sum);
                    to.set(j, i, sum);
                }
            }
        },
        out.table(cols, cols));
}

} // namespace

void M_Inertie_W(matrix<double>* x, int rows, int cols, matrix<double>* w, int group,
                 matrix<double>* groupIds, matrix<double>* centres, matrix<double>* out)
{
    scatter(reading(*x), rows, cols, *w, group_of_rows<double>{group, groupIds}, *centres, writing(*out));
}

void M_Inertie_W(matrix<double>* x, int rows, int cols, matrix<double>* w, int group, matrix<int>* groupIds,
                 matrix<double>* centres, matrix<double>* out)
{
    scatter(reading(*x), rows, cols, *w, group_of_rows<int>{group, groupIds}, *centres, writing(*out));
}

void M_Inertie_WSPV(matrix<double>** x, int rows, int cols, matrix<double>* w, int group,
                    matrix<double>* groupIds, matrix<double>* centres, matrix<double>** out)
{
    scatter(reading(x), rows, cols, *w, group_of_rows<double>{group, groupIds}, *centres, writing(out));
}
