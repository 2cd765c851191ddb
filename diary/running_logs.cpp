#include "diary/running_logs.h"

#include "platform/base/date.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/files/system_files.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/log_record.h"
#include "settings/unsaved_files.h"

namespace tallyvane::RunningLogs {

namespace {

/// Keeps a journal in a dated file of the application's folder. Its path; "" when such a file holds the text already.
std::string keep(const std::string& journal) {
    const std::optional<FolderItem> folder = DataFiles::applicationFolder();
    if (!folder)
        return "";
    const std::string name = std::string(DataFiles::journal) + " " + Date().isoDate();
    const UnsavedFiles::NewCopy copy = UnsavedFiles::writeNewCopy(*folder, name, journal);
    return copy.isNew ? copy.path : "";
}

UnsavedFiles::UserFile userFile() {
    return UnsavedFiles::UserFile::ofApplication(tr("The journal and the logs"), DataFiles::runningLogs);
}

} // namespace

void save() { UnsavedFiles::save(userFile(), logRecord()); }

void saveIfChanged() { UnsavedFiles::saveIfChanged(userFile(), logRecord()); }

bool bringInChanges(const std::function<void(std::string)>& showJournal) {
    const std::optional<std::string> joined = UnsavedFiles::joinOutside(userFile(), logRecord(), joinLogRecords);
    if (!joined)
        return false;
    TextInputStream stream(*joined);
    const LogRecord record = readLogRecord(stream);
    Globals::gExercise = withLineEnds(record.exercise);
    Globals::gFood = withLineEnds(record.food);
    Globals::gMedication = withLineEnds(record.medication);
    if (const std::string journal = withLineEnds(record.journal); journal != Globals::gJournal)
        showJournal(journal);
    return true;
}

void setBaseline() { UnsavedFiles::setBaseline(userFile(), logRecord()); }

std::string load(const std::function<void(std::string)>& showJournal) {
    std::string journal;
    if (auto stream = UnsavedFiles::openText(userFile())) {
        const LogRecord record = readLogRecord(*stream);
        journal = withLineEnds(record.journal);
        Globals::gExercise = record.exercise;
        Globals::gFood = record.food;
        Globals::gJournal = record.journal;
        showJournal(journal);
        Globals::gMedication = record.medication;
    }
    auto stream = DataFiles::openText(DataFiles::applicationFile(DataFiles::journal));
    if (!stream)
        return "";
    const std::string text(stream->ReadAll());
    const bool holdsAll = ReplaceLineEndings(text, EndOfLine).find(journal) != std::string::npos;
    std::string kept;
    try {
        if (!holdsAll)
            kept = keep(journal);
    } catch (const IOException&) { // a full disk, say
        return "";
    }
    showJournal(text);
    return kept;
}

} // namespace tallyvane::RunningLogs
