#pragma once

#include <string>
#include <string_view>

namespace tallyvane {

/// A picture as a value: one of the program's own, by the name of its file among the resources ("over2.tiff"). It has
/// the file's size in points and is drawn as sharp as the surface is. One that is not there shows nothing.
class Picture {
public:
    constexpr explicit Picture(std::string_view file) : file_(file) {}

    std::string File() const { return std::string(file_); }

    bool operator==(const Picture&) const = default;

private:
    std::string_view file_; // a literal of the program
};

} // namespace tallyvane
