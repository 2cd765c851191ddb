#include "diary/window_data.h"

#include <algorithm>

#include "platform/base/number.h"
#include "platform/files/system_files.h"
#include "settings/data_files.h"

namespace tallyvane::WindowData {

namespace {

/// A coordinate as far as a screen can have it, whatever the file says.
int coordinate(std::string_view line) {
    constexpr double limit = 32000;
    return static_cast<int>(std::clamp(Val(line), -limit, limit));
}

} // namespace

std::optional<Rect> load() {
    auto stream = DataFiles::openText(DataFiles::applicationFile(DataFiles::windowData));
    if (!stream)
        return std::nullopt;
    Rect bounds;
    for (int* value : {&bounds.left, &bounds.top, &bounds.width, &bounds.height})
        *value = coordinate(stream->ReadLine());
    return bounds;
}

void save(const Rect& bounds) {
    auto stream = DataFiles::createText(DataFiles::applicationFileToWrite(DataFiles::windowData));
    if (!stream)
        return;
    for (const int value : {bounds.left, bounds.top, bounds.width, bounds.height})
        stream->WriteLine(Str(value));
    try {
        stream->Close();
    } catch (const IOException&) { // ignored: only the window's place is lost
    }
}

} // namespace tallyvane::WindowData
