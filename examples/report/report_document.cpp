#include "report_document.h"

#include "progress.h"
#include "read_data.h"
#include "sections.h"
#include "utf8.h"

#include <array>
#include <filesystem>

namespace report
{

namespace
{

constexpr std::array sectionMakers{
    notesOnFile,      location,        quartiles,         shape,      groups, correlations,
    rankCorrelations, componentShares, componentLoadings, regression, dates,  texts,
    categories,       missingColumns,  missingRows,
};

std::string counted(std::size_t count, const std::string& thing)
{
    return ", " + std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

std::string titleOf(const std::string& fileName, const data_set& data)
{
    constexpr int nameWidth = 60;
    std::string title = displayText(fileName, nameWidth) + counted(data.leftOut.size(), "row");
    const auto addColumns = [&](std::size_t count, const char* kind) {
        if (count > 0) {
            title += counted(count, "column") + " of " + kind;
        }
    };
    addColumns(data.numberColumns.size(), "numbers");
    addColumns(data.textColumns.size(), "text");
    addColumns(data.dateColumns.size(), "dates");
    return title;
}

} // namespace

document documentOn(const std::string& file, const options& asked)
{
    const std::filesystem::path path(file);
    progress shown(path.filename().string());
    data_set data = readData(path, asked.reading, shown);
    if (asked.weights) {
        takeWeights(data, *asked.weights);
    }
    if (asked.groups) {
        takeGroups(data, *asked.groups);
    }
    const findings found = findingsOf(data, asked, shown);
    document report{titleOf(path.filename().string(), data), {}};
    for (const auto make : sectionMakers) {
        section made = make(data, found);
        if (!made.empty()) {
            report.sections.push_back(std::move(made));
        }
    }
    return report;
}

} // namespace report
