#include "pictures.h"
#include "scales.h"
#include "svg.h"
#include "text_table.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <set>

namespace report
{

namespace
{

constexpr double boxHeight = 14;

std::string counted(double weight, const data_set& data)
{
    return shownWeight(weight) + (data.isWeighted() ? " of weight" : weight == 1.0 ? " row" : " rows");
}

std::string shownValue(double value, const number_column& column)
{
    return shown(value, column.decimals + 2);
}

std::string boxInWords(const distribution& figures, const number_column& column)
{
    return "quartiles " + shownValue(figures.lowerQuartile, column) + " and " +
           shownValue(figures.upperQuartile, column) + ", median " + shownValue(figures.median, column) +
           ", whiskers from " + shownValue(figures.lowerWhisker, column) + " to " +
           shownValue(figures.upperWhisker, column) + ", " + std::to_string(figures.outside.size()) +
           " values outside";
}

// A box from quartile to quartile, with the median, whiskers, and the values outside them as dots.
void drawBox(svg_picture& picture, const distribution& figures, const scale& across, double middle)
{
    const double left = across.at(figures.lowerQuartile);
    const double right = across.at(figures.upperQuartile);
    const double median = across.at(figures.median);
    picture.line(across.at(figures.lowerWhisker), middle, left, middle, "whisker");
    picture.line(right, middle, across.at(figures.upperWhisker), middle, "whisker");
    picture.rectangle(left, middle - boxHeight / 2, std::max(right - left, 1.0), boxHeight, "box");
    picture.line(median, middle - boxHeight / 2, median, middle + boxHeight / 2, "median");
    // Dots that would cover each other are drawn once.
    std::set<int> drawn;
    for (const double value : figures.outside) {
        if (drawn.insert(static_cast<int>(2.0 * across.at(value))).second) {
            picture.circle(across.at(value), middle, 2.0, "dot");
        }
    }
}

// Round numbers below an axis; those that would run into each other are left out.
void drawTicks(svg_picture& picture, const scale& across, double y)
{
    constexpr int wanted = 6;
    constexpr double gap = 6;
    const std::vector<double> ticks = across.ticks(wanted);
    const std::vector<std::string> texts = shownTicks(ticks);
    double end = -1e9;
    for (std::size_t k = 0; k < ticks.size(); ++k) {
        const double x = across.at(ticks[k]);
        picture.line(x, y, x, y + 4, "axis");
        if (x - widthOf(texts[k]) / 2 > end + gap) {
            picture.text(x, y + 12, texts[k], "minor", anchor::middle);
            end = x + widthOf(texts[k]) / 2;
        }
    }
}

// With a digit more than the width of the intervals has.
std::string shownEdge(const histogram& bars, std::size_t k)
{
    const int decimals = std::max(0, 1 - static_cast<int>(std::floor(std::log10(bars.width) + 1e-9)));
    return rounded(bars.edge(k), decimals);
}

text_table countsOf(const data_set& data, const histogram& bars)
{
    text_table table({{"from", alignment::point},
                      {"to below", alignment::point},
                      {data.isWeighted() ? "weight" : "rows", alignment::point}});
    for (std::size_t k = 0; k < bars.weights.size(); ++k) {
        table.add({shownEdge(bars, k), shownEdge(bars, k + 1), shownWeight(bars.weights[k])});
    }
    return table;
}

std::string distributionPicture(const data_set& data, const number_column& column,
                                const distribution& figures, const histogram& bars)
{
    constexpr double width = 320;
    constexpr double height = 222;
    constexpr double top = 30;
    constexpr double bottom = 160;
    constexpr double boxMiddle = 178;
    constexpr double ticksAt = 194;
    constexpr int wantedCounts = 4;

    const double most = *std::ranges::max_element(bars.weights);
    const scale upwards(0.0, most, bottom, top);
    const std::vector<double> counts = upwards.ticks(wantedCounts, data.isWeighted() ? 0.0 : 1.0);
    const std::vector<std::string> countTexts = shownTicks(counts);
    double left = 0.0;
    for (const std::string& text : countTexts) {
        left = std::max(left, widthOf(text) + 10);
    }
    const std::size_t last = bars.weights.size();
    // Room for the ends of the axis, where a label may stand.
    const scale across(bars.edge(0), bars.edge(last), left, width - 16);

    const auto interval = [&](std::size_t k) {
        return shownEdge(bars, k) + " to " + shownEdge(bars, k + 1) + ": " + counted(bars.weights[k], data);
    };
    std::string description = "Histogram: ";
    for (std::size_t k = 0; k < last; ++k) {
        description += (k == 0 ? "" : "; ") + interval(k);
    }
    description += ". Box plot: " + boxInWords(figures, column) + '.';

    svg_picture picture(width, height, "Distribution of " + column.name, description);
    picture.text(left, 12, shownName(column.name), "heading", anchor::start);
    for (std::size_t k = 0; k < counts.size(); ++k) {
        const double y = upwards.at(counts[k]);
        picture.line(left, y, width - 16, y, "grid");
        picture.text(left - 6, y, countTexts[k], "minor count", anchor::end);
    }
    for (std::size_t k = 0; k < last; ++k) {
        const double x = across.at(bars.edge(k));
        const double y = upwards.at(bars.weights[k]);
        // A gap of one pixel between bars, as long as they are wide enough.
        const double barWidth = across.at(bars.edge(k + 1)) - x;
        picture.rectangle(x, y, barWidth > 4 ? barWidth - 1 : barWidth, bottom - y, "bar", interval(k));
    }
    drawBox(picture, figures, across, boxMiddle);
    picture.line(left, ticksAt, width - 16, ticksAt, "axis");
    drawTicks(picture, across, ticksAt);
    return picture.finished();
}

std::string groupPicture(const data_set& data, const number_column& column, const findings& found,
                         const std::vector<distribution>& figures)
{
    constexpr double plotWidth = 270;
    constexpr double top = 30;
    constexpr double step = 22;
    constexpr double longestName = 170;
    double low = 0.0;
    double high = 0.0;
    bool isFirst = true;
    double names = 0.0;
    std::string description;
    for (std::size_t g = 0; g < figures.size(); ++g) {
        const std::string name = shownName(found.groupsShown[g]->name);
        names = std::max(names, std::min(widthOf(name), longestName));
        description += name + ": ";
        if (figures[g].count == 0) {
            description += "no numbers. ";
            continue;
        }
        description += boxInWords(figures[g], column) + ". ";
        low = isFirst ? figures[g].min.value : std::min(low, figures[g].min.value);
        high = isFirst ? figures[g].max.value : std::max(high, figures[g].max.value);
        isFirst = false;
    }
    const double left = names + 14;
    const scale across(low, high, left + 6, left + plotWidth);
    const double end = top + step * static_cast<double>(figures.size());
    svg_picture picture(left + plotWidth + 24, end + 28,
                        "Box plots of " + column.name + " by " + data.groups->column, description);
    picture.text(left, 12, shownName(column.name) + " by " + shownName(data.groups->column), "heading",
                 anchor::start);
    for (std::size_t g = 0; g < figures.size(); ++g) {
        const double middle = top + step * (static_cast<double>(g) + 0.5);
        picture.text(left - 8, middle, shownName(found.groupsShown[g]->name), "minor", anchor::end);
        if (figures[g].count > 0) {
            drawBox(picture, figures[g], across, middle);
        }
    }
    picture.line(left, end, left + plotWidth + 6, end, "axis");
    drawTicks(picture, across, end);
    return picture.finished();
}

} // namespace

std::vector<picture> distributionPictures(const data_set& data, const findings& found)
{
    std::vector<picture> pictures;
    for (std::size_t j = 0; j < data.numberColumns.size(); ++j) {
        if (!found.histograms[j].weights.empty()) {
            pictures.push_back({distributionPicture(data, data.numberColumns[j], found.distributions[j],
                                                    found.histograms[j]),
                                {countsOf(data, found.histograms[j])}});
        }
    }
    return pictures;
}

std::vector<picture> groupPictures(const data_set& data, const findings& found)
{
    std::vector<picture> pictures;
    for (std::size_t j = 0; j < data.numberColumns.size(); ++j) {
        const distribution& all = found.distributions[j];
        if (!found.byGroup[j].empty() && all.count > 0 && std::isfinite(all.max.value - all.min.value)) {
            pictures.push_back({groupPicture(data, data.numberColumns[j], found, found.byGroup[j]), {}});
        }
    }
    return pictures;
}

} // namespace report
