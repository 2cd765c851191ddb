#include "settings/log_record.h"

#include <array>
#include <tuple>

#include "platform/base/text.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/line_merge.h"

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

std::string joinLogRecords(const std::string& base, const std::string& here, const std::string& there) {
    const auto fieldsOf = [](const std::string& text) {
        TextInputStream stream(text);
        const LogRecord record = readLogRecord(stream);
        return std::array{record.exercise, record.food, record.journal, record.medication};
    };
    const auto [ofBase, ofHere, ofThere] = std::tuple(fieldsOf(base), fieldsOf(here), fieldsOf(there));
    TextWriter joined;
    std::array<std::string, 4> fields;
    for (std::size_t i = 0; i < fields.size(); ++i)
        fields[i] = joinParts(ofBase[i], ofHere[i], ofThere[i], DataFiles::lineEndMark);
    joined.WriteFields(fields, DataFiles::fieldSeparator);
    return joined.text();
}

std::string withLineEnds(const std::string& field) { return ReplaceAll(field, DataFiles::lineEndMark, EndOfLine); }

} // namespace tallyvane
