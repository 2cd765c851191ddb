#include "support/test_desk.h"

#include "platform/base/date.h"
#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/files/text_output_stream.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/prefs_module.h"
#include "settings/unsaved_files.h"

namespace tallyvane {

void TestDesk::SetUp() {
    PlatformDesk::SetUp();
    UnsavedFiles::forgetAll();
    StartupGlobals::gDataFolder.reset();
    StartupGlobals::gMissingDataFolder.clear();
    PrefsModule::gDataLocation.clear();
    Globals::gOver = 13.0;
    Globals::gCaution = 9.0;
    Globals::gLow = 5.0;
    Globals::gUnder = 3.0;
    Globals::gShowIndicators = true;
    Globals::gIncludeMeds = Globals::gIncludeExercise = Globals::gIncludeFood = false;
    for (std::string* log : {&Globals::gExercise, &Globals::gFood, &Globals::gJournal, &Globals::gMedication})
        log->clear();
    Globals::gFileWindowOpen = Globals::gFilesOpen = Globals::gPrintingOn = false;
    Globals::ps.reset();
}

void TestDesk::useApplicationFolder() const {
    makeApplicationFolder();
    StartupGlobals::gDataFolder = DataFiles::applicationFolder();
}

std::string TestDesk::wholeDays(int count) {
    std::string lines;
    for (int day = 1; day <= count; ++day)
        lines += "1/" + std::to_string(day) + "/2026@#@5.5@#@@#@@#@@#@@#@@#@@#@5.5\n";
    return asSaved(lines);
}

std::string TestDesk::asSaved(const std::string& lines) {
    constexpr int fields = 11;
    TextInputStream stream(lines);
    TextWriter saved;
    while (!stream.EndOfFile()) {
        FieldWalk walk(stream.ReadLine(), DataFiles::fieldSeparator);
        Texts texts(fields);
        for (std::string& text : texts)
            text = walk.next();
        if (const std::optional<Date> date = ParseDate(texts.front()))
            texts.back() = Format(date->TotalSeconds(), "000000000000");
        saved.WriteFields(texts, DataFiles::fieldSeparator);
    }
    return saved.text();
}

} // namespace tallyvane
