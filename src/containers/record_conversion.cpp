#include "containers/record_conversion.h"

#include "containers/number_text.h"
#include "containers/record_columns.h"

#include <cstdint>
#include <optional>

namespace
{

/**
 * Where a block is read and where it is written. Rows and columns count from 1; the last ones are included.
 */
struct block_move {
    int rowFrom;
    int rowTo;
    int colFrom;
    int colTo;
    int outRows;
    int outCols;
    int rowOffset;
    int colOffset;
};

/** Copies the whole of `block` into `table`. Its first cell goes to a row and a column counted from 1. */
template <class T>
void copyBlock(cST_MVect<T>& block, cST_MVect<T>& table, std::int64_t row, std::int64_t col)
{
    matrix<T> nowhere;
    for (int j = 0; j < block.nbcols; ++j) {
        const matrix<T>& from = korvel::columnAt(block, j, nowhere);
        matrix<T>& to = korvel::columnAt(table, col - 1 + j, nowhere);
        for (int i = 0; i < block.nbrowsmax; ++i) {
            to[row - 1 + i] = from[i];
        }
    }
}

/**
 * Converts the cells into a separate block, and copies that block and the labels if every cell could be
 * converted. `convert` takes a cell and returns the converted one, or nothing.
 */
template <class From, class To, class Convert>
bool convertBlock(const block_move& move, cST_MVect<From>& src, cST_MVect<To>& dst, Convert convert)
{
    cST_MVect<To> block(move.outRows, move.outCols);
    matrix<From> noSource;
    matrix<To> noTarget;
    for (std::int64_t col = move.colFrom; col <= move.colTo; ++col) {
        const matrix<From>& from = korvel::columnAt(src, col - 1, noSource);
        matrix<To>& to = korvel::columnAt(block, col - move.colFrom, noTarget);
        for (std::int64_t row = move.rowFrom; row <= move.rowTo; ++row) {
            std::optional<To> converted = convert(from[row - 1]);
            if (!converted) {
                return false;
            }
            to[row - move.rowFrom] = std::move(*converted);
        }
    }
    for (std::int64_t col = move.colFrom; col <= move.colTo; ++col) {
        dst.CLabels[move.colOffset + (col - move.colFrom) - 1] = src.CLabels[col - 1];
    }
    copyBlock(block, dst, move.rowOffset, move.colOffset);
    return true;
}

} // namespace

int Convert_MVectStrToMVectDbl_ST(int rowFrom, int rowTo, int colFrom, int colTo, int outRows, int outCols,
                                  int rowOffset, int colOffset, cST_MVect<text>& src,
                                  std::basic_string<char16_t> decimalSep, cST_MVect<double>& dst)
{
    const block_move move{rowFrom, rowTo, colFrom, colTo, outRows, outCols, rowOffset, colOffset};
    const bool converted = convertBlock(move, src, dst, [&](const text& cell) -> std::optional<double> {
        return cell.empty() ? MISSING_DBL : korvel::parseNumber(cell, decimalSep);
    });
    return converted ? 0 : -1;
}

int Convert_MVectDblToMVectStr_ST(int rowFrom, int rowTo, int colFrom, int colTo, int outRows, int outCols,
                                  int rowOffset, int colOffset, cST_MVect<double>& src, cST_MVect<text>& dst)
{
    const block_move move{rowFrom, rowTo, colFrom, colTo, outRows, outCols, rowOffset, colOffset};
    convertBlock(move, src, dst, [](double cell) { return std::optional<text>(korvel::renderWhole(cell)); });
    return 0;
}
