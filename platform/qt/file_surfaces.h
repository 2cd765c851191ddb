/// Surfaces that end in files, for programs without a window.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/drawing/graphics.h"

namespace tallyvane {

/// Lets drawings go into files. There is one at a time, and no other program on Qt beside it; while it lives, bitmaps
/// and fonts are those of Qt, without a display.
class FileSurfaces {
public:
    using Drawing = std::function<void(Graphics& g)>;

    FileSurfaces(int& argc, char** argv);
    FileSurfaces(const FileSurfaces&) = delete;
    FileSurfaces& operator=(const FileSurfaces&) = delete;
    ~FileSurfaces();

    /// Writes a picture of so many dots, on white ground; the ending of the path says of what kind. False when it could
    /// not be written.
    [[nodiscard]] bool writePicture(const std::string& path, int width, int height, const Drawing& draw) const;
    /// Writes a PDF of pages of so many dots, a page for each drawing. False when it could not be written.
    [[nodiscard]] bool writePdf(const std::string& path, int width, int height, int dotsPerInch,
                                const std::vector<Drawing>& pages) const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace tallyvane
