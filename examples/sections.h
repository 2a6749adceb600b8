/**
 * @file
 * What a report consists of. A further section is a function that asks the library and fills a table, and a
 * line in the list of sections.cpp.
 */
#ifndef KORVEL_EXAMPLES_SECTIONS_H
#define KORVEL_EXAMPLES_SECTIONS_H

#include "data_set.h"
#include "text_table.h"

#include <span>

namespace report
{

/** A section: its title, and the function that makes its table; a table without rows is left out. The flat
 * functions take arrays that they might change, hence a data set that is not const. */
struct section {
    const char* title;
    text_table (*make)(data_set& data);
};

/** All sections in the order of the report. */
std::span<const section> sections();

/** Where the numbers of each column lie and how far apart: count, mean, standard deviation, sum. */
text_table location(data_set& data);

/** The smallest and the largest number of each column with their rows, and its quartiles and median. */
text_table quartiles(data_set& data);

/** The shape of each column's distribution, and the means other than the arithmetic one. */
text_table shape(data_set& data);

/** The correlation of each pair of columns over the rows that neither misses, and the count of these rows. */
text_table correlations(data_set& data);

/** The variance of each principal component of the standardised columns, over the rows in which no number is
 * missing; columns that are constant there are left out. */
text_table componentShares(data_set& data);

/** The correlations of the columns with the leading components. */
text_table componentLoadings(data_set& data);

/** How many categories each column of texts has, and the most frequent one. */
text_table texts(data_set& data);

/** The most frequent categories of each column of texts; a column without equal texts is left out. */
text_table categories(data_set& data);

/** How many cells each column misses; a column that misses none is left out. */
text_table missingColumns(data_set& data);

/** How many rows miss how many cells, and which; a row that misses none is left out. */
text_table missingRows(data_set& data);

} // namespace report

#endif
