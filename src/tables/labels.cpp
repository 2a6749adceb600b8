#include "tables/labels.h"

#include "containers/cells.h"

#include <array>
#include <charconv>
#include <limits>
#include <unordered_map>

namespace
{

/** A label that is settled: where it stands, and the number that its next repeat gets. */
struct settled_label {
    int position;
    int nextNumber = 2;
};

/**
 * What a label becomes behind the settled ones. A repeat of the one at position i takes its next number; the
 * text that this makes may repeat one between i and here, and then goes on from there.
 */
text distinctFrom(std::unordered_map<text, settled_label>& settled, text label)
{
    for (auto same = settled.find(label); same != settled.end(); same = settled.find(label)) {
        const auto isTaken = [&] {
            const auto other = settled.find(label);
            return other != settled.end() && other->second.position < same->second.position;
        };
        do {
            label = korvel::numbered(same->first, same->second.nextNumber++);
        } while (isTaken());
    }
    return label;
}

} // namespace

void V_ReplaceDoubles(matrix<text>* labels, int n)
{
    std::unordered_map<text, settled_label> settled;
    korvel::withCells(
        [&](auto& cells) {
            for (int i = 0; i < n; ++i) {
                const text label = distinctFrom(settled, cells[i]);
                if (label != cells[i]) {
                    cells.set(i, label);
                }
                settled.emplace(label, settled_label{i});
            }
        },
        korvel::writeVector(*labels, n));
}

void V_MergeVectorsStr(matrix<text>* a, int n, matrix<text>* b, text sep, matrix<text>* out)
{
    korvel::withCells(
        [&](auto first, auto second, auto& joined) {
            for (int i = 0; i < n; ++i) {
                joined.set(i, first[i] + sep + second[i]);
            }
        },
        korvel::readVector(*a, n), korvel::readVector(*b, n), korvel::writeVector(*out, n));
}

namespace korvel
{

text numbered(const text& label, int number)
{
    std::array<char, std::numeric_limits<int>::digits10 + 2> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return label + text(digits.data(), end);
}

} // namespace korvel
