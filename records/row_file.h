#pragma once

#include <string_view>

#include "platform/listbox.h"

namespace tallyvane {

/// A list in a file of the application's folder: a line for each row, its columns joined.
namespace RowFile {

/// Appends a row for each line; an empty file has one, which is empty. False, and no change, when there is no file.
/// With `replace` the list loses the rows that it had.
bool load(Listbox& list, std::string_view name, bool replace);
/// Writes all columns. Nothing when the file can't be had; throws IOException when the disk fails.
void save(const Listbox& list, std::string_view name);

} // namespace RowFile

} // namespace tallyvane
