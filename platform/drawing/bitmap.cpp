#include "platform/drawing/bitmap.h"

#include "platform/drawing/unseen_graphics.h"

namespace tallyvane {

namespace {

class UnseenBitmap : public Bitmap {
public:
    UnseenBitmap(int width, int height) : surface_(width, height) {}
    Graphics& surface() override { return surface_; }
    void changePixels(const std::function<Pixel(Pixel)>& /*change*/) override {}

private:
    UnseenGraphics surface_;
};

} // namespace

std::shared_ptr<Bitmap> Bitmaps::make(int width, int height) { return std::make_shared<UnseenBitmap>(width, height); }

} // namespace tallyvane
