#include "svg.h"

#include "markup.h"
#include "utf8.h"

#include <array>
#include <charconv>
#include <cmath>

namespace report
{

namespace
{

// Hundredths of a pixel do, and no more digits than needed.
std::string coordinate(double value)
{
    constexpr double hundredths = 100.0;
    std::array<char, 32> digits{};
    // Adding 0.0 turns a negative zero into a plain one.
    const double rounded = std::round(value * hundredths) / hundredths + 0.0;
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), rounded);
    return {digits.data(), end};
}

} // namespace

svg_picture::svg_picture(double width, double height, std::string_view title, std::string_view description)
{
    markup_ = "<svg xmlns=\"http://www.w3.org/2000/svg\" role=\"img\" width=\"" + coordinate(width) +
              "\" height=\"" + coordinate(height) + "\" viewBox=\"0 0 " + coordinate(width) + ' ' +
              coordinate(height) + "\"><title>" + escaped(title) + "</title><desc>" + escaped(description) +
              "</desc>\n";
}

void svg_picture::rectangle(double x, double y, double width, double height, std::string_view kind,
                            std::string_view hint, double opacity)
{
    markup_.append("<rect class=\"").append(kind).append("\"");
    attribute("x", x);
    attribute("y", y);
    attribute("width", width);
    attribute("height", height);
    if (opacity < 1.0) {
        attribute("fill-opacity", opacity);
    }
    close("rect", hint);
}

void svg_picture::line(double x1, double y1, double x2, double y2, std::string_view kind)
{
    markup_.append("<line class=\"").append(kind).append("\"");
    attribute("x1", x1);
    attribute("y1", y1);
    attribute("x2", x2);
    attribute("y2", y2);
    close("line", "");
}

void svg_picture::circle(double x, double y, double radius, std::string_view kind, std::string_view hint)
{
    markup_.append("<circle class=\"").append(kind).append("\"");
    attribute("cx", x);
    attribute("cy", y);
    attribute("r", radius);
    close("circle", hint);
}

void svg_picture::text(double x, double y, std::string_view text, std::string_view kind, anchor at,
                       double turned)
{
    constexpr std::array<std::string_view, 3> anchors{"start", "middle", "end"};
    markup_.append("<text class=\"").append(kind).append("\" text-anchor=\"");
    markup_.append(anchors[static_cast<std::size_t>(at)]).append("\" dominant-baseline=\"central\"");
    attribute("x", x);
    attribute("y", y);
    if (turned != 0.0) {
        markup_ +=
            " transform=\"rotate(" + coordinate(turned) + ' ' + coordinate(x) + ' ' + coordinate(y) + ")\"";
    }
    markup_ += '>' + escaped(text) + "</text>\n";
}

void svg_picture::attribute(std::string_view name, double value)
{
    markup_.append(" ").append(name).append("=\"").append(coordinate(value)).append("\"");
}

void svg_picture::close(std::string_view tag, std::string_view hint)
{
    if (hint.empty()) {
        markup_ += "/>\n";
    } else {
        markup_.append("><title>").append(escaped(hint)).append("</title></").append(tag).append(">\n");
    }
}

double widthOf(std::string_view text)
{
    constexpr double perCharacter = 6.8;
    return perCharacter * displayWidth(text);
}

} // namespace report
