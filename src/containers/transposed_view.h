/**
 * @file
 * The rows of a table as columns.
 */
#ifndef KORVEL_CONTAINERS_TRANSPOSED_VIEW_H
#define KORVEL_CONTAINERS_TRANSPOSED_VIEW_H

#include "containers/views.h"

#include <cstddef>

namespace korvel
{

/** Reads a dense table with rows and columns exchanged: element (i, j) is the table's element (j, i). */
class transposed_view
{
public:
    explicit transposed_view(const matrix<double>& owner) : owner_(&owner) {}

    [[nodiscard]] double get(int i, int j) const { return owner_->getElement(j, i); }

    [[nodiscard]] auto column(int j, int rows) const
    {
        return source(checked_row{owner_, j}, 0 <= j && j < owner_->nbrows && rows <= owner_->nbcols,
                      [owner = owner_, j] {
                          return raw_row{owner->data + j, owner->nbrows};
                      });
    }

private:
    struct checked_row {
        const matrix<double>* owner;
        int row;

        double operator[](int i) const { return owner->getElement(row, i); }
    };

    struct raw_row {
        const double* first;
        std::ptrdiff_t stride;

        double operator[](std::ptrdiff_t i) const { return first[i * stride]; }
    };

    const matrix<double>* owner_;
};

} // namespace korvel

#endif
