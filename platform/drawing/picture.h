#pragma once

#include <cassert>
#include <memory>
#include <string>
#include <utility>

#include "platform/drawing/bitmap.h"
#include "platform/drawing/shapes.h"

namespace tallyvane {

/// A picture as a value, of one of three kinds: one of the program's own, by the name of its file among the resources
/// ("over2.tiff"), which has the file's size in points and is drawn as sharp as the surface is, and shows nothing if
/// the file is not there; a list of shapes, which scales without loss; or a bitmap, whose copies share their pixels.
class Picture {
public:
    explicit Picture(std::string file) : file_(std::move(file)) {}
    /// An empty picture of that size: depth 0 makes one of shapes, any other depth a bitmap.
    Picture(int width, int height, int depth);

    /// "" for a picture that is no resource.
    const std::string& File() const { return file_; }
    /// In points; 0 for a resource, whose size its file has.
    int Width() const { return width_; }
    int Height() const { return height_; }

    /// The shapes, in places relative to the picture's top left corner. The picture does not cut them off.
    Group2D& Objects() { return objects_; }
    const Group2D& Objects() const { return objects_; }

    /// The surface of a bitmap. No other kind of picture has one.
    tallyvane::Graphics& Graphics() const {
        assert(bitmap_ != nullptr);
        return bitmap_->surface();
    }
    /// Null for a picture that is no bitmap.
    tallyvane::Bitmap* Bitmap() const { return bitmap_.get(); }

    bool operator==(const Picture&) const = default;

private:
    std::string file_;
    int width_ = 0;
    int height_ = 0;
    Group2D objects_;
    std::shared_ptr<tallyvane::Bitmap> bitmap_;
};

} // namespace tallyvane
