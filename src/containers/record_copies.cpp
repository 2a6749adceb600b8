#include "containers/record_copies.h"

#include "containers/record_columns.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

using korvel::columnAt;

void MV_DuplicateMVect(cST_MVect<double>& src, cST_MVect<double>& dst)
{
    for (int j = 0; j < src.nbcols; ++j) {
        const auto column = static_cast<std::size_t>(j);
        std::copy_n(src.Vectors[column].Vect.data, src.nbrowsmax, dst.Vectors[column].Vect.data);
    }
}

void M_DuplicateMVDblTriang_ST(cST_MVect<double>& src, cST_MVect<double>& dst)
{
    matrix<double> nowhere;
    const int cols = std::min(src.nbcols, dst.nbcols);
    for (int j = 0; j < cols; ++j) {
        const matrix<double>& from = columnAt(src, j, nowhere);
        matrix<double>& to = columnAt(dst, j, nowhere);
        for (int i = 0; i <= j; ++i) {
            to[i] = from[i];
        }
    }
}

void CopyDblToMV(matrix<double>& m, int rows, int cols, cST_MVect<double>& mv)
{
    matrix<double> nowhere;
    std::vector<double> column(static_cast<std::size_t>(std::max(rows, 0)), 0.0);
    for (int j = 0; j < cols; ++j) {
        if (j < m.nbcols) {
            const double* source = m.data + static_cast<std::ptrdiff_t>(m.nbrows) * j;
            std::copy_n(source, std::min(rows, m.nbrows), column.begin());
        }
        matrix<double>& target = columnAt(mv, j, nowhere);
        for (std::size_t i = 0; i < column.size(); ++i) {
            target[static_cast<std::int64_t>(i)] = column[i];
        }
    }
}
