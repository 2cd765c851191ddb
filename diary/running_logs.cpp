#include "diary/running_logs.h"

#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/log_record.h"

namespace tallyvane::RunningLogs {

void save() {
    std::optional<TextOutputStream> stream =
        DataFiles::createText(DataFiles::applicationFileToWrite(DataFiles::runningLogs));
    if (!stream)
        return;
    writeLogRecord(*stream);
    stream->Close();
}

void load(const std::function<void(std::string)>& showJournal) {
    if (auto stream = DataFiles::openText(DataFiles::applicationFile(DataFiles::runningLogs))) {
        const LogRecord record = readLogRecord(*stream);
        Globals::gExercise = record.exercise;
        Globals::gFood = record.food;
        Globals::gJournal = record.journal;
        showJournal(withLineEnds(record.journal));
        Globals::gMedication = record.medication;
    }
    if (auto stream = DataFiles::openText(DataFiles::applicationFile(DataFiles::journal)))
        showJournal(std::string(stream->ReadAll()));
}

} // namespace tallyvane::RunningLogs
