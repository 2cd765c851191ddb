#include "platform/drawing/null_graphics.h"

#include <algorithm>

#include "platform/base/text.h"

namespace tallyvane {

double NullGraphics::StringWidth(std::string_view text) const {
    return 0.5 * static_cast<double>(TextSize()) * Len(text);
}

void NullGraphics::shrinkToFit(double width, double height) {
    const double times = std::max({1.0, width / width_, height / height_});
    width_ *= times;
    height_ *= times;
}

} // namespace tallyvane
