/**
 * @file
 * A picture in SVG, drawn shape by shape. Colours come from the style sheet of the page, by class.
 */
#ifndef KORVEL_EXAMPLES_SVG_H
#define KORVEL_EXAMPLES_SVG_H

#include <string>
#include <string_view>

namespace report
{

/** Where a text stands beside its point. */
enum class anchor { start, middle, end };

/** Coordinates are in pixels, from the upper left corner. */
class svg_picture
{
public:
    /** @param description what the picture shows, in words, for those who do not see it */
    svg_picture(double width, double height, std::string_view title, std::string_view description);

    /** @param hint shown beside the pointer, and read aloud; may be empty */
    void rectangle(double x, double y, double width, double height, std::string_view kind,
                   std::string_view hint = "", double opacity = 1.0);
    void line(double x1, double y1, double x2, double y2, std::string_view kind);
    void circle(double x, double y, double radius, std::string_view kind, std::string_view hint = "");
    /** A text of which the middle of the line is at y, turned by some degrees about its point. */
    void text(double x, double y, std::string_view text, std::string_view kind, anchor at,
              double turned = 0.0);

    [[nodiscard]] std::string finished() const { return markup_ + "</svg>"; }

private:
    void attribute(std::string_view name, double value);
    void close(std::string_view tag, std::string_view hint);

    std::string markup_;
};

/** About how wide a text prints in a picture. */
double widthOf(std::string_view text);

} // namespace report

#endif
