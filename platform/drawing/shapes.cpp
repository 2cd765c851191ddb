#include "platform/drawing/shapes.h"

namespace tallyvane {

void FigureShape::AddLine(double x1, double y1, double x2, double y2) {
    sides.push_back({static_cast<float>(x1), static_cast<float>(y1), static_cast<float>(x2), static_cast<float>(y2)});
}

} // namespace tallyvane
