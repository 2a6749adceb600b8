#include "findings.h"

namespace report
{

findings findingsOf(const data_set& data, const options& asked, progress& shown)
{
    findings found;
    if (asked.response) {
        shown.show("regression");
        found.regression = regressionOf(data, *asked.response);
    }
    found.areCounts = weightsAreCounts(data);
    const std::size_t columns = data.numberColumns.size();
    for (std::size_t j = 0; j < columns; ++j) {
        shown.show("columns of numbers", static_cast<double>(j) / static_cast<double>(columns));
        const number_column& column = data.numberColumns[j];
        const kept_values kept = keptOf(data, column.values);
        found.distributions.push_back(distributionOf(kept, found.areCounts));
        found.shapes.push_back(shapeOf(kept, found.areCounts));
        found.histograms.push_back(histogramOf(kept, found.distributions.back(), column.decimals));
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
