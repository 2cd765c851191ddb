#include "diary/running_logs.h"

#include "platform/text.h"
#include "settings/data_files.h"
#include "settings/globals.h"

namespace tallyvane::RunningLogs {

namespace {

std::string inOneLine(const std::string& text) { return ReplaceAll(text, EndOfLine, DataFiles::lineEndMark); }

} // namespace

void save() {
    std::optional<TextOutputStream> stream =
        DataFiles::createText(DataFiles::applicationFileToWrite(DataFiles::runningLogs));
    if (!stream)
        return;
    stream->Write(inOneLine(Globals::gExercise));
    for (const std::string* log : {&Globals::gFood, &Globals::gJournal, &Globals::gMedication}) {
        stream->Write(DataFiles::fieldSeparator);
        stream->Write(inOneLine(*log));
    }
    stream->WriteLine("");
    stream->Close();
}

void load(const std::function<void(std::string)>& showJournal) {
    if (auto stream = DataFiles::openText(DataFiles::applicationFile(DataFiles::runningLogs))) {
        FieldWalk fields(stream->ReadLine(), DataFiles::fieldSeparator);
        Globals::gExercise = fields.next();
        Globals::gFood = fields.next();
        Globals::gJournal = fields.next();
        showJournal(ReplaceAll(Globals::gJournal, DataFiles::lineEndMark, EndOfLine));
        Globals::gMedication = fields.next();
    }
    if (auto stream = DataFiles::openText(DataFiles::applicationFile(DataFiles::journal)))
        showJournal(std::string(stream->ReadAll()));
}

} // namespace tallyvane::RunningLogs
