/**
 * @file
 * The pictures of the page, each in SVG.
 */
#ifndef KORVEL_EXAMPLES_PICTURES_H
#define KORVEL_EXAMPLES_PICTURES_H

#include "data_set.h"
#include "document.h"
#include "findings.h"

#include <string>
#include <vector>

namespace report
{

/** The histogram of each column of numbers with its box plot below it, and its counts. */
std::vector<picture> distributionPictures(const data_set& data, const findings& found);

/** The box plots of each column of numbers in the groups, one below the other. */
std::vector<picture> groupPictures(const data_set& data, const findings& found);

/** The correlations of all columns as a table of colours; `figures` is that table, column-major. */
std::string heatMap(const data_set& data, const std::vector<double>& figures);

/** The variance of each component as a bar. */
std::string screePlot(const components& parts);

/** The rows as points and the columns as arrows in the plane of the first two components. */
std::string biplot(const components& parts);

} // namespace report

#endif
