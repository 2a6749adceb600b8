#include "containers/record_conversion.h"
#include "containers/record_copies.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(RecordsOfASibling, ConvertAndCopyThroughTheLibrary)
{
    cST_MVect<text> words(2, 1);
    words.Vectors[0].Vect[0] = u"1,5e2";
    cST_MVect<double> numeric(2, 1);
    EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(1, 2, 1, 1, 2, 1, 1, 1, words, u",", numeric), 0);
    cST_MVect<double> copy(2, 1);
    MV_DuplicateMVect(numeric, copy);
    EXPECT_SAME_BITS(copy.Vectors[0].Vect[1], MISSING_DBL);
    EXPECT_EQ(Convert_MVectDblToMVectStr_ST(1, 2, 1, 1, 2, 1, 1, 1, copy, words), 0);
    EXPECT_EQ(words.Vectors[0].Vect[1], u"-2e+308");
}
