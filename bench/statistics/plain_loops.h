/**
 * @file
 * The loops that a programmer would write for the vector summaries, compiled as a user's own code is (-O2).
 * They are the loops that the tests hold the library against.
 */
#ifndef KORVEL_BENCH_PLAIN_LOOPS_H
#define KORVEL_BENCH_PLAIN_LOOPS_H

#include "containers/matrix.h"

#include <vector>

namespace korvel::bench::plain
{

/** Nothing but additions, each of which waits for the one before: the lower bound of every sum. */
double additions(double step, int n);

double sum(const double* x, int n, const short int* flags, const double* w);
double sum2(const double* x, int n);
double sumOfIntegers(const int* x, int n);
double sumW(const double* x, int n, const double* w);
double sumFromTo(const double* x, int from, int to);
double sumSq(const double* x, int n);
double sq(const double* x, int n);
double sumSqW(const double* x, int n, const double* w);
double diffSq(const double* x, int n, const double* y);
double diffSqW(const double* x, int n, const double* y, const double* w);
double cuSum(const double* x, int n, double* out);

double mean(const double* x, int n, const short int* flags, const double* w);
double meanAbs(const double* x, int n, const short int* flags, const double* w);
double mean2(const double* x, int n);
double meanW2(const double* x, int n, const double* w);
double harmonicMean(const double* x, int n, const short int* flags, const double* w);
double geometricMean(const double* x, int n, const short int* flags, const double* w);

double var(const double* x, int n, const short int* flags, const double* w);
double unitVar(const double* x, int n);
double var2(const double* x, int n);
double meanVar(const double* x, int n, const short int* flags, const double* w);
double meanVarW2(const double* x, int n, const double* w);
double meanStdev2(const double* x, int n);
double moments(const double* x, int n, const short int* flags, const double* w);

double freq(const double* x, int n, const double* w, double value, double tol);
double freqOfIntegers(const int* x, int n, const double* w, double value, double tol);

double min(const double* x, int n, const short int* flags);
double minOfIntegers(const int* x, int n, const short int* flags);
double max(const double* x, int n, const short int* flags);
double min2(const double* x, int n);
double minMax(const double* x, int n, const short int* flags);
double minMax2(const double* x, int n);
double firstMinPos(const double* x, int n);
double lastMinPos(const double* x, int n);
double maxPos(const double* x, int n);
double maxPosOfIntegers(const int* x, int n);

/** With null flags the smallest of all; the first element always takes part. */
double minOfChunks(const std::vector<const double*>& chunks, int nPerChunk, const short int* flags);
double freqOfTexts(const text* labels, int n, const double* w, const text& value);

} // namespace korvel::bench::plain

#endif
