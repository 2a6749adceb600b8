#include "frames/missing/observation_labels.h"

#include "frames/frame.h"
#include "missing/observation_labels.h"

using namespace korvel;

int VB_ReplaceMissingObsLabels(OLECHAR** labels, int n, short int* flags, const OLECHAR* prefix)
{
    auto texts = frame::changing(labels, n);
    ReplaceMissingObsLabels(&texts, n, flags, readBstr(frame::readOnly(prefix)));
    frame::bringBack(texts, labels);
    return 0;
}
