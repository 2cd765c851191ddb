#include "diary/day_details.h"

#include "platform/base/text.h"
#include "settings/data_files.h"
#include "settings/log_record.h"

namespace tallyvane {

namespace {

constexpr std::string_view endOfMedications = "endofmeds";
constexpr std::string_view betweenTexts = "     ";

} // namespace

DayDetails DayDetails::of(const Date& day) {
    DayDetails details;
    const std::optional<FolderItem> folder = DataFiles::applicationFile(DataFiles::details);
    std::optional<TextInputStream> stream = DataFiles::openText(folder ? folder->Child(day.ShortDate()) : std::nullopt);
    if (!stream)
        return details;
    std::string_view line;
    do {
        line = stream->ReadLine();
        if (line != endOfMedications) {
            FieldWalk texts(line, DataFiles::subfieldSeparator);
            details.medications += texts.next();
            for (int i = 0; i < 2; ++i) {
                details.medications += betweenTexts;
                details.medications += texts.next();
            }
            details.medications += EndOfLine;
        }
        ++details.medicationLines;
    } while (line != endOfMedications && !stream->EndOfFile());
    details.food = withLineEnds(std::string(stream->ReadLine()));
    details.exercise = withLineEnds(std::string(stream->ReadLine()));
    return details;
}

} // namespace tallyvane
