#include "platform/drawing/bitmap.h"

#include "platform/drawing/null_graphics.h"

namespace tallyvane {

namespace {

class NullBitmap : public Bitmap {
public:
    NullBitmap(int width, int height) : surface_(width, height) {}
    Graphics& surface() override { return surface_; }
    void changePixels(const std::function<Pixel(Pixel)>& /*change*/) override {}

private:
    NullGraphics surface_;
};

} // namespace

std::shared_ptr<Bitmap> Bitmaps::make(int width, int height) { return std::make_shared<NullBitmap>(width, height); }

} // namespace tallyvane
