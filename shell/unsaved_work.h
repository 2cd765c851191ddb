/// What the user is told and asked about files that could not be saved or read: at the end of the program, and at the
/// start after an end with nobody to ask.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/files/folder_item.h"
#include "settings/unfinished_saves.h"

namespace tallyvane::UnsavedWork {

enum class Outcome {
    saved, // in their places, or elsewhere
    givenUp,
    unanswered, // the program was ended meanwhile
};

/// Asks what to do about the files that still wait for a disk, until none waits or the user gives them up.
[[nodiscard]] Outcome ask();

/// Tells whether files in a folder may be written: false while another program has the folder locked.
using FolderCheck = std::function<bool(const std::optional<FolderItem>& folder)>;

/// Offers what was kept at an end with nobody to ask. False when the program was ended before the user had answered.
[[nodiscard]] bool offerRescued(const FolderCheck& mayWriteIn);

/// Asks about each file that is larger than any diary, before it is read. False when it is not to be read: the program
/// then ends, and the file stays as it is.
[[nodiscard]] bool mayReadHuge();

/// Offers the daily copies of files that are damaged. False when the program was ended before the user had answered.
[[nodiscard]] bool offerCopies();

/// Tells of files that were found half saved.
void reportFinished(const std::vector<UnfinishedSaves::Finished>& files);

/// Tells of the user's files in whose place stands something that can be neither read nor written.
void reportUnreadable();

} // namespace tallyvane::UnsavedWork
