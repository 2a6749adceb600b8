#include "pictures.h"
#include "scales.h"
#include "svg.h"
#include "text_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace report
{

namespace
{

constexpr int correlationDecimals = 3;

struct colour {
    const char* kind;
    double opacity;
};

colour colourOf(double correlation)
{
    if (VB_IsMissingValueDbl(correlation) != 0 || !std::isfinite(correlation)) {
        return {"cell undefined", 0.0};
    }
    return {correlation < 0.0 ? "cell negative" : "cell positive", std::min(std::abs(correlation), 1.0)};
}

void drawLegend(svg_picture& picture, double x, double y)
{
    constexpr double side = 16;
    double place = x;
    for (const double value : {-1.0, -0.5, 0.0, 0.5, 1.0}) {
        const colour shade = colourOf(value);
        // Swatches are no cells of the map.
        const char* const kind = value < 0.0 ? "swatch negative" : "swatch positive";
        picture.rectangle(place, y, side, side, kind, "", shade.opacity);
        picture.text(place + side + 5, y + side / 2, rounded(value, value == std::floor(value) ? 0 : 1),
                     "minor", anchor::start);
        place += 58;
    }
}

/** A label in a picture, and what it covers. */
struct label_box {
    double left;
    double right;
    double middle;
};

bool isFree(const std::vector<label_box>& taken, const label_box& wanted)
{
    constexpr double lineHeight = 13;
    return std::ranges::none_of(taken, [&](const label_box& box) {
        return wanted.left < box.right && box.left < wanted.right &&
               std::abs(wanted.middle - box.middle) < lineHeight;
    });
}

} // namespace

std::string heatMap(const data_set& data, const std::vector<double>& figures)
{
    constexpr double room = 620;
    constexpr double smallest = 13;
    constexpr double largest = 52;
    constexpr double leastForNumbers = 34;
    constexpr double slant = 0.82; // How high a label stands that is turned by 55 degrees, for its length.
    const std::size_t columns = data.numberColumns.size();
    const double side = std::clamp(room / static_cast<double>(columns), smallest, largest);
    double names = 0.0;
    for (const number_column& column : data.numberColumns) {
        names = std::max(names, widthOf(shownName(column.name)));
    }
    const double left = names + 12;
    const double top = names * slant + 18;
    const double whole = side * static_cast<double>(columns);
    svg_picture picture(
        std::max(left + whole + names * 0.6, left + 300), top + whole + 34, "Correlations",
        "A table of colours: the correlation of each pair of columns, as in the table of this "
        "section.");
    for (std::size_t i = 0; i < columns; ++i) {
        const std::string name = shownName(data.numberColumns[i].name);
        const double middle = side * (static_cast<double>(i) + 0.5);
        picture.text(left - 8, top + middle, name, "minor", anchor::end);
        picture.text(left + middle, top - 8, name, "minor", anchor::start, -55);
        for (std::size_t j = 0; j < columns; ++j) {
            const double figure = figures[i + j * columns];
            const colour shade = colourOf(figure);
            const double x = left + side * static_cast<double>(j);
            const double y = top + side * static_cast<double>(i);
            const std::string hint = name + " and " + shownName(data.numberColumns[j].name) + ": " +
                                     rounded(figure, correlationDecimals);
            picture.rectangle(x, y, side - 1, side - 1, shade.kind, hint, shade.opacity);
            if (side >= leastForNumbers) {
                // Which ink has the better contrast depends on the shade, and on light or dark.
                constexpr double strongest = 0.85;
                constexpr double stronger = 0.55;
                picture.text(x + side / 2, y + side / 2, rounded(figure, 2),
                             shade.opacity > strongest  ? "number strong"
                             : shade.opacity > stronger ? "number middle"
                                                        : "number",
                             anchor::middle);
            }
        }
    }
    drawLegend(picture, left, top + whole + 10);
    return picture.finished();
}

std::string screePlot(const components& parts)
{
    constexpr double width = 420;
    constexpr double top = 30;
    constexpr double bottom = 240;
    constexpr double left = 46;
    constexpr double right = width - 10;
    constexpr int wantedTicks = 5;
    const std::size_t count = parts.variances.size();
    const scale upwards(0.0, parts.variances[0], bottom, top);
    const std::vector<double> ticks = upwards.ticks(wantedTicks);
    const std::vector<std::string> texts = shownTicks(ticks);
    std::string description = "Variances of the components: ";
    for (std::size_t k = 0; k < count; ++k) {
        description += (k == 0 ? "" : ", ") + rounded(parts.variances[k], correlationDecimals);
    }
    svg_picture picture(width, bottom + 48, "Scree plot", description + '.');
    picture.text(left, 12, "Scree plot: variance of each component", "heading", anchor::start);
    for (std::size_t k = 0; k < ticks.size(); ++k) {
        picture.line(left, upwards.at(ticks[k]), right, upwards.at(ticks[k]), "grid");
        picture.text(left - 6, upwards.at(ticks[k]), texts[k], "minor", anchor::end);
    }
    const double step = (right - left) / static_cast<double>(count);
    const std::size_t eachLabel = static_cast<std::size_t>(std::ceil(22.0 / step));
    for (std::size_t k = 0; k < count; ++k) {
        const double x = left + step * static_cast<double>(k);
        const double y = upwards.at(std::max(parts.variances[k], 0.0));
        picture.rectangle(x + step * 0.15, y, step * 0.7, bottom - y, "bar",
                          "component " + std::to_string(k + 1) + ": " +
                              rounded(parts.variances[k], correlationDecimals) + ", " +
                              rounded(parts.percents[k], 1) + " %");
        if (k % eachLabel == 0) {
            picture.text(x + step / 2, bottom + 12, std::to_string(k + 1), "minor", anchor::middle);
        }
    }
    picture.line(left, bottom, right, bottom, "axis");
    picture.text((left + right) / 2, bottom + 34, "component", "minor", anchor::middle);
    return picture.finished();
}

std::string biplot(const components& parts)
{
    constexpr double radius = 200;
    constexpr double centreY = 240;
    const std::size_t columns = parts.columns.size();
    double names = 0.0;
    for (const std::string& name : parts.columns) {
        names = std::max(names, widthOf(shownName(name)));
    }
    const double centreX = radius + names + 36;
    const double width = 2 * centreX;
    const auto rows = static_cast<std::size_t>(parts.pointCount);
    const std::string shares = "component 1 has " + rounded(parts.percents[0], 1) + " %, component 2 " +
                               rounded(parts.percents[1], 1) + " % of the variance";
    svg_picture picture(
        width, 2 * centreY + 18, "Biplot of the first two components",
        "Columns are arrows: their correlations with the components, the circle being 1. Rows are "
        "points, " +
            std::to_string(parts.pointCount) + " of " + std::to_string(parts.rowCount) + "; " + shares +
            ". The loadings stand in the table of this section.");
    picture.text(16, 12, "Biplot: rows as points, columns as arrows", "heading", anchor::start);
    picture.line(centreX - radius, centreY, centreX + radius, centreY, "grid");
    picture.line(centreX, centreY - radius, centreX, centreY + radius, "grid");
    picture.circle(centreX, centreY, radius, "ring");

    double furthest = 0.0;
    for (const double coordinate : parts.points) {
        furthest = std::max(furthest, std::abs(coordinate));
    }
    const scale forPoints(-furthest, furthest, -radius, radius);
    for (std::size_t k = 0; k < rows; ++k) {
        picture.circle(centreX + forPoints.at(parts.points[k]),
                       centreY - forPoints.at(parts.points[rows + k]), 2.2, "dot");
    }
    std::vector<label_box> taken;
    for (std::size_t j = 0; j < columns; ++j) {
        const double x = centreX + radius * parts.arrows[j];
        const double y = centreY - radius * parts.arrows[columns + j];
        picture.line(centreX, centreY, x, y, "arrow");
        picture.circle(x, y, 2.8, "tip");
        const std::string name = shownName(parts.columns[j]);
        const bool isRight = x >= centreX;
        const double start = isRight ? x + 6 : x - 6;
        const double length = isRight ? widthOf(name) : -widthOf(name);
        // The first place beside the tip that is free; without one, the name stands in the table only.
        for (const double shift : {0.0, -11.0, 11.0, -22.0, 22.0}) {
            const label_box wanted{std::min(start, start + length), std::max(start, start + length),
                                   y + shift};
            if (isFree(taken, wanted)) {
                taken.push_back(wanted);
                picture.text(start, y + shift, name, "name", isRight ? anchor::start : anchor::end);
                break;
            }
        }
    }
    picture.text(centreX, 2 * centreY - 6, "component 1 (" + rounded(parts.percents[0], 1) + " %)", "minor",
                 anchor::middle);
    picture.text(14, centreY, "component 2 (" + rounded(parts.percents[1], 1) + " %)", "minor",
                 anchor::middle, -90);
    return picture.finished();
}

} // namespace report
