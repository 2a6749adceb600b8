/**
 * @file
 * What the library finds in a data set, before any of it is put into words or pictures. Figures that cannot
 * be computed are missing.
 */
#ifndef KORVEL_EXAMPLES_FINDINGS_H
#define KORVEL_EXAMPLES_FINDINGS_H

#include "data_set.h"
#include "options.h"
#include "progress.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace report
{

/** A Boolean of the flat functions. */
inline constexpr short int flatTrue = -1;
inline constexpr short int flatFalse = 0;

/** The elements of a column that are neither missing nor left out, as the flat functions take them. */
struct kept_values {
    std::vector<double> values;
    std::vector<double> weights;
    std::vector<short int> leftOut; ///< None is.
    std::vector<int> rows;          ///< From 1.

    [[nodiscard]] int count() const { return static_cast<int>(values.size()); }
};

kept_values keptOf(const data_set& data, const double* values);

/** Those of some rows, counted from 0. */
kept_values keptOf(const data_set& data, const double* values, const std::vector<int>& rows);

/** Whether a weight is a number of observations, and not just a share: -1 when all are whole numbers. */
short int weightsAreCounts(const data_set& data);

/** An extreme value and the first of its rows, from 1; row 0 when there is no value. */
struct extreme {
    double value = missingNumber;
    int row = 0;
};

/** Where the values of a column lie, and how far apart. */
struct distribution {
    int count = 0;
    double weight = 0.0; ///< The sum of the weights.
    double sum = 0.0;
    double mean = missingNumber;
    double deviation = missingNumber;
    extreme min;
    extreme max;
    double lowerQuartile = missingNumber;
    double median = missingNumber;
    double upperQuartile = missingNumber;
    double lowerWhisker = missingNumber; ///< The smallest value within 1.5 times the range of the quartiles.
    double upperWhisker = missingNumber;
    std::vector<double> outside; ///< The values beyond the whiskers, in the order of the rows.
};

distribution distributionOf(const kept_values& kept, short int areCounts);

/** The shape of a distribution. */
struct shape_figures {
    double skewness = missingNumber;
    double skewnessError = missingNumber;
    double kurtosis = missingNumber;
    double kurtosisError = missingNumber;
    double geometricMean = missingNumber;
    double geometricDeviation = missingNumber;
    double harmonicMean = missingNumber;
};

shape_figures shapeOf(const kept_values& kept, short int areCounts);

/** The values of a column counted in intervals of equal width: from an edge to below the next one. The last
 * interval holds its upper edge too. */
struct histogram {
    double first = 0.0; ///< The lower edge of the first interval.
    double width = 0.0;
    std::vector<double> weights; ///< The sum of the weights in each interval: the rows when all are 1.

    [[nodiscard]] double edge(std::size_t k) const { return first + static_cast<double>(k) * width; }
};

/** Empty when there are no values. */
histogram histogramOf(const kept_values& kept, const distribution& spread, int decimals);

/** Correlations of the columns of numbers; tables are column-major. */
struct correlation_figures {
    std::vector<double> pairwise; ///< Over the rows that neither column misses.
    std::vector<double> rows;     ///< How many these are.
    std::vector<double> ofRanks;  ///< Over the rows without missing numbers; empty when there are none.
    int completeRows = 0;         ///< Rows without missing numbers that are not left out.
};

correlation_figures correlationsOf(const data_set& data);

/** The principal components of the columns that vary over the rows without a missing number. */
struct components {
    std::vector<std::string> columns;
    std::vector<double> variances;
    std::vector<double> percents;
    std::vector<double> loadings; ///< Correlations with the components; column-major, a row for each name.
    int shown = 0;                ///< As many of the components as make up 90 % of the variance.
    /** For a biplot of the first two: a row for each name, and for some of the rows, evenly chosen. */
    std::vector<double> arrows;
    std::vector<double> points;
    int pointCount = 0;
    int rowCount = 0;
};

components componentsOf(const data_set& data);

struct category {
    std::string text;
    double weight;
};

/** What the library tells of a column of texts. */
struct inventory {
    int count = 0; ///< Texts that are not missing.
    double weight = 0.0;
    std::string mode;                 ///< Of several most frequent categories the first to appear.
    std::vector<category> categories; ///< The frequent ones first, ties in order of appearance.

    [[nodiscard]] bool isAllDifferent() const { return static_cast<int>(categories.size()) == count; }
};

inventory inventoryOf(const data_set& data, const text_column& column);

/** A term of a regression. */
struct regression_term {
    std::string name;
    bool isLeftOut = false; ///< It is constant, or the terms before it explain all of it.
    double estimate = missingNumber;
    double error = missingNumber;
    double tolerance = missingNumber;
    double inflation = missingNumber;
};

/** The regression of one column of numbers on the others. */
struct regression_figures {
    std::string response;
    int rows = 0; ///< Without a missing number.
    regression_term intercept;
    std::vector<regression_term> terms;
    double freedom = 0.0; ///< Degrees of freedom that are left.
    double explained = missingNumber;
    double explainedAdjusted = missingNumber;
    double residualDeviation = missingNumber;
};

/**
 * Fits a column to all other columns of numbers, over the rows in which none of them is missing.
 * @throws std::runtime_error when there is no such column, when it holds no numbers, or when there is nothing
 * to fit it to
 */
regression_figures regressionOf(const data_set& data, const std::string& response);

/** The most groups that are shown. */
inline constexpr std::size_t mostGroups = 20;

/** All that is found. */
struct findings {
    short int areCounts = flatTrue;
    std::vector<distribution> distributions; ///< One for each column of numbers, like the next two.
    std::vector<shape_figures> shapes;
    std::vector<histogram> histograms;
    correlation_figures correlations;
    components parts;
    std::vector<inventory> inventories;             ///< One for each column of texts.
    std::vector<const row_group*> groupsShown;      ///< The largest groups, in their order.
    std::vector<std::vector<distribution>> byGroup; ///< For each column of numbers one for each of these; the
                                                    ///< column that tells the groups has none.
    std::optional<regression_figures> regression;
};

/** @throws std::runtime_error when the regression that is asked for cannot be had */
findings findingsOf(const data_set& data, const options& asked, progress& shown);

} // namespace report

#endif
