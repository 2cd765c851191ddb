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

/// What no start has settled: of each file the one that was kept last.
std::vector<Rescued> offered();

/// Why a file could not be put in its place, for the user, and where it is kept from here on.
struct Failure {
    std::string why;
    std::string keptAt;
};

/// Puts a file in its place, keeps what stood there beside it, such as "7VXData before 2026-11-23", and sets aside what
/// was kept of it before. When that can't be, the file waits among the unsaved ones, so that it is read and saved
/// later, and is not offered again.
std::optional<Failure> putInPlace(const Rescued& file);

/// Leaves all that was kept of a file where it is, under names by which it is not offered again. The paths.
std::vector<std::string> setAside(const Rescued& file);

} // namespace tallyvane::RescuedFiles
