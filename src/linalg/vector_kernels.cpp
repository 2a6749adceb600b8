#include "linalg/vector_kernels.h"

#include "containers/views.h"
#include "linalg/rotations.h"
#include "linalg/vector_runs.h"

#include <cmath>

using korvel::writing;

namespace
{

/** A vector of a table; one with a negative stride starts from the far end. */
template <class View>
korvel::column_run<View> runOf(const View& cells, int n, int step, int row, int col)
{
    return {cells, row - 1 + (step < 0 ? (1 - n) * step : 0), col - 1, step};
}

/** The vector of a kernel that has no other: it is walked as it comes. */
template <class View>
korvel::column_run<View> onlyRunOf(const View& cells, int step, int row, int col)
{
    return {cells, row - 1, col - 1, step};
}

} // namespace

double DNRM2(int n, matrix<double>* x, int incx, int row, int col)
{
    return korvel::lengthOf(n, onlyRunOf(writing(*x), incx, row, col));
}

double DNRM2SPV(int n, matrix3D<matrix<double>>* x, int incx, int row, int col)
{
    return korvel::lengthOf(n, onlyRunOf(writing(*x), incx, row, col));
}

double DNRM2_Fast_ST(int n, cST_MVect<double>& x, int incx, int row, int col)
{
    return korvel::lengthOf(n, onlyRunOf(writing(x), incx, row, col));
}

void dscal(int n, double a, matrix<double>* x, int incx, int row, int col)
{
    korvel::scaleBy(n, a, onlyRunOf(writing(*x), incx, row, col));
}

void dscalSPV(int n, double a, matrix3D<matrix<double>>* x, int incx, int row, int col)
{
    korvel::scaleBy(n, a, onlyRunOf(writing(*x), incx, row, col));
}

void dscal_Fast_ST(int n, double a, cST_MVect<double>& x, int incx, int row, int col)
{
    korvel::scaleBy(n, a, onlyRunOf(writing(x), incx, row, col));
}

void daxpy(int n, double a, matrix<double>* x, int incx, matrix<double>* y, int incy, int rowx, int colx,
           int rowy, int coly)
{
    korvel::addMultiple(n, a, runOf(writing(*x), n, incx, rowx, colx),
                        runOf(writing(*y), n, incy, rowy, coly));
}

void daxpySPV(int n, double a, matrix3D<matrix<double>>* x, int incx, matrix3D<matrix<double>>* y, int incy,
              int rowx, int colx, int rowy, int coly)
{
    korvel::addMultiple(n, a, runOf(writing(*x), n, incx, rowx, colx),
                        runOf(writing(*y), n, incy, rowy, coly));
}

void daxpy_Fast_ST(int n, double a, cST_MVect<double>& x, int incx, cST_MVect<double>& y, int incy, int rowx,
                   int colx, int rowy, int coly)
{
    korvel::addMultiple(n, a, runOf(writing(x), n, incx, rowx, colx), runOf(writing(y), n, incy, rowy, coly));
}

double ddot(int n, matrix<double>* x, int incx, matrix<double>* y, int incy, int rowx, int colx, int rowy,
            int coly)
{
    return korvel::innerProduct(n, runOf(writing(*x), n, incx, rowx, colx),
                                runOf(writing(*y), n, incy, rowy, coly));
}

double ddotSPV(int n, matrix3D<matrix<double>>* x, int incx, matrix3D<matrix<double>>* y, int incy, int rowx,
               int colx, int rowy, int coly)
{
    return korvel::innerProduct(n, runOf(writing(*x), n, incx, rowx, colx),
                                runOf(writing(*y), n, incy, rowy, coly));
}

double ddot_Fast_ST(int n, cST_MVect<double>& x, int incx, cST_MVect<double>& y, int incy, int rowx, int colx,
                    int rowy, int coly)
{
    return korvel::innerProduct(n, runOf(writing(x), n, incx, rowx, colx),
                                runOf(writing(y), n, incy, rowy, coly));
}

void M_SwapVectors(int n, matrix<double>* x, int incx, matrix<double>* y, int incy, int colx, int coly)
{
    korvel::swapRuns(n, runOf(writing(*x), n, incx, 1, colx), runOf(writing(*y), n, incy, 1, coly));
}

void M_SwapVectorsSPV(int n, matrix3D<matrix<double>>* x, int incx, matrix3D<matrix<double>>* y, int incy,
                      int colx, int coly)
{
    korvel::swapRuns(n, runOf(writing(*x), n, incx, 1, colx), runOf(writing(*y), n, incy, 1, coly));
}

void drot(int n, matrix<double>* x, int incx, matrix<double>* y, int incy, double c, double s, int colx,
          int coly)
{
    korvel::rotateRuns(n, runOf(writing(*x), n, incx, 1, colx), runOf(writing(*y), n, incy, 1, coly), c, s);
}

void drotSPV(int n, matrix3D<matrix<double>>* x, int incx, matrix3D<matrix<double>>* y, int incy, double c,
             double s, int colx, int coly)
{
    korvel::rotateRuns(n, runOf(writing(*x), n, incx, 1, colx), runOf(writing(*y), n, incy, 1, coly), c, s);
}

void drot_Fast_ST(int n, cST_MVect<double>& x, int incx, cST_MVect<double>& y, int incy, double c, double s,
                  int colx, int coly)
{
    korvel::rotateRuns(n, runOf(writing(x), n, incx, 1, colx), runOf(writing(y), n, incy, 1, coly), c, s);
}

void drotg(double* a, double* b, double* c, double* s)
{
    const double first = *a;
    const double second = *b;
    const korvel::rotation turn = korvel::rotationOf(*a, second);
    *c = turn.c;
    *s = turn.s;
    if (first == 0.0 && second == 0.0) {
        *b = 0.0;
    } else if (std::fabs(first) > std::fabs(second)) {
        *b = turn.s;
    } else {
        *b = turn.c != 0.0 ? 1.0 / turn.c : 1.0;
    }
}
