/**
 * @file
 * Flat functions: samples of the rows of a table of texts.
 *
 * Seed, flag and next seed as in Cpp_Random01. Row numbers count from 1. Texts of a sample are replaced where
 * they differ; rows of a sample that a scheme does not fill stay as they are.
 */
#ifndef KORVEL_FRAMES_RANDOM_SAMPLING_H
#define KORVEL_FRAMES_RANDOM_SAMPLING_H

#include "frames/types.h"

/**
 * Simple random sample of rows with replacement, in the order of the rows.
 *
 * @param table    [in] rows by cols texts
 * @param rows     number of rows
 * @param cols     number of columns
 * @param k        size of the sample
 * @param sample   [inout] k by cols texts
 * @param selected [out] k numbers: the row number of each row of the sample, ascending
 * @param seed     [inout] one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
 * @param flag     not 0: a seed is given
 * @param nextSeed [out] one integer: a seed for the next run
 * @return 0
 */
KORVEL_FLAT int VB_M_SamplingWithReplacement(OLECHAR* const* table, int rows, int cols, int k,
                                             OLECHAR** sample, double* selected, int* seed, short int flag,
                                             int* nextSeed);

/**
 * Takes each row as many times as the caller says, in the order of the rows.
 *
 * @param table    [in] rows by cols texts
 * @param rows     number of rows
 * @param cols     number of columns
 * @param sample   [inout] sum(counts) by cols texts, the sum being that of the truncated positive counts
 * @param counts   [in] rows numbers, truncated; a row with a number below 1 is left out
 * @param selected [out] sum(counts) numbers: the row number in the table of each row of the sample
 * @return 0
 */
KORVEL_FLAT int VB_M_SampleUserDefined(OLECHAR* const* table, int rows, int cols, OLECHAR** sample,
                                       const double* counts, double* selected);

/**
 * Takes each row of a chunked table as many times as the caller says, in the order of the rows.
 *
 * @like VB_M_SampleUserDefined
 * @param table    [in] host array of cols records, each with a text column of rows texts
 * @param sample   [inout] host array of cols records, each with a text column of as many rows as the
 * truncated positive counts add up to
 */
KORVEL_FLAT int VB_M_SampleUserDefinedSPV(Hostarray** table, int rows, int cols, Hostarray** sample,
                                          const double* counts, double* selected);

/**
 * Systematic sample of rows with a random start: with the step s, the quotient (rows - 1) / (k - 1) without
 * its fraction, every s-th row from a random one of the first rows - (k - 1) s.
 *
 * @like VB_M_SamplingWithReplacement
 * @param k        size of the sample; of 1, or above the number of rows, takes one row
 * @param selected [inout] rows numbers: receives rows + 1 for each row that is not taken; the others stay
 */
KORVEL_FLAT int VB_M_SamplingSystematicRdStart(OLECHAR* const* table, int rows, int cols, int k,
                                               OLECHAR** sample, double* selected, int* seed, short int flag,
                                               int* nextSeed);

/**
 * Systematic sample of the rows of a chunked table with a random start: see VB_M_SamplingSystematicRdStart.
 *
 * @param table    [in] host array of cols records, each with a text column of rows texts
 * @param rows     number of rows
 * @param cols     number of columns
 * @param k        size of the sample; of 1, or above the number of rows, takes one row
 * @param sample   [inout] host array of cols records, each with a text column of k texts
 * @param selected [inout] rows numbers: receives rows + 1 for each row that is not taken; the others stay
 * @param seed     [inout] one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
 * @param flag     not 0: a seed is given
 * @param nextSeed [out] one integer: a seed for the next run
 * @return 0
 */
KORVEL_FLAT int VB_M_SamplingSystematicRdStartSPV(Hostarray** table, int rows, int cols, int k,
                                                  Hostarray** sample, double* selected, int* seed,
                                                  short int flag, int* nextSeed);

/**
 * Systematic sample of rows with a start in the middle of the possible ones. Nothing is drawn.
 *
 * @like VB_M_SamplingWithReplacement
 * @param k        size of the sample; of 1, or above the number of rows, takes one row
 * @param selected [inout] rows numbers: receives rows + 1 for each row that is not taken; the others stay
 */
KORVEL_FLAT int VB_M_SamplingSystematicCentered(OLECHAR* const* table, int rows, int cols, int k,
                                                OLECHAR** sample, double* selected);

/**
 * Systematic sample of the rows of a chunked table with a start in the middle of the possible ones.
 *
 * @like VB_M_SamplingSystematicRdStartSPV
 */
KORVEL_FLAT int VB_M_SamplingSystematicCenteredSPV(Hostarray** table, int rows, int cols, int k,
                                                   Hostarray** sample, double* selected);

/**
 * One random row from each of k strata of consecutive rows. Strata may overlap.
 *
 * @like VB_M_SamplingWithReplacement
 * @param k        size of the sample; of 1, or above the number of rows, takes one row
 * @param selected [inout] k numbers: the row number of each row of the sample
 */
KORVEL_FLAT int VB_M_SamplingRandomStratified(OLECHAR* const* table, int rows, int cols, int k,
                                              OLECHAR** sample, double* selected, int* seed, short int flag,
                                              int* nextSeed);

/**
 * One random row of a chunked table from each of k strata of consecutive rows. Strata may overlap.
 *
 * @like VB_M_SamplingSystematicRdStartSPV
 * @param selected [inout] k numbers: the row number of each row of the sample
 */
KORVEL_FLAT int VB_M_SamplingRandomStratifiedSPV(Hostarray** table, int rows, int cols, int k,
                                                 Hostarray** sample, double* selected, int* seed,
                                                 short int flag, int* nextSeed);

/**
 * Simple random sample with replacement from each stratum, a stratum being the rows of one label.
 *
 * @param table    [in] rows by cols texts
 * @param rows     number of rows
 * @param cols     number of columns
 * @param k        size of the whole sample
 * @param sample   [inout] k by cols texts: stratum after stratum in ascending order of the labels
 * @param strata   [in] rows labels
 * @param selected [inout] k numbers: the row number of each row of the sample
 * @param counts   [in] nCounts numbers: the size of the sample from each stratum, truncated
 * @param nCounts  number of strata
 * @param seed     [inout] one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
 * @param flag     not 0: a seed is given
 * @param nextSeed [out] one integer: a seed for the next run
 * @return 0
 */
KORVEL_FLAT int Cpp_M_SamplingRandomStratifiedByStr(OLECHAR* const* table, int rows, int cols, int k,
                                                    OLECHAR** sample, OLECHAR* const* strata,
                                                    double* selected, const double* counts, int nCounts,
                                                    int* seed, short int flag, int* nextSeed);

#endif
