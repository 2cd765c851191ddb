#include "platform/qt/font_scale.h"

#include <QApplication>
#include <QFile>
#include <QFontInfo>
#include <QScreen>

#include <algorithm>
#include <unistd.h>

namespace tallyvane {

namespace {

constexpr double normalPoints = 10; // of the letters that the windows are laid out for
constexpr double largestPoints = 12; // of those that all windows have room for
constexpr double tolerance = 0.25; // a font of whole pixels is not of whole points

constexpr const char* scaleName = "QT_SCALE_FACTOR";
/// What the scale was before the process started anew; also the sign that it did.
constexpr const char* scaleBeforeName = "TALLYVANE_SCALE_BEFORE";

void setFontSize(double points) {
    QFont font = QApplication::font();
    font.setPointSizeF(std::min(points, largestPoints));
    QApplication::setFont(font);
}

double numberOr1(const QByteArray& text) {
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && number > 0 ? number : 1;
}

/// Programs that are started from here, a browser say, get the environment as the user has set it.
void restoreEnvironment() {
    const QByteArray before = qgetenv(scaleBeforeName);
    qunsetenv(scaleBeforeName);
    if (before.isEmpty())
        qunsetenv(scaleName);
    else
        qputenv(scaleName, before);
}

} // namespace

double FontScale::of(double points, QSize largestWindow, QSize room) {
    const double wanted = points / normalPoints;
    const double fitting = std::min(static_cast<double>(room.width()) / largestWindow.width(),
                                    static_cast<double>(room.height()) / largestWindow.height());
    return std::max(1.0, std::min(wanted, fitting));
}

void FontScale::apply() {
    const bool isStartedAnew = qEnvironmentVariableIsSet(scaleBeforeName);
    const double applied = isStartedAnew ? numberOr1(qgetenv(scaleName)) / numberOr1(qgetenv(scaleBeforeName)) : 1;
    if (isStartedAnew)
        restoreEnvironment();
    const double points = QFontInfo(QApplication::font()).pointSizeF();
    if (points <= normalPoints + tolerance)
        return;
    if (!isStartedAnew)
        if (const double scale = of(points, largestWindow_, QGuiApplication::primaryScreen()->availableSize());
            scale > 1)
            restart(scale);
    setFontSize(points / applied);
}

void FontScale::restart(double scale) {
    const QByteArray before = qgetenv(scaleName);
    qputenv(scaleBeforeName, before);
    qputenv(scaleName, QByteArray::number(numberOr1(before) * scale));

    std::vector<char*> arguments;
    for (std::string& argument : arguments_)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    ::execv(QFile::encodeName(QCoreApplication::applicationFilePath()).constData(), arguments.data());
    restoreEnvironment(); // it can't be restarted: the font is limited, and nothing grows
}

} // namespace tallyvane
