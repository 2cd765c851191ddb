#include "platform/shapes.h"

#include <set>

namespace tallyvane {

FontName::FontName(std::string_view name) {
    static std::set<std::string, std::less<>> names;
    const auto found = names.find(name);
    name_ = found != names.end() ? &*found : &*names.emplace(name).first;
}

void FigureShape::AddLine(double x1, double y1, double x2, double y2) {
    sides.push_back({static_cast<float>(x1), static_cast<float>(y1), static_cast<float>(x2), static_cast<float>(y2)});
}

} // namespace tallyvane
