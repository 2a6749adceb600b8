#include "qualitative/category_records.h"

#include "containers/cells.h"
#include "qualitative/category_list.h"
#include "qualitative/category_order.h"
#include "qualitative/category_slots.h"
#include "statistics/vector_extremes.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace
{

using korvel::category_order;
using korvel::column_slots;

constexpr short int isSet = -1;

/** What a code counts from: a category at position k, from 0, has the code `codeStart + k`. */
double codeOf(const cST_QualiInfo& info, int k)
{
    return static_cast<double>(info.codeStart) + k;
}

/** The variables of a record while they are counted. */
class record_inventory
{
public:
    record_inventory(cST_MVect<text>& data, const matrix<double>& weights, cST_QualiInfo& info)
        : rows_(data.nbrowsmax), info_(&info), weights_(&weights), labels_(&data.CLabels), cells_(data),
          names_(*info.CatNames), counts_(*info.CatFreq), sums_(*info.CatFreqW)
    {
    }

    /** Lists the categories of variable j, and gives their number. */
    int list(int j)
    {
        const text& label = std::as_const(*labels_)[j];
        korvel::storeChecked(*info_->VarLabels, j, label);
        const text prefix = label + u'-';
        text longName;
        const bool isLong = info_->withLongLabels == isSet;
        const auto nameOf = [&](const korvel::hashed_text& cell) {
            if (!isLong) {
                return cell;
            }
            longName = prefix;
            longName += cell.value();
            return korvel::hashed_text(longName);
        };
        index_.clear();
        korvel::category_list categories(names_[j], index_);
        korvel::withCells(
            [&](auto cells) {
                korvel::listCategories(rows_, cells, categories, nameOf,
                                       [&](int i, int k, bool started) { tally(j, i, k, started); });
            },
            korvel::readVector(cells_.column(j), rows_));
        return std::max(categories.size(), 1);
    }

    double largestCount(int j, int categories) { return V_Max2(counts_.column(j), categories); }

    /** Sorts the categories of variable j. */
    void sort(int j, int categories)
    {
        const category_order order = korvel::orderOfCategories(names_[j], categories);
        korvel::permute(order, names_[j]);
        korvel::permute(order, counts_[j]);
        korvel::permute(order, sums_[j]);
        if (info_->withRecode == isSet) {
            followOrder(order, j);
        }
    }

    [[nodiscard]] double sumOfWeights() const
    {
        if (info_->noWeights == isSet) {
            return rows_;
        }
        double sum = 0.0;
        for (int i = 0; i < rows_; ++i) {
            const double weight = (*weights_)[i];
            sum += weight != MISSING_DBL ? weight : 0.0;
        }
        return sum;
    }

private:
    /** Counts row i for the category at position k, or notes that its cell is empty. */
    void tally(int j, int i, int k, bool started)
    {
        if (k >= 0) {
            const double weight = info_->noWeights == isSet ? 1.0 : (*weights_)[i];
            counts_[j].set(k, started ? 1.0 : counts_[j].get(k) + 1.0);
            sums_[j].set(k, started ? weight : sums_[j].get(k) + weight);
        }
        if (info_->withRecode == isSet) {
            info_->Codes->setElement(i, j, k >= 0 ? codeOf(*info_, k) : MISSING_DBL);
        }
    }

    /** Gives each cell of variable j the code of where its category now stands. */
    void followOrder(const category_order& order, int j) const
    {
        std::vector<double> newCodes(order.size());
        for (std::size_t k = 0; k < order.size(); ++k) {
            newCodes[static_cast<std::size_t>(order[k])] = codeOf(*info_, static_cast<int>(k));
        }
        matrix<double>& codes = *info_->Codes;
        const int stored = j < codes.nbcols ? std::min(rows_, codes.nbrows) : 0;
        for (int i = 0; i < stored; ++i) {
            const double code = codes.getElement(i, j);
            if (code != MISSING_DBL) {
                codes.setElement(i, j, newCodes[static_cast<std::size_t>(code - codeOf(*info_, 0))]);
            }
        }
    }

    int rows_;
    cST_QualiInfo* info_;
    const matrix<double>* weights_;
    const matrix<text>* labels_;
    column_slots<text> cells_;
    column_slots<text> names_;
    column_slots<double> counts_;
    column_slots<double> sums_;
    korvel::text_index index_;
};

} // namespace

void M_InfoQuali_ST(cST_MVect<text>& data, matrix<double> const& weights, cST_QualiInfo& info)
{
    const int variables = data.nbcols;
    record_inventory inventory(data, weights, info);
    std::vector<int> counts;
    info.NbCatTotal = 0;
    for (int j = 0; j < variables; ++j) {
        counts.push_back(inventory.list(j));
        korvel::storeChecked(*info.NbCat, j, counts.back());
    }
    for (int j = 0; j < variables; ++j) {
        const int count = counts[static_cast<std::size_t>(j)];
        info.NbCatTotal += count;
        info.FreqMax = std::max(info.FreqMax, inventory.largestCount(j, count));
    }
    info.Count = variables;
    info.SumW = inventory.sumOfWeights();
    if (info.withSort == isSet) {
        for (int j = 0; j < variables; ++j) {
            inventory.sort(j, counts[static_cast<std::size_t>(j)]);
        }
    }
}
