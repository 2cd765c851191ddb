#include "platform/qt/font_in_use.h"

#include <QGuiApplication>

#include <algorithm>

#include "platform/qt/convert.h"

namespace tallyvane {

namespace {

QFont fontOf(const std::string& name, float size, TextStyle style, const QPaintDevice& device) {
    constexpr double pointsPerInch = 72;
    QFont font = QGuiApplication::font();
    if (name != "System")
        font.setFamily(toQt(name));
    // By points and the device's resolution, since pixel sizes of fonts are whole and a print needs 37.5.
    font.setPointSizeF(std::max(1.0, static_cast<double>(size)) * pointsPerInch / device.logicalDpiY());
    // Paper has no pixels to fit letters to. Qt also keeps these letters apart from those on the screen that way:
    // shared ones would take over the printer's idea of a point, and menus would be written in dots.
    if (device.devType() == QInternal::Printer)
        font.setHintingPreference(QFont::PreferNoHinting);
    font.setBold(style.bold);
    font.setItalic(style.italic);
    font.setUnderline(style.underline);
    return font;
}

} // namespace

const FontInUse::Known& FontInUse::known(FontName name, float size, TextStyle style) {
    if (!known_ || known_->name != name || known_->size != size || known_->style != style) {
        const QFont font = fontOf(name, size, style, device_);
        known_.emplace(Known{name, size, style, font, QFontMetricsF(font, &device_)});
    }
    return *known_;
}

} // namespace tallyvane
