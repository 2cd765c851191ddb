/// The headings, "7VXHeadings".
#include "settings/headings.h"
#include "fuzz/fuzz.h"
#include "settings/data_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    Headings headings;
    const auto load = [&headings]() -> std::optional<std::string> {
        headings = *readHeadings();
        std::string told;
        for (const std::string& heading : headings)
            told += heading + "\n";
        return told;
    };
    Fuzz::checkReader(DataFiles::headings, Fuzz::textOf(data, size), load, [&headings] { saveHeadings(headings); });
    return 0;
}
