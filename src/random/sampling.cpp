#include "random/sampling.h"

#include "containers/conversion.h"
#include "containers/views.h"
#include "random/copy_rows.h"
#include "random/random_generators.h"
#include "random/row_choice.h"

#include <algorithm>
#include <limits>

using korvel::chosen_rows;
using korvel::copyRows;
using korvel::reading;
using korvel::writing;

namespace
{

/** Used instead of a draw: the middle of the range of draws. */
constexpr double centre = 0.5;

template <class From, class To>
void sampleUserDefined(const From& from, int rows, int cols, const To& to, const matrix<double>& counts,
                       matrix<double>& selected)
{
    const chosen_rows chosen = korvel::userDefinedRows(counts, rows);
    korvel::storeRowNumbers(chosen, selected);
    copyRows(chosen, cols, from, to);
}

template <class From, class To>
void sampleSystematic(const From& from, int rows, int cols, int k, const To& to, matrix<double>& selected,
                      double u)
{
    const korvel::sampling_grid grid(rows, k);
    const chosen_rows chosen =
        korvel::systematicRows(rows, k, grid, korvel::systematicStart(grid, u), selected);
    copyRows(chosen, cols, from, to);
}

} // namespace

void M_SamplingWithReplacement(matrix<text>* table, int rows, int cols, int k, matrix<text>* sample,
                               matrix<double>* selected, int* seed, short int flag, int* nextSeed)
{
    const chosen_rows chosen = korvel::rowsWithReplacement(rows, k, seed, flag, nextSeed);
    korvel::storeRowNumbers(chosen, *selected);
    copyRows(chosen, cols, reading(*table), writing(*sample));
}

void M_SampleUserDefined(matrix<text>* table, int rows, int cols, matrix<text>* sample,
                         matrix<double>* counts, matrix<double>* selected)
{
    sampleUserDefined(reading(*table), rows, cols, writing(*sample), *counts, *selected);
}

void M_SampleUserDefinedSPV(matrix<text>** table, int rows, int cols, matrix<text>** sample,
                            matrix<double>* counts, matrix<double>* selected)
{
    sampleUserDefined(reading(table), rows, cols, writing(sample), *counts, *selected);
}

void M_SamplingSystematicRdStart(matrix<text>* table, int rows, int cols, int k, matrix<text>* sample,
                                 matrix<double>* selected, int* seed, short int flag, int* nextSeed)
{
    const double u = GenerateRandom01(seed, flag, nextSeed);
    sampleSystematic(reading(*table), rows, cols, k, writing(*sample), *selected, u);
}

void M_SamplingSystematicRdStartSPV(matrix<text>** table, int rows, int cols, int k, matrix<text>** sample,
                                    matrix<double>* selected, int* seed, short int flag, int* nextSeed)
{
    const double u = GenerateRandom01(seed, flag, nextSeed);
    sampleSystematic(reading(table), rows, cols, k, writing(sample), *selected, u);
}

void M_SamplingSystematicCentered(matrix<text>* table, int rows, int cols, int k, matrix<text>* sample,
                                  matrix<double>* selected)
{
    sampleSystematic(reading(*table), rows, cols, k, writing(*sample), *selected, centre);
}

void M_SamplingSystematicCenteredSPV(matrix<text>** table, int rows, int cols, int k, matrix<text>** sample,
                                     matrix<double>* selected)
{
    sampleSystematic(reading(table), rows, cols, k, writing(sample), *selected, centre);
}

void M_SamplingRandomStratified(matrix<text>* table, int rows, int cols, int k, matrix<text>* sample,
                                matrix<double>* selected, int* seed, short int flag, int* nextSeed)
{
    const chosen_rows chosen = korvel::stratifiedRows(rows, k, seed, flag, nextSeed);
    korvel::storeRowNumbers(chosen, *selected);
    copyRows(chosen, cols, reading(*table), writing(*sample));
}

void M_SamplingRandomStratifiedSPV(matrix<text>** table, int rows, int cols, int k, matrix<text>** sample,
                                   matrix<double>* selected, int* seed, short int flag, int* nextSeed)
{
    const chosen_rows chosen = korvel::stratifiedRows(rows, k, seed, flag, nextSeed);
    korvel::storeRowNumbers(chosen, *selected);
    copyRows(chosen, cols, reading(table), writing(sample));
}

void M_SamplingRandomStratifiedByStr(matrix<text>* table, int rows, int cols, int k, matrix<text>* sample,
                                     matrix<text>* strata, matrix<double>* selected, matrix<double>* counts,
                                     int* seed, short int flag, int* nextSeed)
{
    chosen_rows chosen = korvel::labelledRows(*strata, rows, *counts, seed, flag, nextSeed);
    chosen.resize(std::min(chosen.size(), static_cast<std::size_t>(std::max(k, 0))));
    korvel::storeRowNumbers(chosen, *selected);
    copyRows(chosen, cols, reading(*table), writing(*sample));
}

namespace korvel
{

int userDefinedSampleSize(const matrix<double>& counts, int rows)
{
    std::int64_t size = 0;
    for (int i = 0; i < rows; ++i) {
        size += std::max(truncateToInt(counts[i]), 0);
    }
    return static_cast<int>(std::min<std::int64_t>(size, std::numeric_limits<int>::max()));
}

} // namespace korvel
