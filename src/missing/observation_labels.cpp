#include "missing/observation_labels.h"

#include "containers/cells.h"
#include "tables/labels.h"

#include <unordered_map>

void ReplaceMissingObsLabels(matrix<text>* labels, int n, short int* flags, text prefix)
{
    korvel::withCells(
        [&](auto& cells) {
            std::unordered_map<text, int> rowsWith;
            for (int i = 0; i < n; ++i) {
                ++rowsWith[cells[i]];
            }
            for (int i = 0; i < n; ++i) {
                if (flags[i] != -1) {
                    continue;
                }
                --rowsWith[cells[i]];
                const text first = korvel::numbered(prefix, i + 1);
                text label = first;
                for (int further = 2; rowsWith[label] > 0; ++further) {
                    label = korvel::numbered(first + u'_', further);
                }
                cells.set(i, label);
                ++rowsWith[label];
                flags[i] = 0;
            }
        },
        korvel::writeVector(*labels, n));
}
