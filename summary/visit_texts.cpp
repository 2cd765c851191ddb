#include "summary/visit_texts.h"

#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "settings/data_files.h"
#include "settings/unsaved_files.h"

namespace tallyvane::Summary {

namespace {

UnsavedFiles::UserFile userFile() {
    return UnsavedFiles::UserFile::ofApplication(tr("The texts of the page for the visit"), DataFiles::visitPage);
}

/// A line each, with marks for line ends within.
std::string fileTextOf(const VisitTexts& texts) {
    TextWriter lines;
    for (const std::string& text : {texts.patient, texts.questions})
        lines.WriteLine(ReplaceAll(text, EndOfLine, DataFiles::lineEndMark));
    return lines.text();
}

} // namespace

VisitTexts readVisitTexts() {
    VisitTexts texts;
    std::optional<TextInputStream> stream = UnsavedFiles::openText(userFile());
    if (!stream)
        return texts;
    for (std::string* text : {&texts.patient, &texts.questions})
        *text = ReplaceAll(stream->ReadLine(), DataFiles::lineEndMark, EndOfLine);
    UnsavedFiles::setBaseline(userFile(), fileTextOf(texts));
    return texts;
}

void saveVisitTexts(const VisitTexts& texts) {
    if (texts != VisitTexts() || UnsavedFiles::openText(userFile()))
        UnsavedFiles::save(userFile(), fileTextOf(texts));
}

std::vector<std::string> medicationLines() {
    const auto file = UnsavedFiles::UserFile::ofApplication({}, DataFiles::medications);
    std::optional<TextInputStream> stream = UnsavedFiles::openText(file);
    std::vector<std::string> lines;
    while (stream && !stream->EndOfFile()) {
        std::string line;
        for (FieldWalk fields(stream->ReadLine(), DataFiles::fieldSeparator); !fields.atEnd();)
            if (const std::string_view field = fields.next(); !field.empty())
                line.append(line.empty() ? "" : "  ").append(field);
        if (!line.empty())
            lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace tallyvane::Summary
