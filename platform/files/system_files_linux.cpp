#include "platform/files/system_files.h"

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/files/plain_file.h"

namespace tallyvane::SystemFiles {

namespace {

constexpr mode_t ownerOnlyFolder = S_IRWXU;

bool hasNul(const std::string& path) { return path.find('\0') != std::string::npos; }

bool flush(int file) {
    int result = 0;
    do
        result = ::fsync(file);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

} // namespace

Kind kindOf(const std::string& path) {
    struct stat status {};
    if (hasNul(path) || ::stat(path.c_str(), &status) != 0)
        return Kind::none;
    if (S_ISREG(status.st_mode))
        return Kind::file;
    return S_ISDIR(status.st_mode) ? Kind::folder : Kind::other;
}

std::uintmax_t sizeOf(const std::string& path) {
    struct stat status {};
    const bool isFile = !hasNul(path) && ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
    return isFile ? static_cast<std::uintmax_t>(status.st_size) : 0;
}

bool makeFolder(const std::string& path) {
    if (hasNul(path) || ::mkdir(path.c_str(), ownerOnlyFolder) != 0)
        return false;
    static_cast<void>(flushFolderOf(path)); // what will be saved in it must not vanish with it
    return true;
}

void makeFolders(const std::string& path) {
    for (std::size_t end = path.find('/', 1); end != std::string::npos; end = path.find('/', end + 1))
        static_cast<void>(makeFolder(path.substr(0, end))); // mostly it is there
    static_cast<void>(makeFolder(path));
}

bool canWriteIn(const std::string& folder) { return !hasNul(folder) && ::access(folder.c_str(), W_OK | X_OK) == 0; }

void hideMemory() { ::prctl(PR_SET_DUMPABLE, 0); }

void closeToOthers(const std::string& folder) {
    struct stat status {};
    if (!hasNul(folder) && ::stat(folder.c_str(), &status) == 0 && status.st_uid == ::geteuid() &&
        (status.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        ::chmod(folder.c_str(), status.st_mode & S_IRWXU);
}

std::vector<std::string> namesIn(const std::string& path) {
    std::vector<std::string> names;
    DIR* const folder = hasNul(path) ? nullptr : ::opendir(path.c_str());
    if (folder == nullptr)
        return names;
    while (const dirent* entry = ::readdir(folder))
        if (const std::string name = entry->d_name; name != "." && name != "..")
            names.push_back(name);
    ::closedir(folder);
    std::sort(names.begin(), names.end());
    return names;
}

void removeEmptyFolder(const std::string& path) {
    if (!hasNul(path))
        ::rmdir(path.c_str());
}

void removeFolder(const std::string& path) {
    std::error_code failed;
    if (!hasNul(path))
        std::filesystem::remove_all(path, failed);
}

bool remove(const std::string& path) { return kindOf(path) == Kind::file && ::unlink(path.c_str()) == 0; }

bool rename(const std::string& from, const std::string& to) {
    if (hasNul(from) || hasNul(to))
        return false;
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    const bool isUnknown = errno == EINVAL || errno == ENOSYS; // to some disks
    if (isUnknown && kindOf(from) == Kind::folder)
        return kindOf(to) == Kind::none && ::rename(from.c_str(), to.c_str()) == 0;
    return isUnknown && ::link(from.c_str(), to.c_str()) == 0 && ::unlink(from.c_str()) == 0;
}

std::optional<std::string> read(const std::string& path) {
    const std::unique_ptr<PlainFile> file = PlainFile::openToRead(path);
    return file ? file->read() : std::nullopt;
}

bool moveOver(const std::string& from, const std::string& to) { return ::rename(from.c_str(), to.c_str()) == 0; }

bool flushFolderOf(const std::string& path) {
    const int folder = ::open(path.substr(0, path.rfind('/') + 1).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return errno == EACCES; // it may be written but not read
    const bool flushed = flush(folder) || errno == EINVAL; // some disks know no such thing
    ::close(folder);
    return flushed;
}

FolderLock::FolderLock(int file) : file_(file) {}

std::unique_ptr<FolderLock> FolderLock::acquire(const std::string& path) {
    const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0 && ::flock(folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        ::close(folder);
        return nullptr;
    }
    return std::unique_ptr<FolderLock>(new FolderLock(folder));
}

bool FolderLock::holds(const std::string& path) const {
    struct stat held {};
    struct stat other {};
    return ::fstat(file_, &held) == 0 && ::stat(path.c_str(), &other) == 0 && held.st_dev == other.st_dev &&
           held.st_ino == other.st_ino;
}

FolderLock::~FolderLock() {
    if (file_ >= 0)
        ::close(file_);
}

} // namespace tallyvane::SystemFiles
