#pragma once

#include <string>
#include <string_view>

namespace tallyvane {

/// The name of a font family, as small as a pointer: names are few and stand in thousands of shapes, so each is kept
/// once, to the end of the program. For the one thread that draws.
class FontName {
public:
    FontName(std::string_view name = "System");
    FontName(const char* name) : FontName(std::string_view(name)) {}
    FontName(const std::string& name) : FontName(std::string_view(name)) {}
    operator const std::string&() const { return *name_; }

    bool operator==(const FontName&) const = default;

private:
    const std::string* name_;
};

/// How letters are set off.
struct TextStyle {
    bool bold = false;
    bool italic = false;
    bool underline = false;

    bool operator==(const TextStyle&) const = default;
};

} // namespace tallyvane
