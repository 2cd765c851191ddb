/// The record of the running logs: one line of four fields, with a mark for each line end inside them.
#pragma once

#include <string>

#include "platform/files/text_output_stream.h"

namespace tallyvane {

/// The four logs as they stand in a record.
struct LogRecord {
    std::string exercise;
    std::string food;
    std::string journal;
    std::string medication;
};

/// Reads a record; fields that it lacks are empty.
LogRecord readLogRecord(TextInputStream& stream);
/// The record of the four globals, with its line end.
std::string logRecord();
/// Joins two versions of a record, line by line in each log, as UnsavedFiles::Join.
std::string joinLogRecords(const std::string& base, const std::string& here, const std::string& there);
/// A field with real line ends.
std::string withLineEnds(const std::string& field);

} // namespace tallyvane
