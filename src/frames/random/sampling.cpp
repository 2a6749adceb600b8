#include "frames/random/sampling.h"

#include "frames/frame.h"
#include "random/sampling.h"

using namespace korvel;

namespace
{

/** Lets `draw(from, to)` fill the sample from the table, and writes it back. */
template <class Draw>
int sampleTexts(OLECHAR* const* table, int rows, int cols, OLECHAR** sample, int sampleRows, Draw draw)
{
    auto from = frame::readTexts(table, rows, cols);
    auto to = frame::readTexts(sample, sampleRows, cols);
    draw(&from, &to);
    frame::writeTexts(to, sample);
    return 0;
}

/** The same with tables of chunks. */
template <class Draw>
int sampleChunks(Hostarray** table, int rows, int cols, Hostarray** sample, int sampleRows, Draw draw)
{
    const auto from = frame::textChunks(table, cols, rows);
    const auto to = frame::textChunks(sample, cols, sampleRows);
    draw(from.get(), to.get());
    frame::writeTexts(to, sample);
    return 0;
}

} // namespace

int VB_M_SamplingWithReplacement(OLECHAR* const* table, int rows, int cols, int k, OLECHAR** sample,
                                 double* selected, int* seed, short int flag, int* nextSeed)
{
    auto numbers = frame::borrow(selected, k);
    return sampleTexts(table, rows, cols, sample, k, [&](auto* from, auto* to) {
        M_SamplingWithReplacement(from, rows, cols, k, to, &numbers, seed, flag, nextSeed);
    });
}

int VB_M_SampleUserDefined(OLECHAR* const* table, int rows, int cols, OLECHAR** sample, const double* counts,
                           double* selected)
{
    auto copies = frame::borrow(counts, rows);
    const int size = userDefinedSampleSize(copies, rows);
    auto numbers = frame::borrow(selected, size);
    return sampleTexts(table, rows, cols, sample, size, [&](auto* from, auto* to) {
        M_SampleUserDefined(from, rows, cols, to, &copies, &numbers);
    });
}

int VB_M_SampleUserDefinedSPV(Hostarray** table, int rows, int cols, Hostarray** sample, const double* counts,
                              double* selected)
{
    auto copies = frame::borrow(counts, rows);
    const int size = userDefinedSampleSize(copies, rows);
    auto numbers = frame::borrow(selected, size);
    return sampleChunks(table, rows, cols, sample, size, [&](auto* from, auto* to) {
        M_SampleUserDefinedSPV(from, rows, cols, to, &copies, &numbers);
    });
}

int VB_M_SamplingSystematicRdStart(OLECHAR* const* table, int rows, int cols, int k, OLECHAR** sample,
                                   double* selected, int* seed, short int flag, int* nextSeed)
{
    auto marks = frame::borrow(selected, rows);
    return sampleTexts(table, rows, cols, sample, k, [&](auto* from, auto* to) {
        M_SamplingSystematicRdStart(from, rows, cols, k, to, &marks, seed, flag, nextSeed);
    });
}

int VB_M_SamplingSystematicRdStartSPV(Hostarray** table, int rows, int cols, int k, Hostarray** sample,
                                      double* selected, int* seed, short int flag, int* nextSeed)
{
    auto marks = frame::borrow(selected, rows);
    return sampleChunks(table, rows, cols, sample, k, [&](auto* from, auto* to) {
        M_SamplingSystematicRdStartSPV(from, rows, cols, k, to, &marks, seed, flag, nextSeed);
    });
}

int VB_M_SamplingSystematicCentered(OLECHAR* const* table, int rows, int cols, int k, OLECHAR** sample,
                                    double* selected)
{
    auto marks = frame::borrow(selected, rows);
    return sampleTexts(table, rows, cols, sample, k, [&](auto* from, auto* to) {
        M_SamplingSystematicCentered(from, rows, cols, k, to, &marks);
    });
}

int VB_M_SamplingSystematicCenteredSPV(Hostarray** table, int rows, int cols, int k, Hostarray** sample,
                                       double* selected)
{
    auto marks = frame::borrow(selected, rows);
    return sampleChunks(table, rows, cols, sample, k, [&](auto* from, auto* to) {
        M_SamplingSystematicCenteredSPV(from, rows, cols, k, to, &marks);
    });
}

int VB_M_SamplingRandomStratified(OLECHAR* const* table, int rows, int cols, int k, OLECHAR** sample,
                                  double* selected, int* seed, short int flag, int* nextSeed)
{
    auto numbers = frame::borrow(selected, k);
    return sampleTexts(table, rows, cols, sample, k, [&](auto* from, auto* to) {
        M_SamplingRandomStratified(from, rows, cols, k, to, &numbers, seed, flag, nextSeed);
    });
}

int VB_M_SamplingRandomStratifiedSPV(Hostarray** table, int rows, int cols, int k, Hostarray** sample,
                                     double* selected, int* seed, short int flag, int* nextSeed)
{
    auto numbers = frame::borrow(selected, k);
    return sampleChunks(table, rows, cols, sample, k, [&](auto* from, auto* to) {
        M_SamplingRandomStratifiedSPV(from, rows, cols, k, to, &numbers, seed, flag, nextSeed);
    });
}

int Cpp_M_SamplingRandomStratifiedByStr(OLECHAR* const* table, int rows, int cols, int k, OLECHAR** sample,
                                        OLECHAR* const* strata, double* selected, const double* counts,
                                        int nCounts, int* seed, short int flag, int* nextSeed)
{
    auto labels = frame::readTexts(strata, rows);
    auto numbers = frame::borrow(selected, k);
    auto sizes = frame::borrow(counts, nCounts);
    return sampleTexts(table, rows, cols, sample, k, [&](auto* from, auto* to) {
        M_SamplingRandomStratifiedByStr(from, rows, cols, k, to, &labels, &numbers, &sizes, seed, flag,
                                        nextSeed);
    });
}
