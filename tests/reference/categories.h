/**
 * @file
 * Plain loops over the checked access for the categories of columns of texts: a search backwards through all
 * known ones for each cell, and an insertion sort.
 */
#ifndef KORVEL_TESTS_REFERENCE_CATEGORIES_H
#define KORVEL_TESTS_REFERENCE_CATEGORIES_H

#include "containers/matrix.h"
#include "containers/missing.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace korvel::reference
{

/** The leading number of a text of ASCII, as the C library reads it in the "C" locale. */
inline double leadingNumber(const text& source)
{
    return std::strtod(std::string(source.begin(), source.end()).c_str(), nullptr);
}

/** Whether a name is a number; `value` receives it. */
inline bool isNumber(text name, double& value)
{
    if (name.empty()) {
        value = MISSING_DBL;
        return true;
    }
    const auto comma = name.find(u',');
    if (comma != text::npos) {
        name[comma] = u'.';
    }
    value = leadingNumber(name);
    return value != 0.0 || leadingNumber(name + u'1') != 0.0;
}

/** The positions of names in ascending order. */
inline std::vector<int> orderOf(const std::vector<text>& names)
{
    std::vector<double> values(names.size());
    bool numeric = true;
    for (std::size_t k = 0; k < names.size() && numeric; ++k) {
        numeric = isNumber(names[k], values[k]);
    }
    std::vector<int> order;
    for (std::size_t k = 0; k < names.size(); ++k) {
        auto place = order.end();
        while (place != order.begin()) {
            const auto before = static_cast<std::size_t>(*(place - 1));
            if (!(numeric ? values[k] < values[before] : names[k] < names[before])) {
                break;
            }
            --place;
        }
        order.insert(place, static_cast<int>(k));
    }
    return order;
}

/** Row j of a table. */
template <class T>
std::vector<T> slotsOf(const matrix<T>& table, int j, int count)
{
    std::vector<T> found;
    for (int k = 0; k < count; ++k) {
        found.push_back(table.getElement(j, k));
    }
    return found;
}

/** Sorts the first `counts[j]` slots of each table's row j by the names. Slots outside read what was stored
 * last, so all orders are found before a slot is stored. */
template <class... Frequencies>
void sortSlots(const std::vector<int>& counts, matrix<text>& names, Frequencies&... frequencies)
{
    std::vector<std::vector<int>> orders;
    for (std::size_t j = 0; j < counts.size(); ++j) {
        orders.push_back(orderOf(slotsOf(names, static_cast<int>(j), counts[j])));
    }
    const auto permute = [&](auto& table, std::size_t j) {
        const auto before = slotsOf(table, static_cast<int>(j), counts[j]);
        for (std::size_t k = 0; k < before.size(); ++k) {
            table.setElement(static_cast<int>(j), static_cast<int>(k),
                             before[static_cast<std::size_t>(orders[j][k])]);
        }
    };
    for (std::size_t j = 0; j < counts.size(); ++j) {
        permute(names, j);
        (permute(frequencies, j), ...);
    }
}

/** The categories of variable j, with the sums of as many weights as there are tables. */
template <class... Frequencies>
int countVariable(const matrix<text>& data, int n, int j, matrix<text>& names,
                  std::pair<matrix<double>*, const matrix<double>*> first, Frequencies... more)
{
    int count = 0;
    for (int i = 0; i < n; ++i) {
        const text cell = data.getElement(i, j);
        if (cell.empty()) {
            continue;
        }
        int k = count - 1;
        while (k >= 0 && names.getElement(j, k) != cell) {
            --k;
        }
        const bool known = k >= 0;
        if (!known) {
            k = count++;
            names.setElement(j, k, cell);
        }
        const auto add = [&](auto table) {
            const double weight = (*table.second)[i];
            table.first->setElement(j, k, known ? table.first->getElement(j, k) + weight : weight);
        };
        add(first);
        (add(more), ...);
    }
    return std::max(count, 1);
}

/** The position of the first largest frequency. */
inline int modeOf(const matrix<double>& frequencies, int j, int count)
{
    int mode = 0;
    for (int k = 1; k < count; ++k) {
        mode = frequencies.getElement(j, k) > frequencies.getElement(j, mode) ? k : mode;
    }
    return mode;
}

/** What the routines on plain tables give. */
struct category_info {
    matrix<text> modes;
    matrix<double> modeFrequencies;
    matrix<int> counts;
    matrix<text> names;
    matrix<double> frequencies;
    matrix<double> second; ///< Sums of weights, where the others are numbers of rows.
    int total = 0;

    category_info(int p, int width)
        : modes(p, 1, text()), modeFrequencies(p, 1, 0.0), counts(p, 1, 0), names(p, width, text()),
          frequencies(p, width, 0.0), second(p, width, 0.0)
    {
    }
};

inline category_info infoQuali2(const matrix<text>& data, int n, int p, int width,
                                const matrix<double>& weights, bool sort)
{
    category_info info(p, width);
    for (int j = 0; j < p; ++j) {
        const int count = countVariable(data, n, j, info.names, {&info.frequencies, &weights});
        const int mode = modeOf(info.frequencies, j, count);
        info.counts.setElement(j, 0, count);
        info.modes.setElement(j, 0, info.names.getElement(j, mode));
        info.modeFrequencies.setElement(j, 0, info.frequencies.getElement(j, mode));
        info.total += count;
    }
    if (sort) {
        sortSlots({info.counts.data, info.counts.data + p}, info.names, info.frequencies);
    }
    return info;
}

inline category_info infoQuali3(const matrix<text>& data, int n, int p, int width, int count,
                                const matrix<double>& weights, bool sort)
{
    category_info info(p, width);
    const matrix<double> ones(n, 1, 1.0);
    for (int j = 0; j < p; ++j) {
        countVariable(data, n, j, info.names, {&info.frequencies, &ones}, std::pair{&info.second, &weights});
        const int mode = modeOf(info.frequencies, j, count);
        info.modes.setElement(j, 0, info.names.getElement(j, mode));
        info.modeFrequencies.setElement(j, 0, info.frequencies.getElement(j, mode));
        info.total += count;
    }
    if (sort) {
        sortSlots(std::vector<int>(static_cast<std::size_t>(p), count), info.names, info.frequencies,
                  info.second);
    }
    return info;
}

/** Counts by known categories; the flag is the result. */
inline short int validate(const matrix<text>& data, int n, int p, int width,
                          const matrix<int>& categoryCounts, const matrix<text>& names,
                          matrix<double>& counts, const matrix<double>& weights)
{
    for (int j = 0; j < p; ++j) {
        for (int k = 0; k < width; ++k) {
            counts.setElement(j, k, 0.0);
        }
    }
    for (int j = 0; j < p; ++j) {
        for (int i = 0; i < n; ++i) {
            const text cell = data.getElement(i, j);
            int k = cell.empty() ? -1 : categoryCounts[j] - 1;
            while (k >= 0 && names.getElement(j, k) != cell) {
                --k;
            }
            if (k >= 0) {
                counts.setElement(j, k, counts.getElement(j, k) + weights[i]);
            } else if (!cell.empty()) {
                return -1;
            }
        }
    }
    return 0;
}

/** Whether a slot c of any variable and a slot d > c of any variable hold equal names. */
inline int isNameUsedTwice(const matrix<text>& names, int p, const matrix<int>& counts)
{
    for (int a = 0; a < p; ++a) {
        for (int b = 0; b < p; ++b) {
            for (int c = 0; c < counts[a]; ++c) {
                for (int d = c + 1; d < counts[b]; ++d) {
                    if (names.getElement(a, c) == names.getElement(b, d)) {
                        return 1;
                    }
                }
            }
        }
    }
    return 0;
}

} // namespace korvel::reference

#endif
