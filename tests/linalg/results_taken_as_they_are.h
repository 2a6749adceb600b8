/**
 * @file
 * A check of members that neither resize nor clear their result.
 */
#ifndef KORVEL_TESTS_LINALG_RESULTS_TAKEN_AS_THEY_ARE_H
#define KORVEL_TESTS_LINALG_RESULTS_TAKEN_AS_THEY_ARE_H

#include "containers/matrix.h"
#include "support/bits.h"

#include <gtest/gtest.h>

namespace korvel::test
{

/** Expects that `call`, which stores 2 by 2 cells, keeps the shape of its result and the cells beside them.
 */
template <class Call>
void expectResultTakenAsItIs(Call call)
{
    matrix<double> larger(3, 2, 9.0);
    call(&larger);
    EXPECT_SAME_BITS(larger.getElement(2, 0), 9.0) << "below the block";
    EXPECT_NE(larger.getElement(1, 1), 9.0);
    matrix<double> smaller(1, 2, 9.0);
    call(&smaller);
    EXPECT_EQ(smaller.nbrows, 1);
    EXPECT_EQ(smaller.nbcols, 2);
}

} // namespace korvel::test

#endif
