// How ozone goes with the weather, each month counting alike: the analysis of analysis.c in a program that
// links with the core routines and holds its data in their tables.
//
//     analysis_cpp [--exact] FILE
//
// FILE is a table like examples/data/airquality.csv, without quotes. --exact prints hexadecimal numbers, to
// the bit.
#include <korvelmathtools/containers/matrix.h>
#include <korvelmathtools/fitting/least_squares.h>
#include <korvelmathtools/linalg/symmetric_eigen.h>
#include <korvelmathtools/missing/missing_counts.h>
#include <korvelmathtools/qualitative/category_info.h>
#include <korvelmathtools/statistics/column_deviations.h>
#include <korvelmathtools/statistics/covariance.h>
#include <korvelmathtools/statistics/vector_sums.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

constexpr int columns = 4;
constexpr std::array<const char*, columns> names = {"Ozone", "Solar.R", "Wind", "Temp"};
constexpr const char* group = "Month";
constexpr short int no = 0;
constexpr short int yes = -1;

// ---- Reading

struct data_set {
    int rows = 0;
    matrix<double> numbers; // a column for each name
    matrix<text> groups;
};

using cells = std::vector<std::string>;

cells cellsOf(const std::string& line)
{
    cells found;
    std::istringstream rest(line);
    for (std::string cell; std::getline(rest, cell, ',');) {
        found.push_back(cell);
    }
    if (line.empty() || line.back() == ',') {
        found.emplace_back();
    }
    return found;
}

std::vector<cells> linesOf(const std::string& path)
{
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error("cannot be opened");
    }
    std::vector<cells> lines;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        lines.push_back(cellsOf(line));
    }
    return lines;
}

std::size_t placeOf(const std::string& name, const cells& header)
{
    const auto found = std::find(header.begin(), header.end(), name);
    if (found == header.end()) {
        throw std::runtime_error("no column " + name);
    }
    return static_cast<std::size_t>(found - header.begin());
}

double numberIn(const std::string& cell, std::size_t line)
{
    if (cell.empty() || cell == "NA") {
        return MISSING_DBL;
    }
    char* end = nullptr;
    const double value = std::strtod(cell.c_str(), &end);
    if (*end != '\0' || !std::isfinite(value)) {
        throw std::runtime_error("line " + std::to_string(line) + ": " + cell + " is not a number");
    }
    return value;
}

data_set readData(const std::string& path)
{
    const std::vector<cells> lines = linesOf(path);
    const cells header = lines.empty() ? cells() : lines.front();
    std::array<std::size_t, columns> places{};
    std::transform(names.begin(), names.end(), places.begin(),
                   [&](const char* name) { return placeOf(name, header); });
    const std::size_t groupPlace = placeOf(group, header);
    if (lines.size() < 2) {
        throw std::runtime_error("no rows");
    }
    data_set data;
    data.rows = static_cast<int>(lines.size()) - 1;
    data.numbers.Redim(data.rows, columns);
    data.groups.Redim(data.rows, 1);
    for (int i = 0; i < data.rows; ++i) {
        const std::size_t line = static_cast<std::size_t>(i) + 1;
        const cells& row = lines[line];
        if (row.size() != header.size()) {
            throw std::runtime_error("line " + std::to_string(line + 1) + " has " +
                                     std::to_string(row.size()) + " cells, not " +
                                     std::to_string(header.size()));
        }
        for (int j = 0; j < columns; ++j) {
            data.numbers.setElement(i, j, numberIn(row[places[static_cast<std::size_t>(j)]], line + 1));
        }
        const std::string& cell = row[groupPlace];
        data.groups[i] = text(cell.begin(), cell.end());
    }
    return data;
}

// ---- Showing

std::string nameOf(int column)
{
    return names[static_cast<std::size_t>(column)];
}

void show(const std::string& name, double value)
{
    std::cout << std::left << std::setw(32) << name << ' ' << std::right << std::setw(12) << value << '\n';
}

void showPairs(const std::string& what, const matrix<double>& square)
{
    for (int i = 0; i < columns; ++i) {
        for (int j = i + 1; j < columns; ++j) {
            show(what + " of " + nameOf(i) + " and " + nameOf(j), square.getElement(i, j));
        }
    }
}

// ---- The analysis

/** Shows how many rows each month has, and gives the rows weights of which each month gets 1. */
matrix<double> weighMonths(data_set& data)
{
    matrix<double> weights(data.rows, 1, 1.0);
    matrix<text> modes;
    matrix<text> months;
    matrix<double> modeFrequencies;
    matrix<double> days;
    matrix<int> counts;
    int total = 0;
    M_InfoQuali(&data.groups, data.rows, 1, &modes, &modeFrequencies, &counts, &months, &days, &weights,
                &total, yes);
    for (int k = 0; k < counts[0]; ++k) {
        show(std::string("rows of ") + group + ' ' + std::string(months[k].begin(), months[k].end()),
             days[k]);
        for (int i = 0; i < data.rows; ++i) {
            if (data.groups[i] == months[k]) {
                weights[i] = 1.0 / days[k];
            }
        }
    }
    return weights;
}

/** Covariances or correlations of all columns, with the sum of the weights as divisor, over the rows that are
 * not flagged. */
matrix<double> pairTable(data_set& data, short int correlations, short int* flags, matrix<double>& weights)
{
    matrix<double> pairs;
    // A table that is passed by reference to its pointer is one that a routine may give a shape.
    matrix<double>* from = &data.numbers;
    matrix<double>* to = &pairs;
    M_CovCorr(from, data.rows, columns, to, correlations, flags, &weights, no, no, no);
    return pairs;
}

/** The divisor of the variances is the sum of the weights. A pair of columns is taken over the rows that have
 * both. */
void describeColumns(data_set& data, matrix<double>& weights)
{
    matrix<double> means(columns, 1, 0.0);
    matrix<double> deviations(columns, 1, 0.0);
    matrix<double> variances(columns, 1, 0.0);
    M_MeanStDevVar(&data.numbers, data.rows, columns, &means, &deviations, &variances, nullptr, &weights, no,
                   no);
    for (int j = 0; j < columns; ++j) {
        show("mean of " + nameOf(j), means[j]);
        show("deviation of " + nameOf(j), deviations[j]);
    }
    showPairs("covariance", pairTable(data, no, nullptr, weights));
}

/** Flags the rows that have a missing cell; a flag that is set already stays. */
std::vector<short int> incompleteRows(data_set& data)
{
    std::vector<short int> flags(static_cast<std::size_t>(data.rows), no);
    for (int j = 0; j < columns; ++j) {
        matrix<double> column(data.rows, 1, &data.numbers[data.rows * j], true);
        V_GetMissingDbl(&column, data.rows, flags.data(), flags.data());
    }
    return flags;
}

/** The rows of some columns that are not flagged. */
matrix<double> withoutRows(const matrix<double>& table, int firstColumn, int lastColumn,
                           const std::vector<short int>& flags)
{
    const auto kept = std::count(flags.begin(), flags.end(), no);
    matrix<double> result(static_cast<int>(kept), lastColumn - firstColumn + 1, 0.0);
    int k = 0;
    for (int j = firstColumn; j <= lastColumn; ++j) {
        for (int i = 0; i < table.nbrows; ++i) {
            if (flags[static_cast<std::size_t>(i)] == no) {
                result[k++] = table.getElement(i, j);
            }
        }
    }
    return result;
}

void analyseCompleteRows(data_set& data, matrix<double>& weights)
{
    std::vector<short int> incomplete = incompleteRows(data);
    matrix<double> correlations = pairTable(data, yes, incomplete.data(), weights);
    matrix<double> values;
    matrix<double> vectors;
    if (M_Eigen(&correlations, &values, &vectors, columns, yes) != 0) {
        throw std::runtime_error("no eigenvalues: too few complete rows, or a column is constant");
    }

    // Ozone on the other columns; the constant is the last term.
    matrix<double> response = withoutRows(data.numbers, 0, 0, incomplete);
    matrix<double> predictors = withoutRows(data.numbers, 1, columns - 1, incomplete);
    matrix<double> kept = withoutRows(weights, 0, 0, incomplete);
    const int rows = response.nbrows;
    // The weights add up to the number of rows, so that the errors have its degrees of freedom.
    const double scale = rows / V_Sum2(kept, rows);
    for (int i = 0; i < rows; ++i) {
        kept[i] *= scale;
    }
    matrix<double> coefficients(columns, 1, 0.0);
    matrix<double> errors(columns, 1, 0.0);
    matrix<double> fitted(rows, 1, 0.0);
    OLSBasic2(rows, columns - 1, &predictors, &response, &kept, 1, no, no, 1e-8, &coefficients, &errors,
              &fitted);

    show("complete rows", rows);
    showPairs("correlation", correlations);
    for (int k = 0; k < columns; ++k) {
        show("eigenvalue " + std::to_string(k + 1), values[k]);
    }
    for (int j = 0; j < columns; ++j) {
        const std::string name = j + 1 < columns ? nameOf(j + 1) : "constant";
        show("coefficient of " + name, coefficients[j]);
        show("standard error of " + name, errors[j]);
    }
}

void analyse(data_set data)
{
    show("rows", data.rows);
    matrix<int> missing(columns, 1);
    M_NbMissing(&data.numbers, data.rows, columns, &missing);
    for (int j = 0; j < columns; ++j) {
        show("missing " + nameOf(j), missing[j]);
    }
    matrix<double> weights = weighMonths(data);
    describeColumns(data, weights);
    analyseCompleteRows(data, weights);
}

} // namespace

int main(int count, char** arguments)
{
    std::vector<std::string> words(arguments + 1, arguments + count);
    while (!words.empty() && words.front().rfind("--", 0) == 0) {
        if (words.front() != "--exact") {
            std::cerr << "analysis: no option " << words.front() << '\n';
            return 1;
        }
        std::cout << std::hexfloat;
        words.erase(words.begin());
    }
    if (words.size() != 1) {
        std::cerr << "usage: analysis_cpp [--exact] FILE\n";
        return 1;
    }
    try {
        analyse(readData(words.front()));
    } catch (const std::exception& problem) {
        std::cerr << "analysis: " << words.front() << ": " << problem.what() << '\n';
        return 1;
    }
    return 0;
}
