/**
 * @file
 * The loops that a programmer would write for missing cells and groups, compiled as a user's own code is
 * (-O2).
 */
#ifndef KORVEL_BENCH_PLAIN_MISSING_H
#define KORVEL_BENCH_PLAIN_MISSING_H

namespace korvel::bench::plain
{

int count(const double* x, int n);
int countIf(const double* x, int n, double val);
void flagRows(const double* x, int rows, int cols, short int* flags);
void replace(double* x, int n, double val);
void removeRows(const double* x, int rows, int cols, const short int* flags, double* out, int outRows);
void insertRows(const double* x, int rows, int cols, const short int* flags, double* out, int outRows);
bool isPositive(const double* x, int n);
double sumIf(const double* y, int n, const double* g, double val);
double varIf(const double* y, int n, const double* g, double val);
void fillByNearest(double* x, int rows, int cols, const short int* flags, const double* means,
                   const double* variances);

} // namespace korvel::bench::plain

#endif
