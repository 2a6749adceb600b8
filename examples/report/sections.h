/**
 * @file
 * What a report consists of. A further section is a function that puts findings into a table, and a line in
 * the list of report_document.cpp.
 */
#ifndef KORVEL_EXAMPLES_SECTIONS_H
#define KORVEL_EXAMPLES_SECTIONS_H

#include "data_set.h"
#include "document.h"
#include "findings.h"

namespace report
{

/** What must be known of the file before its figures are read; without notes, nothing. */
section notesOnFile(const data_set& data, const findings& found);

/** Where the numbers of each column lie and how far apart: count, mean, standard deviation, sum. */
section location(const data_set& data, const findings& found);

/** The smallest and the largest number of each column with their rows, and its quartiles and median. */
section quartiles(const data_set& data, const findings& found);

/** The shape of each column's distribution, and the means other than the arithmetic one. */
section shape(const data_set& data, const findings& found);

/** Count, mean, deviation and quartiles of each column of numbers in each group of rows. */
section groups(const data_set& data, const findings& found);

/** The correlation of each pair of columns over the rows that neither misses, and the count of these rows. */
section correlations(const data_set& data, const findings& found);

/** The correlation of the ranks of each pair of columns. */
section rankCorrelations(const data_set& data, const findings& found);

/** The variance of each principal component of the standardised columns, over the rows in which no number is
 * missing; columns that are constant there are left out. */
section componentShares(const data_set& data, const findings& found);

/** The correlations of the columns with the leading components. */
section componentLoadings(const data_set& data, const findings& found);

/** The coefficients of the regression, and how good its fit is. */
section regression(const data_set& data, const findings& found);

/** The first and the last date of each column of dates. */
section dates(const data_set& data, const findings& found);

/** How many categories each column of texts has, and the most frequent one. */
section texts(const data_set& data, const findings& found);

/** The most frequent categories of each column of texts; a column without equal texts is left out. */
section categories(const data_set& data, const findings& found);

/** How many cells each column misses; a column that misses none is left out. */
section missingColumns(const data_set& data, const findings& found);

/** How many rows miss how many cells, and which; a row that misses none is left out. */
section missingRows(const data_set& data, const findings& found);

} // namespace report

#endif
