/// What the file layer asks of the operating system. One source a system realises it, chosen by the build.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/io_exception.h"

namespace tallyvane::SystemFiles {

enum class Kind { none, file, folder, other };

/// What stands at a path. A link is what it leads to.
Kind kindOf(const std::string& path);

/// The bytes of a plain file; 0 for anything else.
[[nodiscard]] std::uintmax_t sizeOf(const std::string& path);

/// Makes a folder that only its owner can enter, and all folders that it lacks above it. Those that can't be made are
/// missed by whoever writes there.
void makeFolders(const std::string& path);

/// Whether files can be made in a folder, as far as its rights and its disk's tell.
[[nodiscard]] bool canWriteIn(const std::string& folder);

/// Keeps the memory of this process, in which the diary is, out of core dumps and from other programs of the user.
void hideMemory();

/// Leaves a folder to its owner alone, if that is who runs the program: one that came from another computer may be open
/// to all.
void closeToOthers(const std::string& folder);

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

/// Gives a file another path on the same disk, in place of a file that may stand there. False when that can't be.
[[nodiscard]] bool moveOver(const std::string& from, const std::string& to);

/// Sees the names in the folder of that path to the disk: a file that was made, moved or removed there. False when the
/// disk fails.
[[nodiscard]] bool flushFolderOf(const std::string& path);

/// An exclusive lock (flock) on a folder while this object lives. If the process is killed, the lock ends with it.
class FolderLock {
public:
    /// Null when another process has the lock. Not null, but without a lock, when the folder can't be
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

} // namespace tallyvane::SystemFiles
