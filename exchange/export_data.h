#pragma once

#include <optional>
#include <string>

#include "platform/controls/listbox.h"
#include "platform/files/folder_item.h"

namespace tallyvane {

/// The file name extension of an export.
inline constexpr const char* exportExtension = ".txt";

/// Writes all days, in their present order, into a text file for other programs: a line for each, the ten visible cells
/// unchanged with the delimiter between them. There is no quoting; a cell that holds the delimiter reads back as two.
///
/// The file's name gets ".txt" at its end, unless it has it or another file bears that name. Nothing without a target
/// and for one that can't be opened; throws IOException when the disk fails.
void ExportData(const Listbox& days, const std::string& delimiter, const std::optional<FolderItem>& target);

} // namespace tallyvane
