#include "platform/drawing/surface_part.h"

namespace tallyvane {

Graphics& SurfacePart::drawer() const {
    whole_.ForeColor(ForeColor());
    whole_.PenWidth(PenWidth());
    whole_.PenHeight(PenHeight());
    whole_.TextFont(TextFont());
    whole_.TextSize(TextSize());
    whole_.Bold(Style().bold);
    whole_.Italic(Style().italic);
    whole_.Underline(Style().underline);
    return whole_;
}

} // namespace tallyvane
