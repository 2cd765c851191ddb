#pragma once

#include <QIcon>
#include <QSize>

#include <string>

namespace tallyvane {

/// A picture of the program's resources, loaded on first use and kept. One that can't be loaded is empty.
struct LoadedPicture {
    QIcon icon;
    QSize size; // in points
};
const LoadedPicture& loadPicture(const std::string& file);

} // namespace tallyvane
