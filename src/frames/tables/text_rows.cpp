#include "frames/tables/text_rows.h"

#include "frames/frame.h"
#include "tables/text_rows.h"

using namespace korvel;

int Cpp_M_MergeStringsByRow(OLECHAR* const* x, int rows, int cols, OLECHAR** out)
{
    auto texts = frame::readTexts(x, rows, cols);
    auto joined = frame::blank<text>(rows);
    M_MergeStringsByRow(&texts, rows, cols, &joined);
    frame::writeTexts(joined, out);
    return 0;
}

short int Cpp_CheckSameVectorStr(OLECHAR* const* a, int nA, OLECHAR* const* b, int nB)
{
    auto first = frame::readTexts(a, nA);
    auto second = frame::readTexts(b, nB);
    return CheckSameVectorStr(&first, nA, &second, nB);
}
