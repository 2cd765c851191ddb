#pragma once

#include <string>
#include <string_view>

#include "platform/controls/listbox.h"

namespace tallyvane {

/// A list in a file of the application's folder: a line for each row, its columns joined.
namespace RowFile {

/// Appends a row for each line; an empty file has one, which is empty. False, and no change, when there is no file.
/// With `replace` the list loses the rows that it had.
bool load(Listbox& list, std::string_view name, bool replace);
/// Writes all columns; `what` is the list as the user knows it. When the file can't be had the rows wait among the
/// unsaved files; so they do when the disk fails, which throws IOException.
void save(const Listbox& list, const std::string& what, std::string_view name);
/// Takes down that the list, as it stands, is what was read.
void startedFrom(const Listbox& list, const std::string& what, std::string_view name);

} // namespace RowFile

} // namespace tallyvane
