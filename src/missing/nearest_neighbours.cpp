#include "missing/nearest_neighbours.h"

#include "containers/views.h"
#include "missing/column_modes.h"
#include "missing/distance_bounds.h"
#include "statistics/column_deviations.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

namespace
{

using korvel::cell_source;
using korvel::distance_bounds;
using korvel::modesOfColumns;
using korvel::withCells;
using korvel::writing;

/** No column of a group is the one to be filled. */
constexpr int noColumn = -1;

/** How far two rows are from each other, as far as they were compared. */
struct comparison {
    double distance = 0.0;
    bool isMade = false;

    void add(double difference)
    {
        distance += difference;
        isMade = true;
    }
};

/** What the columns of a group of numbers come to. */
struct number_statistics {
    matrix<double> means;
    matrix<double> variances;

    double fallback(int j) const { return means[j]; }

    double differenceOf(double x, double y, int j) const { return (x - y) * (x - y) / variances[j]; }
};

void computeMoments(matrix<double>* table, int n, int cols, matrix<double>& deviations,
                    number_statistics& found, matrix<double>* weights)
{
    M_MeanStDevVar(table, n, cols, &found.means, &deviations, &found.variances, nullptr, weights, -1, -1);
}

void computeMoments(matrix<double>** table, int n, int cols, matrix<double>& deviations,
                    number_statistics& found, matrix<double>* weights)
{
    M_MeanStDevVarSPV(table, n, cols, &found.means, &deviations, &found.variances, nullptr, weights, -1, -1);
}

template <class Table>
number_statistics statisticsOf(Table table, int n, int cols, matrix<double>* weights)
{
    number_statistics found;
    if (cols > 0) {
        found.means.Redim(cols, 1, 0.0);
        found.variances.Redim(cols, 1, 0.0);
        matrix<double> deviations(cols, 1, 0.0);
        computeMoments(table, n, cols, deviations, found, weights);
    }
    return found;
}

/** What the columns of a group of texts come to. */
struct text_statistics {
    std::vector<text> modes;

    const text& fallback(int j) const { return modes[static_cast<std::size_t>(j)]; }
};

text_statistics statisticsOf(matrix<text>* table, int n, int cols, matrix<double>* weights)
{
    return {cols > 0 ? modesOfColumns(*table, n, cols, weights) : std::vector<text>()};
}

bool isMissing(double x)
{
    return x <= MISSING_DBL;
}
bool isMissing(const text& x)
{
    return x.empty();
}

/** One group of columns: its cells, and what its columns come to. */
template <class Cells, class Statistics>
struct column_group {
    Cells& cells;
    int cols;
    const Statistics& statistics;

    bool lacks(int i, int j) const { return isMissing(cells.get(i, j)); }

    /** Adds the distance between two rows in column j. */
    void compare(int row, int candidate, int j, comparison& made) const
    {
        const auto& own = cells.get(row, j);
        const auto& other = cells.get(candidate, j);
        if (isMissing(own)) {
            return;
        }
        if constexpr (requires { statistics.variances; }) {
            if (statistics.variances[j] > 0.0) {
                made.add(statistics.differenceOf(own, other, j));
            }
        } else if (own != other) {
            made.add(1.0);
        }
    }

    /**
     * Adds the distance between two rows in all columns.
     * @param spared a column in which the candidate's cell may be missing
     * @return whether the candidate has all other cells
     */
    bool compareAll(int row, int candidate, int spared, comparison& made) const
    {
        for (int j = 0; j < cols; ++j) {
            if (j != spared && lacks(candidate, j)) {
                return false;
            }
            compare(row, candidate, j, made);
        }
        return true;
    }

    void fill(int row, int j, int donor) const
    {
        cells.set(row, j, donor >= 0 ? cells.get(donor, j) : statistics.fallback(j));
    }
};

/** The three groups, the candidates, and the search among them. */
template <class Primary, class Second, class Third>
class neighbour_search
{
public:
    neighbour_search(const Primary& primary, const Second& second, const Third& third,
                     std::vector<int> candidates, bool withBounds)
        : primary_(primary), second_(second), third_(third), candidates_(std::move(candidates)),
          withBounds_(withBounds)
    {
    }

    void fillRow(int row)
    {
        for (int j = 0; j < primary_.cols; ++j) {
            if (primary_.lacks(row, j)) {
                primary_.fill(row, j, nearestForPrimary(row, j));
            }
        }
        for (int j = 0; j < second_.cols; ++j) {
            if (second_.lacks(row, j)) {
                second_.fill(row, j, nearestForOthers(row, noColumn));
            }
        }
        for (int j = 0; j < third_.cols; ++j) {
            if (third_.lacks(row, j)) {
                third_.fill(row, j, nearestForOthers(row, j));
            }
        }
    }

private:
    static constexpr bool hasPrimaryNumbers = requires(const Primary& group) { group.statistics.variances; };

    int nearestForPrimary(int row, int j)
    {
        const bool mustHaveTarget = second_.cols > 0 || third_.cols > 0;
        return nearest(row, true, [&](int candidate, comparison& made) {
            return !(mustHaveTarget && primary_.lacks(candidate, j)) &&
                   primary_.compareAll(row, candidate, j, made) &&
                   second_.compareAll(row, candidate, noColumn, made) &&
                   third_.compareAll(row, candidate, noColumn, made);
        });
    }

    /** @param spared the column of the second group in which a candidate's number may be missing */
    int nearestForOthers(int row, int spared)
    {
        return nearest(row, false, [&](int candidate, comparison& made) {
            return second_.compareAll(row, candidate, spared, made) &&
                   third_.compareAll(row, candidate, noColumn, made);
        });
    }

    /**
     * The first of the nearest candidates, or -1.
     * @param compareRow `compareRow(candidate, comparison)` adds the distance; false when it is no candidate
     */
    template <class Compare>
    int nearest(int row, bool withPrimary, Compare compareRow)
    {
        constexpr double farthest = 1.79769313486231e308;
        double best = farthest;
        int donor = -1;
        const auto look = [&](int candidate) {
            comparison made;
            if (compareRow(candidate, made) && made.isMade && best > made.distance) {
                best = made.distance;
                donor = candidate;
            }
        };
        if (!withBounds_) {
            for (const int candidate : candidates_) {
                look(candidate);
            }
            return donor;
        }
        const distance_bounds& bounds = boundsFrom(row, withPrimary);
        constexpr std::size_t step = distance_bounds::candidatesAtOnce;
        for (std::size_t block = 0; block * step < candidates_.size(); ++block) {
            for (auto open = bounds.maybeNearer(block, best); open != 0; open &= open - 1) {
                look(candidates_[block * step + static_cast<std::size_t>(std::countr_zero(open))]);
            }
        }
        return donor;
    }

    /** The bounds of the distances from a row, over the second group, and over the primary one if so said. */
    const distance_bounds& boundsFrom(int row, bool withPrimary)
    {
        if (!bounds_) {
            bounds_.emplace(candidates_.size(), static_cast<std::size_t>(primaryNumbers() + second_.cols));
            if constexpr (hasPrimaryNumbers) {
                addTo(*bounds_, primary_);
            }
            addTo(*bounds_, second_);
        }
        bounds_->startRow();
        if constexpr (hasPrimaryNumbers) {
            if (withPrimary) {
                compareIn(*bounds_, primary_, 0, row);
            }
        }
        compareIn(*bounds_, second_, primaryNumbers(), row);
        return *bounds_;
    }

    [[nodiscard]] int primaryNumbers() const { return hasPrimaryNumbers ? primary_.cols : 0; }

    template <class Group>
    void addTo(distance_bounds& bounds, const Group& group) const
    {
        for (int j = 0; j < group.cols; ++j) {
            bounds.addColumn(group.statistics.variances[j],
                             [&](std::size_t k) { return group.cells.get(candidates_[k], j); });
        }
    }

    template <class Group>
    static void compareIn(distance_bounds& bounds, const Group& group, int first, int row)
    {
        for (int j = 0; j < group.cols; ++j) {
            if (!group.lacks(row, j)) {
                bounds.compare(static_cast<std::size_t>(first + j), group.cells.get(row, j));
            }
        }
    }

    Primary primary_;
    Second second_;
    Third third_;
    std::vector<int> candidates_;
    bool withBounds_;
    std::optional<distance_bounds> bounds_;
};

/** Stands for the table of a group without columns. */
template <class T>
matrix<T> noTable(int rows)
{
    if constexpr (korvel::is_text<T>) {
        return matrix<T>(rows, 0, static_cast<T*>(nullptr));
    } else {
        return matrix<T>(rows, 0, static_cast<T*>(nullptr), true);
    }
}

/** A group as a caller gives it. */
template <class Table>
struct given_group {
    Table statisticsTable;
    Table table;
    int cols;

    given_group(Table learntFrom, Table filled, int columns)
        : statisticsTable(learntFrom), table(filled), cols(std::max(columns, 0))
    {
    }
};

/** Calls `use` with a view of the table of a group, or of one without columns. */
template <class T, class Use>
void withTable(matrix<T>* table, int rows, int cols, Use use)
{
    matrix<T> none = noTable<T>(rows);
    use(writing(cols > 0 ? *table : none).table(rows, cols));
}
template <class T, class Use>
void withTable(matrix<T>** chunks, int rows, int cols, Use use)
{
    use(writing(chunks).table(rows, cols));
}

template <class PrimaryTable, class SecondTable>
void estimate(const given_group<PrimaryTable>& primary, const given_group<SecondTable>& second,
              const given_group<matrix<text>*>& third, int n, int rows, const short int* rowFlags,
              matrix<double>* weights)
{
    if (rowFlags == nullptr) {
        return;
    }
    const auto primaryStatistics = statisticsOf(primary.statisticsTable, n, primary.cols, weights);
    const auto secondStatistics = statisticsOf(second.statisticsTable, n, second.cols, weights);
    const auto thirdStatistics = statisticsOf(third.statisticsTable, n, third.cols, weights);
    std::vector<int> candidates;
    for (int i = 0; i < rows; ++i) {
        if (rowFlags[i] == 0) {
            candidates.push_back(i);
        }
    }
    const auto fillRows = [&](auto& a, auto& b, auto& c) {
        // Stores outside of a table change what is read there, so only cells inside may be laid out.
        constexpr bool isInside = !cell_source<decltype(a)>;
        const column_group<std::remove_reference_t<decltype(a)>,
                           std::remove_cvref_t<decltype(primaryStatistics)>>
            primaryGroup{a, primary.cols, primaryStatistics};
        const column_group<std::remove_reference_t<decltype(b)>, number_statistics> secondGroup{
            b, second.cols, secondStatistics};
        const column_group<std::remove_reference_t<decltype(c)>, text_statistics> thirdGroup{c, third.cols,
                                                                                             thirdStatistics};
        neighbour_search search(primaryGroup, secondGroup, thirdGroup, candidates, isInside);
        for (int i = 0; i < rows; ++i) {
            if (rowFlags[i] != 0) {
                search.fillRow(i);
            }
        }
    };
    withTable(primary.table, rows, primary.cols, [&](const auto& a) {
        withTable(second.table, rows, second.cols, [&](const auto& b) {
            withTable(third.table, rows, third.cols, [&](const auto& c) { withCells(fillRows, a, b, c); });
        });
    });
}

} // namespace

void EstimateRowsWithMissingNN(matrix<double>* primaryStatisticsTable, int n, matrix<double>*& primary,
                               int rows, int primaryColumns, short int* rowFlags,
                               matrix<double>* secondStatisticsTable, matrix<double>*& second,
                               int secondColumns, matrix<text>* thirdStatisticsTable, matrix<text>*& third,
                               int thirdColumns, matrix<double>* weights)
{
    estimate(given_group(primaryStatisticsTable, primary, primaryColumns),
             given_group(secondStatisticsTable, second, secondColumns),
             given_group(thirdStatisticsTable, third, thirdColumns), n, rows, rowFlags, weights);
}

void EstimateRowsWithMissingNNStr(matrix<text>* primaryStatisticsTable, int n, matrix<text>*& primary,
                                  int rows, int primaryColumns, short int* rowFlags,
                                  matrix<double>* secondStatisticsTable, matrix<double>*& second,
                                  int secondColumns, matrix<text>* thirdStatisticsTable, matrix<text>*& third,
                                  int thirdColumns, matrix<double>* weights)
{
    estimate(given_group(primaryStatisticsTable, primary, primaryColumns),
             given_group(secondStatisticsTable, second, secondColumns),
             given_group(thirdStatisticsTable, third, thirdColumns), n, rows, rowFlags, weights);
}

void EstimateRowsWithMissingNNSPV(matrix<double>** primary, int n, int primaryColumns, short int* rowFlags,
                                  matrix<double>* secondStatisticsTable, matrix<double>*& second,
                                  int secondColumns, matrix<text>* thirdStatisticsTable, matrix<text>*& third,
                                  int thirdColumns, matrix<double>* weights)
{
    estimate(given_group(primary, primary, primaryColumns),
             given_group(secondStatisticsTable, second, secondColumns),
             given_group(thirdStatisticsTable, third, thirdColumns), n, n, rowFlags, weights);
}

void EstimateRowsWithMissingNNSPV2(matrix<double>** primary, int n, int primaryColumns, short int* rowFlags,
                                   matrix<double>** secondStatisticsTable, matrix<double>** second,
                                   int secondColumns, matrix<text>* thirdStatisticsTable,
                                   matrix<text>*& third, int thirdColumns, matrix<double>* weights)
{
    estimate(given_group(primary, primary, primaryColumns),
             given_group(secondStatisticsTable, second, secondColumns),
             given_group(thirdStatisticsTable, third, thirdColumns), n, n, rowFlags, weights);
}
