/// Files are replaced in place, and so that no end of the program or of the power leaves half a save.
#pragma once

#include <memory>
#include <string>

#include "platform/files/plain_file.h"

namespace tallyvane {

/// A file that is open to be replaced: same inode, nothing beside it. It may be open while the new text is still being
/// made; nothing in the file changes before `replace`.
class Replacement {
public:
    /// Whether a record of the save stands in the records' folder (SaveRecords) while the file is half written.
    enum class Recorded {
        always,
        unlessNew, // an export: what a cut leaves of a file that was not there replaces nothing
    };

    /// Opens the file, and makes one for its owner alone where there is none. Null for what is no plain file or can't
    /// be opened for writing; `why` then gets the reason, for the user.
    [[nodiscard]] static std::unique_ptr<Replacement> open(const std::string& path, Recorded recorded,
                                                           std::string* why = nullptr);

    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    /// Closes the file; one that was made by `open` and not replaced goes again.
    ~Replacement();

    /// Replaces the content by `text` and sees it to the disk; nothing for a text that stands there. Only the range
    /// that differs is written, after room was reserved. Throws IOException on failure. The old content is then put
    /// back; where the disk does not even let that be, the record stays, and the next start finishes the save.
    void replace(const std::string& text);

private:
    Replacement(std::unique_ptr<PlainFile> file, std::string path, Recorded recorded);
    void overwriteOrRestore(const std::string& before, const std::string& after);

    std::unique_ptr<PlainFile> file_;
    std::string path_;
    bool isRecorded_;
    bool wasRecorded_; // an earlier save has left a record: nobody knows what of it the disk has taken
    bool isReplaced_ = false;
};

/// Replaces the content of a file by `text`; creates the file if there is none. Throws IOException when it can't be
/// opened, and as Replacement::replace does.
void writeFile(const std::string& path, const std::string& text, Replacement::Recorded recorded);

} // namespace tallyvane
