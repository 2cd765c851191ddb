/// While a file is being saved, a record of the save stands in a folder of the program's own: what file it is, what it
/// held before, and all that it is to hold. Whatever ends the save in the middle, the record tells what is to be done.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyvane {

/// Tells two contents apart: length and a checksum of 128 bits (XXH3).
struct Fingerprint {
    std::size_t length = 0;
    std::uint64_t high = 0;
    std::uint64_t low = 0;

    static Fingerprint of(std::string_view content);
    /// Of one behind the other.
    static Fingerprint of(std::string_view first, std::string_view second);
    bool operator==(const Fingerprint&) const = default;
};

struct SaveRecord {
    std::string path;
    Fingerprint before; // of the empty text for a file that was not there
    std::string content; // that the file is to hold

    /// The record in its file's text; nothing when that is not whole.
    static std::optional<SaveRecord> in(std::string_view text);
    bool operator==(const SaveRecord&) const = default;
};

namespace SaveRecords {

/// Sets the folder in which the records stand; "" for none, as at the start: saves then go without.
void useFolder(const std::string& path);

/// Writes the record and sees it to the disk, in place of an older one of the same file. Throws IOException when the
/// disk fails; nothing is done where the folder is not there or not to be written in.
void keep(const std::string& path, const Fingerprint& before, std::string_view content);
/// Whether there is a record for the file of that path.
bool isKept(const std::string& path);
/// Takes the record for the file of that path away, if there is one.
void drop(const std::string& path);

/// Takes away what saves have left of records that were never written to their end: their files are untouched.
void removeParts();
/// The paths of the records that stand in the folder.
[[nodiscard]] std::vector<std::string> all();

} // namespace SaveRecords
} // namespace tallyvane
