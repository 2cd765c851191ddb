/// Draws texts and lines on the pages of a summary.
#pragma once

#include <string>

#include "platform/drawing/graphics.h"

namespace tallyvane::Summary {

inline constexpr Color pageText = RGB(0, 0, 0);
inline constexpr Color pageNote = RGB(95, 95, 95);
inline constexpr Color pageRule = RGB(160, 160, 160);
/// Letter and A4 less margins, in points: paper that is smaller is drawn on smaller.
inline constexpr double leastPageWidth = 555;
inline constexpr double leastPageHeight = 750;

/// A page from its top left corner; places are of baselines.
class PagePen {
public:
    explicit PagePen(Graphics& g) : g_(g) {}

    void font(double size, Color color, bool isBold = false);
    void heading(const std::string& text, double x, double baseline);
    void left(const std::string& text, double x, double baseline) { g_.DrawString(text, x, baseline); }
    void right(const std::string& text, double x, double baseline);
    void centred(const std::string& text, double x, double baseline);
    /// As much of a text as has room.
    std::string fitting(const std::string& text, double width) const;
    void rule(double y, Color color = pageRule);
    /// The words at the foot, and the number of the page.
    void foot(const std::string& words, int page, int pages);

    double width() const { return g_.Width(); }
    double height() const { return g_.Height(); }
    Graphics& surface() { return g_; }

private:
    Graphics& g_;
};

} // namespace tallyvane::Summary
