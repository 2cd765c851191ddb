/// Values between the diary's types and Qt's.
#pragma once

#include <QColor>
#include <QDate>
#include <QRect>
#include <QString>

#include "platform/base/date.h"
#include "platform/base/text.h"
#include "platform/drawing/geometry.h"

namespace tallyvane {

/// Of a cell, a heading or a label no more is shown: longer texts find no room, and laying out megabytes takes minutes.
inline constexpr int mostCharacters = 200;

/// Bytes that are not UTF-8 show as U+FFFD.
inline QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline QColor toQt(Color color) { return QColor::fromRgb(color); }
inline QRect toQt(const Rect& rect) { return {rect.left, rect.top, rect.width, rect.height}; }
inline QDate toQt(const Date& date) { return {date.Year(), date.Month(), date.Day()}; }

inline std::string fromQt(const QString& text) { return text.toStdString(); }
inline Date fromQt(const QDate& date) { return {date.year(), date.month(), date.day()}; }

/// Characters in the first `units` UTF-16 units of a text.
inline int charactersIn(const QString& text, qsizetype units) { return Len(fromQt(text.left(units))); }
/// UTF-16 units of the first `characters` characters.
inline int unitsOf(const QString& text, int characters) {
    return static_cast<int>(toQt(Left(fromQt(text), characters)).size());
}

} // namespace tallyvane
