/**
 * @file
 * A table of the caller's texts, read where they stand.
 */
#ifndef KORVEL_CONTAINERS_CALLER_TEXTS_H
#define KORVEL_CONTAINERS_CALLER_TEXTS_H

#include "containers/bstr.h"

#include <cstddef>
#include <string_view>

namespace korvel
{

/**
 * A view of a block of BSTR, column after column, that reads as a table of copies would. It is for loops that
 * only read, and that have no other use for the copies. No text may be replaced while it is read.
 */
class caller_texts
{
public:
    caller_texts(OLECHAR* const* block, int rows) : block_(block), rows_(rows) {}

    /** A column as a source of cells, none of which lies outside. */
    class column_source
    {
    public:
        explicit column_source(OLECHAR* const* first) : first_(first) {}

        [[nodiscard]] std::u16string_view operator[](int i) const { return viewBstr(first_[i]); }
        [[nodiscard]] static bool inside() { return true; }
        [[nodiscard]] column_source raw() const { return *this; }

    private:
        OLECHAR* const* first_;
    };

    [[nodiscard]] column_source column(int j, int) const
    {
        return column_source(block_ + static_cast<std::ptrdiff_t>(j) * rows_);
    }

private:
    OLECHAR* const* block_;
    int rows_;
};

} // namespace korvel

#endif
