/// What could not be saved when the program was ended without anybody to ask: by a signal, or with the session. It is
/// kept in the user's folder for temporary state until a later start has offered it.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tallyvane::RescuedFiles {

/// A file that was kept.
struct Rescued {
    std::string what; // as the user knows it
    std::string name; // among the user's files
    std::string place; // the path where it belongs
    std::string keptAt; // the path where it is kept
    std::string when; // it was kept: "2026-11-23 14:05:09"
};

/// Keeps all unsaved files, each readable for its owner alone; those that are safe there no longer count as unsaved.
void keep();

/// The files to offer at a start: kept, and neither put back nor set aside; of each file only the newest copy.
std::vector<Rescued> pending();

/// Why a file could not be put in its place, for the user, and where it is kept from here on.
struct Failure {
    std::string why;
    std::string keptAt;
};

/// Writes a kept file back to its place. What stands there is first copied beside it, such as "7VXData before
/// 2026-11-23", and older kept copies are set aside. If writing fails the text becomes unsaved, so that it is shown now
/// and saved later, and it is not offered again.
std::optional<Failure> putInPlace(const Rescued& file);

/// Renames all kept copies of a file so that they are not offered again, and returns their new paths.
std::vector<std::string> setAside(const Rescued& file);

} // namespace tallyvane::RescuedFiles
