#include "frames/domain/range_texts.h"

#include "domain/range_texts.h"
#include "frames/frame.h"

using namespace korvel;

OLECHAR* SimplifyRange(const OLECHAR* value)
{
    return makeBstr(cSimplifyRange(readBstr(frame::readOnly(value))));
}

OLECHAR* Increase1Col(const OLECHAR* column)
{
    return makeBstr(cIncrease1Col(readBstr(frame::readOnly(column))));
}
