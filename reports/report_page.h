#pragma once

#include <array>
#include <string>

#include "platform/drawing/graphics.h"

namespace tallyvane {

/// The pages of a report, as a grid of lines of text. Places are in points from the page's top left corner.
class ReportPage {
public:
    /// Date, seven readings and average.
    static constexpr std::size_t columns = 9;
    using Cells = std::array<std::string, columns>;

    /// Pages of `limit` lines in the current font. If the paper is too small for them, everything is drawn smaller.
    ReportPage(Graphics& g, int limit);

    /// Width of the texts of a day, in points: 450, or what the page has.
    double detailWidth() const;

    /// Title and headings, at the top of the first page.
    void drawHead(const std::string& title);
    /// A day, on a shaded ground. One line.
    void drawDay(const Cells& cells);
    /// A text of a day with its label before it, wrapped, and counted as that many lines. It is never split: what is
    /// too long for a page runs on past its bottom.
    void drawDetail(const std::string& label, const std::string& text, int lines);
    void drawAverages(const Cells& cells);
    /// A line of plain text.
    void drawNote(const std::string& text);

    void skipLine() { ++line_; }
    /// Starts a new page if `lines` more do not fit on this one.
    void ensureLines(int lines);

private:
    double baseline() const;
    void drawCells(const Cells& cells);

    Graphics& g_;
    int limit_;
    int line_ = 0; // the next one to be written
};

} // namespace tallyvane
