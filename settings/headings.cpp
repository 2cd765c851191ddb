#include "settings/headings.h"

#include "platform/translation.h"
#include "settings/data_files.h"
#include "settings/unsaved_files.h"

namespace tallyvane {

Headings defaultHeadings() {
    return {tr("Breakfast"), tr("Lunch"),  tr("Supper"), tr("Weight"),     tr("Before"),  tr("After"), tr("Before"),
            tr("After"),     tr("Before"), tr("After"),  tr("Before Bed"), tr("Average"), tr("Weight")};
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
    TextWriter lines;
    for (const std::string& heading : headings)
        lines.WriteLine(heading);
    UnsavedFiles::save(
        {tr("The headings"), std::string(DataFiles::headings), DataFiles::applicationFileToWrite(DataFiles::headings)},
        lines.text());
}

} // namespace tallyvane
