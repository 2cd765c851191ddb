#include "diary/window_data.h"

#include <algorithm>
#include <initializer_list>

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

void write(std::string_view file, std::initializer_list<int> lines) {
    auto stream = DataFiles::createText(DataFiles::applicationFileToWrite(file));
    if (!stream)
        return;
    for (const int line : lines)
        stream->WriteLine(Str(line));
    try {
        stream->Close();
    } catch (const IOException&) { // ignored: only the window's place is lost
    }
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

void save(const Rect& bounds) { write(DataFiles::windowData, {bounds.left, bounds.top, bounds.width, bounds.height}); }

int loadTableGrowth() {
    auto stream = DataFiles::openText(DataFiles::applicationFile(DataFiles::tableHeight));
    return stream ? coordinate(stream->ReadLine()) : 0;
}

void saveTableGrowth(int points) { write(DataFiles::tableHeight, {points}); }

} // namespace tallyvane::WindowData
