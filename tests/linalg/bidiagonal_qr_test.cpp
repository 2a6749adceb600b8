#include "linalg/bidiagonal_qr.h"

#include "containers/views.h"
#include "linalg/golub_kahan.h"
#include "linalg/singular_values_forms.h"
#include "reference/singular_values.h"
#include "support/random_tables.h"

#include <gtest/gtest.h>

using namespace korvel;
using namespace korvel::test;

TEST(BidiagonalQr, StepsAreLimited)
{
    EXPECT_EQ(stepsOfDense, 500);
    EXPECT_EQ(stepsOfChunked, 60);
    std::mt19937_64 generator(4);
    matrix<double> A = randomTable(generator, 12, 12, 1);
    const int needed = plain_svd(A, 12, 12, 0, 500).stepsTaken;
    ASSERT_GE(needed, 2);
    for (const int limit : {0, 1, needed, needed + 1, noLimit}) {
        matrix<double> copy(A);
        matrix<double> s(12, 1, 0.0);
        raw_table<double> cells(copy);
        raw_table<double> none(copy);
        raw_writer<double> values(s.data, s.oobValue);
        const svd_shape shape{12, 12, 0, false, limit};
        const int info = golub_kahan(cells, none, none, values, shape).run();
        EXPECT_EQ(info, plain_svd(A, 12, 12, 0, limit).info);
        EXPECT_EQ(info == 0, limit > needed) << limit << ": the count is looked at before the test";
    }
}

TEST(BidiagonalQr, AValueWithoutAColumnInUTurnsNone)
{
    // With NaN about, the value beyond the rows of a wide table does not split off first.
    for (unsigned seed = 1; seed <= 60; ++seed) {
        std::mt19937_64 generator(seed);
        const int n = 2 + static_cast<int>(generator() % 8);
        const int p = n + 1 + static_cast<int>(generator() % 8);
        matrix<double> A = randomTable(generator, n, p, 1);
        A.data[generator() % A.nbElem] = notANumber;
        A.data[generator() % A.nbElem] = infinite;
        SCOPED_TRACE(seed);
        ASSERT_NO_FATAL_FAILURE(expectPlain(denseForm(A, 11), plain_svd(A, n, p, 11, stepsOfDense)));
    }
}
