/// Files of the user that are found damaged at a start, and the daily copies that hold more.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/base/date.h"
#include "settings/unsaved_files.h"

namespace tallyvane::DamagedFiles {

/// A copy of a file that is missing, empty, cut off or has lost blocks.
struct Copy {
    UnsavedFiles::UserFile file;
    Date day;
    std::string path;
    int days = 0; // in a copy of the table
    int daysOfTable = 0; // whole ones that the table still has
};

/// Whether the table is there and can't be read, so that nobody knows what it holds.
[[nodiscard]] bool tableIsUnreadable();

/// Of the files that are read at the start, those that are larger than any diary: the table of a life, 30,000 days,
/// takes 2 megabytes. Reading one takes long, and many times its size of memory.
[[nodiscard]] std::vector<std::string> hugeFiles();

/// Whether each line of a table is a day with its eleven fields and its key.
[[nodiscard]] bool isWholeTable(const std::string& table);

/// For the table, and for the two files of journal and logs: the newest copy that holds more than a file that is not
/// whole. Of a table more whole days count, each with its eleven fields and its key; of the others more text. Copies
/// dated after today are tried last. None for the table while the user's data folder is missing; copies of a table in
/// another folder do not count.
[[nodiscard]] std::vector<Copy> findFullerCopies(const Date& today);

/// Keeps what the file holds now under another name beside it, such as "7VXData damaged 2026-11-22" or "... 2", and
/// tells that name; "" where there is nothing to keep. Throws IOException when the disk fails.
std::string keep(const Copy& copy, const Date& today);

/// Puts the copy in the file's place. Why that can't be, for the user: the copy is then unsaved, so that it is shown,
/// and saved as soon as that is possible. It is not even tried where what the file holds could not be kept:
/// `whyNotKept` tells why, or is empty.
[[nodiscard]] std::string restore(const Copy& copy, const std::string& whyNotKept);

} // namespace tallyvane::DamagedFiles
