#include "settings/headings.h"

#include "settings/data_files.h"

namespace tallyvane {

const Headings& defaultHeadings() {
    static const Headings headings{"Breakfast", "Lunch",  "Supper", "Weight",     "Before",  "After", "Before",
                                   "After",     "Before", "After",  "Before Bed", "Average", "Weight"};
    return headings;
}

std::optional<Headings> readHeadings() {
    std::optional<TextInputStream> stream = DataFiles::openText(DataFiles::applicationFile(DataFiles::headings));
    if (!stream)
        return std::nullopt;
    Headings headings;
    for (std::string& heading : headings)
        heading = stream->ReadLine();
    return headings;
}

void saveHeadings(const Headings& headings) {
    std::optional<TextOutputStream> stream =
        DataFiles::createText(DataFiles::applicationFileToWrite(DataFiles::headings));
    if (!stream)
        return;
    for (const std::string& heading : headings)
        stream->WriteLine(heading);
    stream->Close();
}

} // namespace tallyvane
