#include "settings/log_record.h"

#include "platform/base/text.h"
#include "settings/data_files.h"
#include "settings/globals.h"

namespace tallyvane {

LogRecord readLogRecord(TextInputStream& stream) {
    FieldWalk fields(stream.ReadLine(), DataFiles::fieldSeparator);
    LogRecord record;
    for (std::string* field : {&record.exercise, &record.food, &record.journal, &record.medication})
        *field = fields.next();
    return record;
}

std::string logRecord() {
    std::string record;
    for (const std::string* log : {&Globals::gExercise, &Globals::gFood, &Globals::gJournal, &Globals::gMedication}) {
        if (log != &Globals::gExercise)
            record += DataFiles::fieldSeparator;
        record += ReplaceAll(*log, EndOfLine, DataFiles::lineEndMark);
    }
    return record + EndOfLine;
}

std::string withLineEnds(const std::string& field) { return ReplaceAll(field, DataFiles::lineEndMark, EndOfLine); }

} // namespace tallyvane
