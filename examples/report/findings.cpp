#include "findings.h"

#include <algorithm>

namespace report
{

namespace
{

// The groups to be shown, in their order: those of most rows when there are many.
std::vector<const row_group*> largestGroups(const grouping& groups)
{
    std::vector<const row_group*> largest;
    for (const row_group& group : groups.groups) {
        largest.push_back(&group);
    }
    if (largest.size() > mostGroups) {
        std::ranges::stable_sort(
            largest, [](const row_group* a, const row_group* b) { return a->rows.size() > b->rows.size(); });
        largest.resize(mostGroups);
        std::ranges::sort(largest);
    }
    return largest;
}

std::vector<distribution> distributionsByGroup(const data_set& data, const number_column& column,
                                               const findings& found)
{
    std::vector<distribution> figures;
    if (column.name != data.groups->column) {
        for (const row_group* group : found.groupsShown) {
            figures.push_back(distributionOf(keptOf(data, column.values, group->rows), found.areCounts));
        }
    }
    return figures;
}

} // namespace

findings findingsOf(const data_set& data, const options& asked, progress& shown)
{
    findings found;
    if (asked.response) {
        shown.show("regression");
        found.regression = regressionOf(data, *asked.response);
    }
    found.areCounts = weightsAreCounts(data);
    if (data.groups) {
        found.groupsShown = largestGroups(*data.groups);
    }
    const std::size_t columns = data.numberColumns.size();
    for (std::size_t j = 0; j < columns; ++j) {
        shown.show("columns of numbers", static_cast<double>(j) / static_cast<double>(columns));
        const number_column& column = data.numberColumns[j];
        const kept_values kept = keptOf(data, column.values);
        found.distributions.push_back(distributionOf(kept, found.areCounts));
        found.shapes.push_back(shapeOf(kept, found.areCounts));
        found.histograms.push_back(histogramOf(kept, found.distributions.back(), column.decimals));
        if (data.groups) {
            found.byGroup.push_back(distributionsByGroup(data, column, found));
        }
    }
    shown.show("correlations");
    found.correlations = correlationsOf(data);
    shown.show("principal components");
    found.parts = componentsOf(data);
    for (const text_column& column : data.textColumns) {
        shown.show("categories");
        found.inventories.push_back(inventoryOf(data, column));
    }
    return found;
}

} // namespace report
