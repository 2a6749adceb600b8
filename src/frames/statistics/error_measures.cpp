#include "frames/statistics/error_measures.h"

#include "frames/frame.h"
#include "statistics/error_measures.h"

using namespace korvel;

namespace
{

/** `core(&actual, &predicted, n, w, first)`; there are no weights behind a null pointer. */
template <class Core>
double errorOf(Core core, const double* actual, const double* predicted, int n, const double* w, int first)
{
    auto observed = frame::borrow(actual, n);
    auto forecast = frame::borrow(predicted, n);
    auto weights = frame::borrow(w, n);
    return core(&observed, &forecast, n, w != nullptr ? &weights : nullptr, first);
}

} // namespace

double VB_MAPE(const double* actual, const double* predicted, int n, const double* w, int first)
{
    return errorOf(MAPE, actual, predicted, n, w, first);
}

double VB_MPE(const double* actual, const double* predicted, int n, const double* w, int first)
{
    return errorOf(MPE, actual, predicted, n, w, first);
}

double VB_MAE(const double* actual, const double* predicted, int n, const double* w, int first)
{
    return errorOf(MAE, actual, predicted, n, w, first);
}

double VB_RMSE(const double* x, int n, int col, const double* y, double df)
{
    auto table = frame::borrow(x, n, col);
    auto other = frame::borrow(y, n, col);
    return RMSE(&table, n, col, &other, df);
}
