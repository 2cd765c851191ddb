/// Printing. A page is a surface of points, the printable area of the paper, with its origin in the top left corner.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/graphics.h"

namespace tallyvane {

/// Shows the print dialog. Nil when the user cancelled. What is drawn goes to paper when the surface goes out of being.
[[nodiscard]] std::unique_ptr<Graphics> OpenPrinterDialog();

/// Lays a text out on one page after the other, in the desktop's own font at 12 points. Lines are broken between words;
/// a word that is wider than the page is broken where it must be.
class StyledTextPrinter {
public:
    StyledTextPrinter(Graphics& g, std::string text, double width) : g_(g), text_(std::move(text)), width_(width) {}

    double Width() const { return width_; }
    void Width(double points) { width_ = points; }
    /// Everything has been drawn. (Plain EOF is a macro of the C library.)
    bool EndOfText() const { return place_ >= text_.size(); }
    /// Draws as many of the lines that are left as go into that height, one at the least.
    void DrawBlock(double x, double y, double height);

private:
    Graphics& g_;
    std::string text_;
    double width_;
    std::size_t place_ = 0;
};

/// Bytes of the text that stand in its first line, within that width and up to a line end, with the blanks or the line
/// end after them. One character at the least.
std::size_t firstLine(const Graphics& g, std::string_view text, double width);

} // namespace tallyvane
