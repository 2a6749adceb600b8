#include "random/indicator.h"

#include "containers/cells.h"
#include "ordering/sorted_keys.h"
#include "random/random_source.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace
{

void clear(matrix<double>& out, int n)
{
    korvel::withCells(
        [n](auto& cells) {
            for (int i = 0; i < n; ++i) {
                cells.set(i, 0.0);
            }
        },
        korvel::writeVector(out, n));
}

void draw(matrix<double>& out, int n)
{
    if (n > 0 && korvel::holds(out, n)) {
        korvel::draw01Block(korvel::processSource, out.data, static_cast<std::size_t>(n));
        return;
    }
    for (int i = 0; i < n; ++i) {
        korvel::storeChecked(out, i, korvel::draw01(korvel::processSource));
    }
}

} // namespace

void GenerateIndicator(matrix<double>* out, int n, int first, int last)
{
    clear(*out, n);
    for (std::int64_t position = first; position <= last; ++position) {
        korvel::storeChecked(*out, position - 1, 1.0);
    }
}

void GenerateRandomIndicator(matrix<double>* out, int n, int k, int* seed, short int flag, int* nextSeed)
{
    GetSeed(seed, &flag);
    draw(*out, n);
    const korvel::sorted_numbers<double> sorted(n, false,
                                                [&](std::int32_t i) { return std::as_const(*out)[i]; });

    clear(*out, n);
    const std::size_t marked = std::min(static_cast<std::size_t>(std::max(k, 0)), sorted.size());
    for (std::size_t rank = 0; rank < marked; ++rank) {
        korvel::storeChecked(*out, sorted.position(rank), 1.0);
    }
    GetSeedUpdate(nextSeed);
}
