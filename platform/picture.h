#pragma once

#include <string>
#include <utility>

namespace tallyvane {

/// A picture as a value: one of the program's own, by the name of its file among the resources ("over2.tiff"). It has
/// the file's size in points and is drawn as sharp as the surface is. One that is not there shows nothing.
class Picture {
public:
    explicit Picture(std::string file) : file_(std::move(file)) {}

    const std::string& File() const { return file_; }

    bool operator==(const Picture&) const = default;

private:
    std::string file_;
};

} // namespace tallyvane
