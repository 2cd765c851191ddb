#include "settings/headings.h"

#include "platform/base/translation.h"
#include "settings/data_files.h"
#include "settings/unsaved_files.h"

namespace tallyvane {

namespace {

UnsavedFiles::UserFile userFile() {
    return UnsavedFiles::UserFile::ofApplication(tr("The headings"), DataFiles::headings);
}

} // namespace

Headings defaultHeadings() {
    return {tr("Breakfast"), tr("Lunch"),  tr("Supper"), tr("Weight"),     tr("Before"),  tr("After"), tr("Before"),
            tr("After"),     tr("Before"), tr("After"),  tr("Before Bed"), tr("Average"), tr("Weight")};
}

std::optional<Headings> readHeadings() {
    std::optional<TextInputStream> stream = UnsavedFiles::openText(userFile());
    if (!stream)
        return std::nullopt;
    Headings headings;
    for (std::string& heading : headings)
        heading = stream->ReadLine();
    return headings;
}

namespace {

std::string textOf(const Headings& headings) {
    TextWriter lines;
    for (const std::string& heading : headings)
        lines.WriteLine(heading);
    return lines.text();
}

} // namespace

void saveHeadings(const Headings& headings) { UnsavedFiles::save(userFile(), textOf(headings)); }

void setHeadingsBaseline(const Headings& headings) { UnsavedFiles::setBaseline(userFile(), textOf(headings)); }

} // namespace tallyvane
