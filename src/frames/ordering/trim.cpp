#include "frames/ordering/trim.h"

#include "frames/frame.h"
#include "ordering/trim.h"

using namespace korvel;

int Cpp_V_Trim(OLECHAR* const* labels, int n, short int bLeft, short int bRight, OLECHAR** out)
{
    auto texts = frame::readTexts(labels, n);
    auto result = frame::blank<text>(n);
    const int status = V_Trim(&texts, n, bLeft, bRight, &result);
    frame::writeTexts(result, out);
    return status;
}

int Cpp_V_Trim2(OLECHAR** labels, int n, short int bLeft, short int bRight)
{
    auto texts = frame::readTexts(labels, n);
    const int status = V_Trim2(&texts, n, bLeft, bRight);
    frame::writeTexts(texts, labels);
    return status;
}
