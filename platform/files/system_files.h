/// What the file layer asks of the operating system. One source a system realises it, chosen by the build.
#pragma once

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace tallyvane {

/// A file or folder could not be made, opened, read or written. `Replacement::replace` says what a file then holds.
class IOException : public std::runtime_error {
public:
    /// `why` is for the user, such as "No space left on device"; `what` names the path too.
    explicit IOException(const std::string& what, std::string why = "")
        : std::runtime_error(why.empty() ? what : what + ": " + why), why_(std::move(why)) {}

    const std::string& why() const { return why_; }

private:
    std::string why_;
};

namespace SystemFiles {

enum class Kind { none, file, folder, other };

/// What stands at a path. A link is what it leads to.
Kind kindOf(const std::string& path);

/// Makes a folder that only its owner can enter, and all folders that it lacks above it. Those that can't be made are
/// missed by whoever writes there.
void makeFolders(const std::string& path);

/// The names of what a folder holds, sorted; none for what is no folder or can't be read.
[[nodiscard]] std::vector<std::string> namesIn(const std::string& path);

/// Makes a folder that only its owner can enter. False when it could not be made.
[[nodiscard]] bool makeFolder(const std::string& path);

/// Takes a plain file away. False when there was none or it could not go.
[[nodiscard]] bool remove(const std::string& path);

/// Takes a folder away that holds nothing; leaves any other alone.
void removeEmptyFolder(const std::string& path);

/// Takes a folder away with all that it holds, as far as that can go.
void removeFolder(const std::string& path);

/// Gives a file or a folder another path on the same disk. False when it can't have it, or when something stands there.
[[nodiscard]] bool rename(const std::string& from, const std::string& to);

/// The whole content of a file; nothing for what is no plain file, can't be read or is larger than a gigabyte.
[[nodiscard]] std::optional<std::string> read(const std::string& path);

/// A file that is open to be replaced in place: same inode, no second file. It may be open while the new text is
/// still being made; nothing in the file changes before `replace`.
class Replacement {
public:
    /// Opens the file, and makes one for its owner alone where there is none. Null for what is no plain file or
    /// can't be opened for writing; `why` then gets the reason, for the user.
    [[nodiscard]] static std::unique_ptr<Replacement> open(const std::string& path, std::string* why = nullptr);

    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    /// Closes the file; one that was made by `open` and not replaced goes again.
    ~Replacement();

    /// Replaces the content by `text` and flushes it to disk. Only the range that differs is written, after space was
    /// reserved, and the write is completed even if the program is killed meanwhile. Throws IOException on failure; the
    /// old content is then restored as far as the disk allows, unless just the last step (folder entry, close) fails.
    void replace(const std::string& text);

private:
    Replacement(int file, std::string path, bool made);

    int file_;
    std::string path_;
    bool made_;
};

/// Replaces the content of a file by `text`; creates the file if there is none. Throws IOException when it can't be
/// opened, and as Replacement::replace does.
void write(const std::string& path, const std::string& text);

/// An exclusive lock (flock) on a folder while this object lives. If the process is killed, the lock ends with it, or
/// with its writer process if that is still saving.
class FolderLock {
public:
    /// Null when another process keeps the lock for 0.4 seconds. Not null, but without a lock, when the folder can't be
    /// opened or its file system has no locks.
    [[nodiscard]] static std::unique_ptr<FolderLock> acquire(const std::string& path);

    /// Whether that path leads to the folder that is held, by whatever way.
    bool holds(const std::string& path) const;

    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock();

private:
    explicit FolderLock(int file);

    int file_;
};

} // namespace SystemFiles
} // namespace tallyvane
