/// The place of the main window, "QVXWindowData".
#include "diary/window_data.h"
#include "fuzz/fuzz.h"
#include "settings/data_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    Rect bounds;
    const auto load = [&bounds]() -> std::optional<std::string> {
        bounds = *WindowData::load();
        return std::to_string(bounds.left) + " " + std::to_string(bounds.top) + " " + std::to_string(bounds.width) +
               " " + std::to_string(bounds.height);
    };
    Fuzz::checkReader(DataFiles::windowData, Fuzz::textOf(data, size), load, [&bounds] { WindowData::save(bounds); });
    return 0;
}
