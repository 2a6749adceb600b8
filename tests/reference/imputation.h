/**
 * @file
 * Plain loops over the checked access for cells filled by nearest rows, by means and by modes: every
 * candidate is looked at, column after column, with nothing done for speed.
 */
#ifndef KORVEL_TESTS_REFERENCE_IMPUTATION_H
#define KORVEL_TESTS_REFERENCE_IMPUTATION_H

#include "containers/matrix.h"
#include "containers/missing.h"

#include <algorithm>
#include <type_traits>
#include <vector>

namespace korvel::reference
{

/** Element (i, j) of a dense table, or element i of chunk j, read and stored with every check. */
template <class T>
struct plain_cells {
    matrix<T>* dense = nullptr;
    matrix<T>* const* chunks = nullptr;

    T get(int i, int j) const { return dense != nullptr ? dense->getElement(i, j) : (*chunks[j])[i]; }

    void set(int i, int j, T value) const
    {
        if (dense != nullptr) {
            dense->setElement(i, j, value);
            return;
        }
        if (i < static_cast<int>(chunks[j]->nbElem)) {
            chunks[j]->data[i] = value;
        }
        chunks[j]->oobValue = value;
    }

    bool isMissing(int i, int j) const
    {
        if constexpr (std::is_same_v<T, text>) {
            return get(i, j).empty();
        } else {
            return get(i, j) <= MISSING_DBL;
        }
    }
};

/** A group of columns with what its columns come to: means and variances, or modes. */
template <class T>
struct plain_group {
    plain_cells<T> x;
    int cols = 0;
    std::vector<T> fallback;
    std::vector<double> variances;
};

/** Whether candidate d has what it must have, with its distance to row r and whether it was compared. */
struct plain_candidate {
    bool isValid = true;
    bool isCompared = false;
    double distance = 0.0;

    /** @param excused the column in which d may have no cell, or -1 */
    template <class T>
    void scan(const plain_group<T>& group, int r, int d, int excused)
    {
        for (int k = 0; isValid && k < group.cols; ++k) {
            if (k != excused && group.x.isMissing(d, k)) {
                isValid = false;
                return;
            }
            if (group.x.isMissing(r, k)) {
                continue;
            }
            const auto column = static_cast<std::size_t>(k);
            if constexpr (std::is_same_v<T, text>) {
                if (group.x.get(r, k) != group.x.get(d, k)) {
                    distance += 1.0;
                    isCompared = true;
                }
            } else if (group.variances[column] > 0.0) {
                const double difference = group.x.get(r, k) - group.x.get(d, k);
                distance += difference * difference / group.variances[column];
                isCompared = true;
            }
        }
    }
};

/** The nearest of the candidates that `scan(d)` makes, or -1. */
template <class Scan>
int plainNearest(int r, int rows, const short int* flags, Scan scan)
{
    double best = 1.79769313486231e308;
    int donor = -1;
    for (int d = 0; d < rows; ++d) {
        if (d == r || flags[d] != 0) {
            continue;
        }
        const plain_candidate candidate = scan(d);
        if (candidate.isValid && candidate.isCompared && best > candidate.distance) {
            best = candidate.distance;
            donor = d;
        }
    }
    return donor;
}

template <class T>
void plainFill(const plain_group<T>& group, int r, int c, int donor)
{
    group.x.set(r, c, donor >= 0 ? group.x.get(donor, c) : group.fallback[static_cast<std::size_t>(c)]);
}

/** Fills the flagged rows of all three groups by their nearest neighbours. */
template <class T>
void fillByNearest(const plain_group<T>& primary, const plain_group<double>& second,
                   const plain_group<text>& third, int rows, const short int* flags)
{
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; flags[r] != 0 && c < primary.cols; ++c) {
            if (!primary.x.isMissing(r, c)) {
                continue;
            }
            plainFill(primary, r, c, plainNearest(r, rows, flags, [&](int d) {
                          const bool lacksTarget = primary.x.isMissing(d, c);
                          plain_candidate found;
                          found.scan(primary, r, d, c);
                          if (lacksTarget && second.cols + third.cols > 0) {
                              found.isValid = false;
                          }
                          found.scan(second, r, d, -1);
                          found.scan(third, r, d, -1);
                          return found;
                      }));
        }
        for (int c = 0; flags[r] != 0 && c < second.cols; ++c) {
            if (second.x.isMissing(r, c)) {
                plainFill(second, r, c, plainNearest(r, rows, flags, [&](int d) {
                              plain_candidate found;
                              found.scan(second, r, d, -1);
                              found.scan(third, r, d, -1);
                              return found;
                          }));
            }
        }
        for (int c = 0; flags[r] != 0 && c < third.cols; ++c) {
            if (third.x.isMissing(r, c)) {
                plainFill(third, r, c, plainNearest(r, rows, flags, [&](int d) {
                              plain_candidate found;
                              found.scan(second, r, d, c);
                              found.scan(third, r, d, -1);
                              return found;
                          }));
            }
        }
    }
}

/** The text of each column whose weights have the largest sum, by looking at all pairs of rows. */
inline std::vector<text> plainModes(const matrix<text>& x, int rows, int cols, const matrix<double>& w)
{
    std::vector<text> modes;
    for (int j = 0; j < cols; ++j) {
        text mode;
        double most = 0.0;
        for (int i = 0; i < rows; ++i) {
            const text name = x.getElement(i, j);
            bool isFirst = !name.empty();
            for (int k = 0; k < i; ++k) {
                isFirst = isFirst && x.getElement(k, j) != name;
            }
            if (!isFirst) {
                continue;
            }
            double sum = w[i];
            for (int k = i + 1; k < rows; ++k) {
                if (x.getElement(k, j) == name) {
                    sum += w[k];
                }
            }
            if (mode.empty() || sum > most) {
                mode = name;
                most = sum;
            }
        }
        modes.push_back(mode);
    }
    return modes;
}

} // namespace korvel::reference

#endif
