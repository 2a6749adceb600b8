#include "tables/merge.h"

#include "tables/block_copy.h"

using korvel::copyBlock;
using korvel::copyClipped;
using korvel::reading;
using korvel::writing;

namespace
{

/** The caller's bare vector as a table of one column. */
matrix<double> column(double* v, int n)
{
    return matrix<double>(n, 1, v, true);
}

template <class T, class R>
void besideEachOther(const matrix<T>& a, int rowsA, int colsA, const matrix<T>& b, int rowsB, int colsB,
                     matrix<R>& out)
{
    const bool allStored = rowsA == rowsB && 0 <= colsA && 0 <= colsB;
    korvel::redimToFill(out, std::max(rowsA, rowsB), colsA + colsB, allStored);
    copyBlock(reading(a), {0, 0}, writing(out), {0, 0}, rowsA, colsA);
    copyBlock(reading(b), {0, 0}, writing(out), {0, colsA}, rowsB, colsB);
}

template <class A, class B>
void appendColumns(const A& a, int colsA, const B& b, int rowsB, int colsB)
{
    copyBlock(b, {0, 0}, a, {0, colsA}, rowsB, colsB);
}

template <class T>
void append(matrix<T>& a, int nA, const matrix<T>& b, int nB)
{
    copyBlock(reading(b), {0, 0}, writing(a), {nA, 0}, nB, 1);
}

template <class T>
void oneBelowTheOther(const matrix<T>& a, int nA, const matrix<T>& b, int nB, matrix<T>& out)
{
    korvel::redimToFill(out, nA + nB, 1, true);
    copyBlock(reading(a), {0, 0}, writing(out), {0, 0}, nA, 1);
    append(out, nA, b, nB);
}

template <class A>
void stack(const A& a, int rowsA, int colsA, const matrix<double>& b, int rowsB, int colsB,
           matrix<double>& out)
{
    copyBlock(a, {0, 0}, writing(out), {0, 0}, rowsA, colsA);
    copyBlock(reading(b), {0, 0}, writing(out), {rowsA, 0}, rowsB, colsB);
}

} // namespace

void HMergeTables(matrix<double>* a, int rowsA, int colsA, matrix<double>* b, int rowsB, int colsB,
                  matrix<double>*& out)
{
    besideEachOther(*a, rowsA, colsA, *b, rowsB, colsB, *out);
}

void HMergeTables(matrix<double>* a, int rowsA, int colsA, matrix<double>* b, int rowsB, int colsB,
                  matrix<int>*& out)
{
    besideEachOther(*a, rowsA, colsA, *b, rowsB, colsB, *out);
}

void HMergeTables(matrix<int>* a, int rowsA, int colsA, matrix<int>* b, int rowsB, int colsB,
                  matrix<int>*& out)
{
    besideEachOther(*a, rowsA, colsA, *b, rowsB, colsB, *out);
}

void HMergeTables(matrix<short int>* a, int rowsA, int colsA, matrix<short int>* b, int rowsB, int colsB,
                  matrix<short int>*& out)
{
    besideEachOther(*a, rowsA, colsA, *b, rowsB, colsB, *out);
}

void HMergeTables(matrix<text>* a, int rowsA, int colsA, matrix<text>* b, int rowsB, int colsB,
                  matrix<text>*& out)
{
    besideEachOther(*a, rowsA, colsA, *b, rowsB, colsB, *out);
}

void HMergeTables(matrix<double>* a, int, int colsA, matrix<double>* b, int rowsB, int colsB)
{
    appendColumns(writing(*a), colsA, reading(*b), rowsB, colsB);
}

void HMergeTables(matrix<int>* a, int, int colsA, matrix<int>* b, int rowsB, int colsB)
{
    appendColumns(writing(*a), colsA, reading(*b), rowsB, colsB);
}

void HMergeTables(matrix<short int>* a, int, int colsA, matrix<short int>* b, int rowsB, int colsB)
{
    appendColumns(writing(*a), colsA, reading(*b), rowsB, colsB);
}

void HMergeTables(matrix<text>* a, int, int colsA, matrix<text>* b, int rowsB, int colsB)
{
    appendColumns(writing(*a), colsA, reading(*b), rowsB, colsB);
}

void HMergeTables(matrix<double>** a, int, int colsA, matrix<double>* b, int rowsB, int colsB)
{
    appendColumns(writing(a), colsA, reading(*b), rowsB, colsB);
}

void HMergeTables(matrix<double>** a, int, int colsA, matrix<double>** b, int rowsB, int colsB)
{
    appendColumns(writing(a), colsA, reading(b), rowsB, colsB);
}

void HMergeVectors(double* a, int nA, double* b, int nB, matrix<double>* out)
{
    copyBlock(reading(column(a, nA)), {0, 0}, writing(*out), {0, 0}, nA, 1);
    copyBlock(reading(column(b, nB)), {0, 0}, writing(*out), {0, 1}, nB, 1);
}

void HMergeTableVect(matrix<double>* x, int rows, int cols, double* v, int n, matrix<double>* out,
                     int outRows, int outCols)
{
    copyClipped(reading(*x), rows, cols, writing(*out), outRows, outCols, {0, 0});
    copyClipped(reading(column(v, n)), n, 1, writing(*out), outRows, outCols, {0, cols});
}

void HMergeTableVect2(matrix<double>* x, int cols, double* v, int n)
{
    appendColumns(writing(*x), cols, reading(column(v, n)), n, 1);
}

void HMergeVectTable(double* v, int n, matrix<double>* x, int rows, int cols, matrix<double>* out,
                     int outRows, int outCols)
{
    copyClipped(reading(column(v, n)), n, 1, writing(*out), outRows, outCols, {0, 0});
    copyClipped(reading(*x), rows, cols, writing(*out), outRows, outCols, {0, 1});
}

void HMergeVectCol(double* v, int n, matrix<double>* x, int rows, int col, matrix<double>* out, int outRows)
{
    copyBlock(reading(column(v, n)), {0, 0}, writing(*out), {0, 0}, std::min(n, outRows), 1);
    copyBlock(reading(*x), korvel::placeOf(1, col), writing(*out), {0, 1}, std::min(rows, outRows), 1);
}

void VMergeVectors(matrix<double>* a, int nA, matrix<double>* b, int nB, matrix<double>* out)
{
    oneBelowTheOther(*a, nA, *b, nB, *out);
}

void VMergeVectors(matrix<text>* a, int nA, matrix<text>* b, int nB, matrix<text>* out)
{
    oneBelowTheOther(*a, nA, *b, nB, *out);
}

void VMergeVectors2(matrix<double>* a, int nA, matrix<double>* b, int nB)
{
    append(*a, nA, *b, nB);
}

void VMergeVectors2(matrix<text>* a, int nA, matrix<text>* b, int nB)
{
    append(*a, nA, *b, nB);
}

void VMergeVectorsBool2(matrix<short int>* a, int nA, matrix<short int>* b, int nB)
{
    append(*a, nA, *b, nB);
}

void VMergeTables(matrix<double>* a, int rowsA, int colsA, matrix<double>* b, int rowsB, int colsB,
                  matrix<double>* out)
{
    stack(reading(*a), rowsA, colsA, *b, rowsB, colsB, *out);
}

void VMergeTablesSPV(matrix<double>** a, int rowsA, int colsA, matrix<double>* b, int rowsB, int colsB,
                     matrix<double>* out)
{
    stack(reading(a), rowsA, colsA, *b, rowsB, colsB, *out);
}
