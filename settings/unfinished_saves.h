/// Saves that the last run could not bring to their end, since the program or the power was cut off.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/folder_item.h"

namespace tallyvane::UnfinishedSaves {

/// A file that was found half saved and has been finished.
struct Finished {
    std::string path;
    std::string keptAt; // what the file held
};

/// Brings every save that left a record to its end, before anything is read: a file that still holds what it held
/// before the save gets the new text, and one that holds the new text is left alone. One that holds neither is kept
/// beside, such as "7VXData damaged 2026-11-23", and gets the new text; these are returned. Where a disk does not take
/// the text it becomes unsaved, so that it is shown and saved later. Records for folders that are not there, or that
/// `mayWriteIn` refuses, are left for a later start.
[[nodiscard]] std::vector<Finished>
finishAll(const std::function<bool(const std::optional<FolderItem>& folder)>& mayWriteIn);

} // namespace tallyvane::UnfinishedSaves
