/// One page for the visit at the doctor's: period, figures, pictures, the lowest readings, medications, questions.
#pragma once

#include <string>
#include <vector>

#include "platform/drawing/graphics.h"
#include "summary/period_summary.h"
#include "summary/visit_texts.h"

namespace tallyvane::Summary {

/// The title of page and file: "Blood glucose, 30 days".
[[nodiscard]] std::string visitTitle(const PeriodSummary& summary);

struct VisitPage {
    VisitTexts texts;
    std::vector<std::string> medications; // a line each
    Date printed;
    int pages = 1; // in all
};

/// The first figures, side by side on a whole surface, in letters of that size against those of the page.
void drawKeyFigures(Graphics& g, const PeriodSummary& summary, double size = 1);

/// Draws the page on a surface, in points of 1/72 inch; on one that is smaller than A4 or Letter less margins it is
/// drawn smaller.
void drawVisitPage(Graphics& g, const PeriodSummary& summary, const VisitPage& visit);

} // namespace tallyvane::Summary
