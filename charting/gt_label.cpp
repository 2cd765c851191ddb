#include "charting/gt_label.h"

#include <algorithm>

#include "charting/gt_general_purpose.h"

namespace tallyvane {

void GTLabel::x(double v) { myX = std::clamp(v, 0.0, 1.0); }

void GTLabel::y(double v) { myY = std::clamp(v, 0.0, 1.0); }

void GTLabel::Render(Graphics& g, int left, int top, int w, int h) const {
    g.TextFont(textFont);
    g.TextSize(myTextSize * GTGeneralPurpose::GTResolutionScaleFactor(myResolution));
    g.ForeColor(textColor);
    g.DrawString(text, left + myX * w, top + myY * h);
}

} // namespace tallyvane
