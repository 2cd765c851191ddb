#include "platform/drawing/font_name.h"

#include <functional>
#include <set>

namespace tallyvane {

FontName::FontName(std::string_view name) {
    static std::set<std::string, std::less<>> names;
    const auto found = names.find(name);
    name_ = found != names.end() ? &*found : &*names.emplace(name).first;
}

} // namespace tallyvane
