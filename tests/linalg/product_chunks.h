/**
 * @file
 * Tables in chunks, for routines that are compared on dense ones.
 */
#ifndef KORVEL_TESTS_LINALG_PRODUCT_CHUNKS_H
#define KORVEL_TESTS_LINALG_PRODUCT_CHUNKS_H

#include "linalg/product_members.h"
#include "support/random_tables.h"

namespace korvel::test
{

/** Copies chunks back into the dense table that they came from. */
inline void copyChunks(const matrix3D<table>& from, table& to)
{
    for (int j = 0; j < to.nbcols; ++j) {
        const table& column = from.chunks[static_cast<std::size_t>(j)];
        std::copy_n(column.data, column.nbElem, to.data + std::int64_t{to.nbrows} * j);
    }
    to.oobValue = from.chunks.back().oobValue;
}

/** The columns of a table as a list of chunks. */
class chunk_places
{
public:
    explicit chunk_places(const table& from) : chunks_(chunksOf<table>(from))
    {
        for (table& column : chunks_.chunks) {
            places_.push_back(&column);
        }
    }

    table** get() { return places_.data(); }

    void copyTo(table& to) const { copyChunks(chunks_, to); }

private:
    matrix3D<table> chunks_;
    std::vector<table*> places_;
};

} // namespace korvel::test

#endif
