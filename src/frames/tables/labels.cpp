#include "frames/tables/labels.h"

#include "frames/frame.h"
#include "tables/labels.h"

using namespace korvel;

int VB_V_ReplaceDoubles(OLECHAR** labels, int n)
{
    auto texts = frame::changing(labels, n);
    V_ReplaceDoubles(&texts, n);
    frame::bringBack(texts, labels);
    return 0;
}

int Cpp_V_MergeVectorsStr(OLECHAR* const* a, int n, OLECHAR* const* b, const OLECHAR* sep, OLECHAR** out)
{
    auto first = frame::readTexts(a, n);
    auto second = frame::readTexts(b, n);
    auto joined = frame::filling(out, n);
    V_MergeVectorsStr(&first, n, &second, readBstr(frame::readOnly(sep)), &joined);
    frame::bringBack(joined, out);
    return 0;
}
