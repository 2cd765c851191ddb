/// A table of many days to measure on, and the plain ways that the diary is measured against.
#pragma once

#include <string>
#include <vector>

#include "platform/controls/listbox.h"

namespace tallyvane::bench {

/// Text of a "7VXData" of so many days: seven readings with one decimal, some of them missing, and a weight.
std::string bigFile(int days);

/// Makes a new application folder with that day table in a temporary place, and the data folder of it. Removed at the
/// end of the process.
void settleFolder(const std::string& dayTable);

/// The averages computed from the cells in two full passes, with nothing remembered: column 8 of every row, then the
/// nine texts of the strip.
std::vector<std::string> plainAverages(Listbox& table);

/// The lines of the day table read from the disk and split into texts, and nothing else done with them.
std::vector<std::vector<std::string>> plainRead();

/// Bytes of the heap in use.
std::size_t heapInUse();

} // namespace tallyvane::bench
