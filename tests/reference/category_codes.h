/**
 * @file
 * Plain loops over the checked access for codes of texts and for disjunctive tables.
 */
#ifndef KORVEL_TESTS_REFERENCE_CATEGORY_CODES_H
#define KORVEL_TESTS_REFERENCE_CATEGORY_CODES_H

#include "containers/matrix.h"
#include "containers/missing.h"

#include <vector>

namespace korvel::reference
{

/** The code of each cell of unflagged rows; `keeps` leaves a cell without a code as it was. */
inline void replaceByCodes(const matrix<text>& data, int n, int p, const matrix<int>& counts,
                           const matrix<text>& names, const matrix<short int>* flags, int firstCode,
                           bool keeps, matrix<double>& result)
{
    for (int j = 0; j < p; ++j) {
        for (int i = 0; i < n; ++i) {
            if (!keeps) {
                result.setElement(i, j, MISSING_DBL);
            }
            if (flags != nullptr && (*flags)[i] != 0) {
                continue;
            }
            for (int k = 1; k <= counts[j]; ++k) {
                if (data.getElement(i, j) == names.getElement(j, k - 1)) {
                    result.setElement(i, j, firstCode - 1 + k);
                    break;
                }
            }
        }
    }
}

/** Codes from 0 on for the whole table, by a list that is searched from its start. */
inline void codesOfTable(const matrix<text>& data, int n, int p, const std::vector<short int>& flags,
                         matrix<double>& result)
{
    std::vector<text> list;
    for (int j = 0; j < p; ++j) {
        for (int i = 0; i < n; ++i) {
            result.setElement(i, j, MISSING_DBL);
            if (flags[static_cast<std::size_t>(i)] != 0) {
                continue;
            }
            std::size_t k = 0;
            while (k < list.size() && list[k] != data.getElement(i, j)) {
                ++k;
            }
            if (k == list.size()) {
                list.push_back(data.getElement(i, j));
            }
            result.setElement(i, j, static_cast<double>(k));
        }
    }
}

/** A disjunctive table, cell by cell. */
inline void disjunctiveTable(const matrix<text>& data, int n, int p, const matrix<int>& counts,
                             const matrix<text>& names, const matrix<double>& frequencies,
                             matrix<double>& result, int coding, int option)
{
    int b = 0;
    for (int j = 0; j < p; ++j) {
        const int k = counts[j];
        const bool onlyMinus = coding == 2 && k == 2 && option != 1 && option != 2;
        for (int i = 0; i < n; ++i) {
            const text cell = data.getElement(i, j);
            for (int c = 1; c <= k; ++c) {
                if (cell.empty()) {
                    result.setElement(i, b + c - 1, MISSING_DBL);
                    continue;
                }
                if (cell == names.getElement(j, c - 1) && !onlyMinus) {
                    if (c >= 2 || coding == 0 || option == 2 || (option == 1 && b == 0)) {
                        result.setElement(i, b + c - 1, 1.0);
                        continue;
                    }
                }
                if (cell == names.getElement(j, k - 1) && c < k) {
                    if (coding == 1) {
                        result.setElement(i, b + c - 1, 0.0);
                    } else if (coding == 2) {
                        result.setElement(i, b + c - 1, -1.0);
                    } else if (coding == 3) {
                        result.setElement(i, b + c - 1,
                                          -frequencies.getElement(j, c - 1) /
                                              frequencies.getElement(j, k - 1));
                    }
                }
            }
        }
        b += k;
    }
}

} // namespace korvel::reference

#endif
