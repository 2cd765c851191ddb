/// What could not be saved when the program was ended without anybody to ask: by a signal, or with the session. It is
/// kept in the user's folder for temporary state until a later start has offered it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/date.h"
#include "platform/folder_item.h"

namespace tallyvane::RescuedFiles {

/// A file that was kept.
struct Rescued {
    std::string what; // as the user knows it
    std::string name; // within the folder that keeps it
    std::string place; // the path where it belongs
};

/// The files that were kept at one end of the program.
struct Set {
    FolderItem folder;
    std::vector<Rescued> files;
};

/// Keeps all unsaved files, each readable for its owner alone; those that are safe there no longer count as unsaved.
void keep();

/// The sets that no start has settled, the oldest first.
std::vector<Set> sets();

/// Puts the files of a set in their places, keeps what stood there beside them, such as "7VXData before 2026-11-23",
/// and takes the set away. Throws IOException when a disk fails or a place can't be written; the set is whole then.
void putInPlace(const Set& set, const Date& today);

/// Gives a set that the user does not want in place another name, so that it is not offered again. The folder's path.
std::string setAside(const Set& set, const Date& today);

} // namespace tallyvane::RescuedFiles
