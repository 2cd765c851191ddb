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

constexpr const char* scaleName = "QT_SCALE_FACTOR";
/// What the scale was before the process started anew; also the sign that it did.
constexpr const char* scaleBeforeName = "TALLYVANE_SCALE_BEFORE";

void limitFontSize() {
    QFont font = QApplication::font();
    font.setPointSizeF(normalPoints);
    QApplication::setFont(font);
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
    if (isStartedAnew)
        restoreEnvironment();
    const double points = QFontInfo(QApplication::font()).pointSizeF();
    if (points <= normalPoints)
        return;
    const double scale = of(points, largestWindow_, QGuiApplication::primaryScreen()->availableSize());
    if (!isStartedAnew && scale > 1)
        restart(scale);
    limitFontSize();
}

void FontScale::restart(double scale) {
    const QByteArray before = qgetenv(scaleName);
    bool isNumber = false;
    const double outer = before.toDouble(&isNumber);
    qputenv(scaleBeforeName, before);
    qputenv(scaleName, QByteArray::number(isNumber ? outer * scale : scale));

    std::vector<char*> arguments;
    for (std::string& argument : arguments_)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    ::execv(QFile::encodeName(QCoreApplication::applicationFilePath()).constData(), arguments.data());
    restoreEnvironment(); // it can't be restarted: the font is limited, and nothing grows
}

} // namespace tallyvane
