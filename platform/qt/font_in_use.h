#pragma once

#include <QFontMetricsF>
#include <QPaintDevice>

#include <optional>

#include "platform/drawing/font_name.h"

namespace tallyvane {

/// The font that was used last on a device, so that a run of texts in one font works it out once.
class FontInUse {
public:
    explicit FontInUse(QPaintDevice& device) : device_(device) {}

    /// The font of that name, its size in units of the device, and its measures there. "System" is the desktop's own.
    const QFont& font(FontName name, float size, TextStyle style = {}) { return known(name, size, style).font; }
    const QFontMetricsF& metrics(FontName name, float size, TextStyle style = {}) {
        return known(name, size, style).metrics;
    }

private:
    struct Known {
        FontName name;
        float size;
        TextStyle style;
        QFont font;
        QFontMetricsF metrics;
    };
    const Known& known(FontName name, float size, TextStyle style);

    QPaintDevice& device_;
    std::optional<Known> known_;
};

} // namespace tallyvane
