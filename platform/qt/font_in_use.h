#pragma once

#include <QFontMetricsF>
#include <QPaintDevice>

#include <optional>

#include "platform/shapes.h"

namespace tallyvane {

/// The font that a painter wrote with last, so that a run of texts in one font works it out once.
class FontInUse {
public:
    /// The font of that name, its size in units of the device, and its measures there. "System" is the desktop's own.
    const QFont& font(FontName name, float size, QPaintDevice& device) { return known(name, size, device).font; }
    const QFontMetricsF& metrics(FontName name, float size, QPaintDevice& device) {
        return known(name, size, device).metrics;
    }

private:
    struct Known {
        FontName name;
        float size;
        QFont font;
        QFontMetricsF metrics;
    };
    const Known& known(FontName name, float size, QPaintDevice& device);

    std::optional<Known> known_;
};

} // namespace tallyvane
