#include "frames/sampling.h"

#include "frames/frame.h"
#include "random/indicator.h"
#include "random/sampling.h"

using namespace korvel;

int VB_GenerateIndicator(double* out, int n, int first, int last)
{
    auto marks = frame::borrow(out, n);
    GenerateIndicator(&marks, n, first, last);
    return 0;
}

int Cpp_GenerateIndicator_ST(SAFEARRAY** out, int n, int first, int last)
{
    auto marks = frame::attach<double>(out);
    GenerateIndicator(&marks, n, first, last);
    return 0;
}

int VB_GenerateRandomIndicator(double* out, int n, int k, int* seed, short int flag, int* nextSeed)
{
    auto marks = frame::borrow(out, n);
    GenerateRandomIndicator(&marks, n, k, seed, flag, nextSeed);
    return 0;
}

int Cpp_GenerateRandomIndicator_ST(SAFEARRAY** out, int n, int k, int* seed, short int flag, int* nextSeed)
{
    auto marks = frame::attach<double>(out);
    GenerateRandomIndicator(&marks, n, k, seed, flag, nextSeed);
    return 0;
}

int VB_M_SamplingWithReplacement(OLECHAR** table, int rows, int cols, int k, OLECHAR** sample,
                                 double* selected, int* seed, short int flag, int* nextSeed)
{
    auto from = frame::readTexts(table, rows, cols);
    auto to = frame::readTexts(sample, k, cols);
    auto numbers = frame::borrow(selected, k);
    M_SamplingWithReplacement(&from, rows, cols, k, &to, &numbers, seed, flag, nextSeed);
    frame::writeTexts(to, sample);
    return 0;
}

int VB_M_SampleUserDefined(OLECHAR** table, int rows, int cols, OLECHAR** sample, double* counts,
                           double* selected)
{
    auto from = frame::readTexts(table, rows, cols);
    auto copies = frame::borrow(counts, rows);
    auto to = frame::readTexts(sample, userDefinedSampleSize(copies, rows), cols);
    auto numbers = frame::borrow(selected, to.nbrows);
    M_SampleUserDefined(&from, rows, cols, &to, &copies, &numbers);
    frame::writeTexts(to, sample);
    return 0;
}

int VB_M_SampleUserDefinedSPV(Hostarray** table, int rows, int cols, Hostarray** sample, double* counts,
                              double* selected)
{
    const auto from = frame::textChunks(table, cols, rows);
    auto copies = frame::borrow(counts, rows);
    const int size = userDefinedSampleSize(copies, rows);
    const auto to = frame::textChunks(sample, cols, size);
    auto numbers = frame::borrow(selected, size);
    M_SampleUserDefinedSPV(from.get(), rows, cols, to.get(), &copies, &numbers);
    frame::writeTexts(to, sample);
    return 0;
}

int VB_M_SamplingSystematicRdStart(OLECHAR** table, int rows, int cols, int k, OLECHAR** sample,
                                   double* selected, int* seed, short int flag, int* nextSeed)
{
    auto from = frame::readTexts(table, rows, cols);
    auto to = frame::readTexts(sample, k, cols);
    auto marks = frame::borrow(selected, rows);
    M_SamplingSystematicRdStart(&from, rows, cols, k, &to, &marks, seed, flag, nextSeed);
    frame::writeTexts(to, sample);
    return 0;
}

int VB_M_SamplingSystematicRdStartSPV(Hostarray** table, int rows, int cols, int k, Hostarray** sample,
                                      double* selected, int* seed, short int flag, int* nextSeed)
{
    const auto from = frame::textChunks(table, cols, rows);
    const auto to = frame::textChunks(sample, cols, k);
    auto marks = frame::borrow(selected, rows);
    M_SamplingSystematicRdStartSPV(from.get(), rows, cols, k, to.get(), &marks, seed, flag, nextSeed);
    frame::writeTexts(to, sample);
    return 0;
}

int VB_M_SamplingSystematicCentered(OLECHAR** table, int rows, int cols, int k, OLECHAR** sample,
                                    double* selected)
{
    auto from = frame::readTexts(table, rows, cols);
    auto to = frame::readTexts(sample, k, cols);
    auto marks = frame::borrow(selected, rows);
    M_SamplingSystematicCentered(&from, rows, cols, k, &to, &marks);
    frame::writeTexts(to, sample);
    return 0;
}

int VB_M_SamplingSystematicCenteredSPV(Hostarray** table, int rows, int cols, int k, Hostarray** sample,
                                       double* selected)
{
    const auto from = frame::textChunks(table, cols, rows);
    const auto to = frame::textChunks(sample, cols, k);
    auto marks = frame::borrow(selected, rows);
    M_SamplingSystematicCenteredSPV(from.get(), rows, cols, k, to.get(), &marks);
    frame::writeTexts(to, sample);
    return 0;
}

int VB_M_SamplingRandomStratified(OLECHAR** table, int rows, int cols, int k, OLECHAR** sample,
                                  double* selected, int* seed, short int flag, int* nextSeed)
{
    auto from = frame::readTexts(table, rows, cols);
    auto to = frame::readTexts(sample, k, cols);
    auto numbers = frame::borrow(selected, k);
    M_SamplingRandomStratified(&from, rows, cols, k, &to, &numbers, seed, flag, nextSeed);
    frame::writeTexts(to, sample);
    return 0;
}

int VB_M_SamplingRandomStratifiedSPV(Hostarray** table, int rows, int cols, int k, Hostarray** sample,
                                     double* selected, int* seed, short int flag, int* nextSeed)
{
    const auto from = frame::textChunks(table, cols, rows);
    const auto to = frame::textChunks(sample, cols, k);
    auto numbers = frame::borrow(selected, k);
    M_SamplingRandomStratifiedSPV(from.get(), rows, cols, k, to.get(), &numbers, seed, flag, nextSeed);
    frame::writeTexts(to, sample);
    return 0;
}

int Cpp_M_SamplingRandomStratifiedByStr(OLECHAR** table, int rows, int cols, int k, OLECHAR** sample,
                                        OLECHAR** strata, double* selected, double* counts, int nCounts,
                                        int* seed, short int flag, int* nextSeed)
{
    auto from = frame::readTexts(table, rows, cols);
    auto to = frame::readTexts(sample, k, cols);
    auto labels = frame::readTexts(strata, rows);
    auto numbers = frame::borrow(selected, k);
    auto sizes = frame::borrow(counts, nCounts);
    M_SamplingRandomStratifiedByStr(&from, rows, cols, k, &to, &labels, &numbers, &sizes, seed, flag,
                                    nextSeed);
    frame::writeTexts(to, sample);
    return 0;
}
