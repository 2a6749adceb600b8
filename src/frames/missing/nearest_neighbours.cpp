#include "frames/missing/nearest_neighbours.h"

#include "frames/frame.h"
#include "missing/nearest_neighbours.h"

#include <optional>

using namespace korvel;

namespace
{

matrix<double> learntFrom(const double* x, int rows, int cols)
{
    return frame::borrow(x, rows, cols);
}
matrix<text> learntFrom(OLECHAR* const* x, int rows, int cols)
{
    return frame::readTexts(x, rows, cols);
}

/** A group of columns of which means and variances, or modes, are taken; none when it has no columns. */
template <class Read>
auto statisticsOf(Read x, int rows, int cols)
{
    using table = decltype(learntFrom(x, rows, cols));
    return cols > 0 ? std::optional<table>(learntFrom(x, rows, cols)) : std::nullopt;
}

/** A group of columns that is filled; none when it has no columns. */
template <class Cell>
auto groupOf(Cell* x, int rows, int cols)
{
    using table = decltype(frame::changing(x, rows, cols));
    return cols > 0 ? std::optional<table>(frame::changing(x, rows, cols)) : std::nullopt;
}

template <class Table, class Cell>
void bringBackGroup(const std::optional<Table>& group, Cell* x)
{
    if (group) {
        frame::bringBack(*group, x);
    }
}

/** The functions of which no group is chunked. */
template <class Core, class Read, class Cell>
int fillDense(Core core, Read primaryStatistics, int n, Cell* primary, int rows, int primaryColumns,
              const short int* rowFlags, const double* secondStatistics, double* second, int secondColumns,
              OLECHAR* const* thirdStatistics, OLECHAR** third, int thirdColumns, const double* w)
{
    auto primaryLearnt = statisticsOf(primaryStatistics, n, primaryColumns);
    auto secondLearnt = statisticsOf(secondStatistics, n, secondColumns);
    auto thirdLearnt = statisticsOf(thirdStatistics, n, thirdColumns);
    auto primaryGroup = groupOf(primary, rows, primaryColumns);
    auto secondGroup = groupOf(second, rows, secondColumns);
    auto thirdGroup = groupOf(third, rows, thirdColumns);
    auto weights = frame::borrow(w, n);
    auto* first = frame::pointerTo(primaryGroup);
    auto* middle = frame::pointerTo(secondGroup);
    auto* last = frame::pointerTo(thirdGroup);
    core(frame::pointerTo(primaryLearnt), n, first, rows, primaryColumns, frame::readOnly(rowFlags),
         frame::pointerTo(secondLearnt), middle, secondColumns, frame::pointerTo(thirdLearnt), last,
         thirdColumns, &weights);
    bringBackGroup(primaryGroup, primary);
    bringBackGroup(thirdGroup, third);
    return 0;
}

} // namespace

int VB_EstimateRowsWithMissingNN(double* primary, int n, int primaryColumns, const short int* rowFlags,
                                 double* second, int secondColumns, OLECHAR** third, int thirdColumns,
                                 const double* w)
{
    return fillDense(EstimateRowsWithMissingNN, static_cast<const double*>(primary), n, primary, n,
                     primaryColumns, rowFlags, second, second, secondColumns, third, third, thirdColumns, w);
}

int VB_EstimateRowsWithMissingNNPred(const double* primaryStatistics, int n, double* primary, int rows,
                                     int primaryColumns, const short int* rowFlags,
                                     const double* secondStatistics, double* second, int secondColumns,
                                     OLECHAR* const* thirdStatistics, OLECHAR** third, int thirdColumns,
                                     const double* w)
{
    return fillDense(EstimateRowsWithMissingNN, primaryStatistics, n, primary, rows, primaryColumns, rowFlags,
                     secondStatistics, second, secondColumns, thirdStatistics, third, thirdColumns, w);
}

int VB_EstimateRowsWithMissingNNSPV(Hostarray** primary, int n, int primaryColumns, const short int* rowFlags,
                                    double* second, int secondColumns, OLECHAR** third, int thirdColumns,
                                    const double* w)
{
    const auto columns = frame::chunks(primary, primaryColumns, n);
    auto secondGroup = groupOf(second, n, secondColumns);
    auto thirdGroup = groupOf(third, n, thirdColumns);
    auto weights = frame::borrow(w, n);
    auto* middle = frame::pointerTo(secondGroup);
    auto* last = frame::pointerTo(thirdGroup);
    EstimateRowsWithMissingNNSPV(columns.get(), n, primaryColumns, frame::readOnly(rowFlags), middle, middle,
                                 secondColumns, last, last, thirdColumns, &weights);
    bringBackGroup(thirdGroup, third);
    return 0;
}

int VB_EstimateRowsWithMissingNNSPV2(Hostarray** primary, int n, int primaryColumns,
                                     const short int* rowFlags, Hostarray** second, int secondColumns,
                                     OLECHAR** third, int thirdColumns, const double* w)
{
    const auto columns = frame::chunks(primary, primaryColumns, n);
    const auto secondGroup = frame::chunks(second, secondColumns, n);
    auto thirdGroup = groupOf(third, n, thirdColumns);
    auto weights = frame::borrow(w, n);
    auto* last = frame::pointerTo(thirdGroup);
    EstimateRowsWithMissingNNSPV2(columns.get(), n, primaryColumns, frame::readOnly(rowFlags),
                                  secondGroup.get(), secondGroup.get(), secondColumns, last, last,
                                  thirdColumns, &weights);
    bringBackGroup(thirdGroup, third);
    return 0;
}

int VB_EstimateRowsWithMissingNNStr(OLECHAR** primary, int n, int primaryColumns, const short int* rowFlags,
                                    double* second, int secondColumns, OLECHAR** third, int thirdColumns,
                                    const double* w)
{
    return fillDense(EstimateRowsWithMissingNNStr, static_cast<OLECHAR* const*>(primary), n, primary, n,
                     primaryColumns, rowFlags, second, second, secondColumns, third, third, thirdColumns, w);
}

int VB_EstimateRowsWithMissingNNStrPred(OLECHAR* const* primaryStatistics, int n, OLECHAR** primary, int rows,
                                        int primaryColumns, const short int* rowFlags,
                                        const double* secondStatistics, double* second, int secondColumns,
                                        OLECHAR* const* thirdStatistics, OLECHAR** third, int thirdColumns,
                                        const double* w)
{
    return fillDense(EstimateRowsWithMissingNNStr, primaryStatistics, n, primary, rows, primaryColumns,
                     rowFlags, secondStatistics, second, secondColumns, thirdStatistics, third, thirdColumns,
                     w);
}
