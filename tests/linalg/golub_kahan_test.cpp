#include "linalg/golub_kahan.h"

#include "containers/views.h"
#include "linalg/singular_values_forms.h"
#include "support/matrix_kinds.h"

#include <gtest/gtest.h>

using namespace korvel;
using namespace korvel::test;

TEST(GolubKahan, HasTheBitsOfThePlainLoops)
{
    constexpr std::pair<int, int> shapes[] = {{1, 1}, {1, 2}, {2, 1}, {1, 9},   {9, 1},  {2, 2},
                                              {2, 3}, {3, 2}, {5, 5}, {16, 16}, {8, 20}, {20, 8}};
    for (const auto& [n, p] : shapes) {
        for (const matrix_kind kind : allMatrixKinds) {
            for (const int job : {0, 1, 10, 11, 20, 21}) {
                SCOPED_TRACE(::testing::Message() << kind << " " << n << " by " << p << ", job " << job);
                matrix<double> A = tableOfKind(kind, n, p, false);
                const plain_svd expected(A, n, p, job, stepsOfDense);
                const svd_job asked(job, n, p);
                outcome found;
                matrix<double> s(std::min(n + 1, p), 1, 7.0);
                matrix<double> U(n, asked.columnsOfU, 7.0);
                matrix<double> V(p, asked.wantsV ? p : 0, 7.0);
                raw_table<double> cells(A);
                raw_table<double> left(U);
                raw_table<double> right(V);
                raw_writer<double> values(s.data, s.oobValue);
                const svd_shape shape(n, p, asked.columnsOfU, asked.wantsV, stepsOfDense);
                found.info = golub_kahan(cells, left, right, values, shape).run();
                found.s = cellsOf(s);
                found.U = asked.columnsOfU > 0 ? cellsOf(U) : std::vector<double>();
                found.V = asked.wantsV ? cellsOf(V) : std::vector<double>();
                ASSERT_NO_FATAL_FAILURE(expectPlain(found, expected));
            }
        }
    }
}
