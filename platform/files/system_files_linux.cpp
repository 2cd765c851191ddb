#include "platform/files/system_files.h"

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/base/translation.h"

namespace tallyvane::SystemFiles {

namespace {

constexpr mode_t ownerOnlyFile = S_IRUSR | S_IWUSR;
constexpr mode_t ownerOnlyFolder = S_IRWXU;

bool hasNul(const std::string& path) { return path.find('\0') != std::string::npos; }

bool isPlainFile(int file) {
    struct stat status {};
    return ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

/// Opens a plain file; -1 otherwise. O_NONBLOCK keeps a pipe of that name from holding the program up.
int openPlain(const std::string& path, int flags) {
    if (hasNul(path))
        return -1;
    const int file = ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, ownerOnlyFile);
    if (file < 0 || isPlainFile(file))
        return file;
    ::close(file);
    return -1;
}

std::optional<std::string> readAll(int file) {
    constexpr off_t largest = off_t{1} << 30; // no file of a diary comes near
    struct stat status {};
    if (::fstat(file, &status) != 0 || status.st_size > largest)
        return std::nullopt;
    std::string content(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t done = 0;
    for (;;) {
        if (done == content.size())
            content.resize(done + 4096); // also sees the end of a file that has grown since
        const ssize_t got = ::pread(file, content.data() + done, content.size() - done, static_cast<off_t>(done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        done += static_cast<std::size_t>(got);
    }
    content.resize(done);
    return content;
}

bool writeAt(int file, std::string_view bytes, std::size_t place) {
    while (!bytes.empty()) {
        const ssize_t written = ::pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(place));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
        place += static_cast<std::size_t>(written);
    }
    return true;
}

bool cutAt(int file, std::size_t size) {
    int result = 0;
    do
        result = ::ftruncate(file, static_cast<off_t>(size));
    while (result != 0 && errno == EINTR);
    return result == 0;
}

bool flush(int file) {
    int result = 0;
    do
        result = ::fsync(file);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

/// Sees the name of a new file to the disk.
bool flushFolderOf(const std::string& path) {
    const int folder = ::open(path.substr(0, path.rfind('/') + 1).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return true; // a folder that may be written but not read
    const bool flushed = flush(folder) || errno == EINVAL; // some disks know no such thing
    ::close(folder);
    return flushed;
}

/// Reserves room up to `size` bytes without changing the file's length. True also where the disk can't reserve.
bool reserve(int file, std::size_t size) {
    int result = 0;
    do
        result = ::fallocate(file, FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(size));
    while (result != 0 && errno == EINTR);
    return result == 0 || errno == EOPNOTSUPP || errno == ENOSYS;
}

/// The range in which two contents differ, as places in the newer one.
struct Difference {
    std::size_t begin = 0;
    std::size_t end = 0;
};

Difference differenceOf(const std::string& before, const std::string& after) {
    const auto [differs, unused] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    Difference range{static_cast<std::size_t>(differs - before.begin()), after.size()};
    if (before.size() == after.size())
        while (range.end > range.begin && before[range.end - 1] == after[range.end - 1])
            --range.end;
    return range;
}

/// Turns the file from one content into another and sees it to the disk.
bool overwrite(int file, const std::string& before, const std::string& after) {
    const Difference range = differenceOf(before, after);
    const std::string_view changed = std::string_view(after).substr(range.begin, range.end - range.begin);
    return writeAt(file, changed, range.begin) && (after.size() >= before.size() || cutAt(file, after.size())) &&
           flush(file);
}

/// Puts a content back after a failed overwrite, whatever that left. As much as a failing disk lets it.
void restore(int file, const std::string& content) {
    const bool back = writeAt(file, content, 0);
    const bool cut = cutAt(file, content.size());
    const bool flushed = flush(file);
    static_cast<void>(back && cut && flushed); // the caller already reports the failure
}

/// The error of a write that ended short without one.
constexpr int unknownError = EIO;

/// Turns the file into `after`, or leaves it as it was. 0, or the number of the error.
int overwriteOrRestore(int file, const std::string& before, const std::string& after) {
    errno = 0;
    if (overwrite(file, before, after))
        return 0;
    const int error = errno != 0 ? errno : unknownError;
    restore(file, before);
    return error;
}

/// Reads the writer's answer: 0, or the number of the error. Nothing when it ended without one.
std::optional<int> answerOf(int pipe) {
    int answer = 0;
    ssize_t got = 0;
    do
        got = ::read(pipe, &answer, sizeof answer);
    while (got < 0 && errno == EINTR);
    return got == sizeof answer ? std::optional(answer) : std::nullopt;
}

/// What the writer does: it may use nothing that another thread of the program could have held a lock on when it was
/// copied, memory above all. No signal but a kill of its own ends it.
[[noreturn]] void writeAndAnswer(int file, const std::string& before, const std::string& after, int pipe) {
    sigset_t all;
    ::sigfillset(&all);
    ::sigprocmask(SIG_BLOCK, &all, nullptr);
    ::setsid();
    const int answer = overwriteOrRestore(file, before, after);
    ::_exit(::write(pipe, &answer, sizeof answer) == sizeof answer ? 0 : 1);
}

/// Does the same in a process of its own session, which ends its work when this one is killed in the middle. Where no
/// process can be had, the work is done here.
int overwriteInWriter(int file, const std::string& before, const std::string& after) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return overwriteOrRestore(file, before, after);
    const pid_t writer = ::fork();
    if (writer == 0)
        writeAndAnswer(file, before, after, ends[1]);
    ::close(ends[1]);
    const std::optional<int> error = writer > 0 ? answerOf(ends[0]) : std::nullopt;
    ::close(ends[0]);
    while (writer > 0 && ::waitpid(writer, nullptr, 0) < 0 && errno == EINTR) {
    }
    return error ? *error : overwriteOrRestore(file, before, after); // also where the writer alone was killed
}

std::string messageOf(int error) { return std::generic_category().message(error); }

/// Why a file can't be opened for writing, after an attempt that ended with that error.
std::string obstacleAt(const std::string& path, int error) {
    switch (kindOf(path)) {
    case Kind::folder:
        return tr("a folder of that name stands there");
    case Kind::other:
        return tr("what stands there is no file");
    default:
        break;
    }
    const bool folderIsThere = kindOf(path.substr(0, path.rfind('/'))) == Kind::folder;
    return folderIsThere ? messageOf(error) : tr("the folder is not there");
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

bool makeFolder(const std::string& path) { return !hasNul(path) && ::mkdir(path.c_str(), ownerOnlyFolder) == 0; }

void makeFolders(const std::string& path) {
    for (std::size_t end = path.find('/', 1); end != std::string::npos; end = path.find('/', end + 1))
        static_cast<void>(makeFolder(path.substr(0, end))); // mostly it is there
    static_cast<void>(makeFolder(path));
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
    const int file = openPlain(path, O_RDONLY);
    if (file < 0)
        return std::nullopt;
    std::optional<std::string> content = readAll(file);
    ::close(file);
    return content;
}

Replacement::Replacement(int file, std::string path, bool made) : file_(file), path_(std::move(path)), made_(made) {}

std::unique_ptr<Replacement> Replacement::open(const std::string& path, std::string* why) {
    int file = openPlain(path, O_RDWR | O_CREAT | O_EXCL);
    const bool made = file >= 0;
    if (!made)
        file = openPlain(path, O_RDWR | O_CREAT); // it was there, or a link leads to where it is to be
    if (file < 0 && why != nullptr)
        *why = obstacleAt(path, errno);
    if (file < 0)
        return nullptr;
    return std::unique_ptr<Replacement>(new Replacement(file, path, made));
}

Replacement::~Replacement() {
    if (made_)
        ::unlink(path_.c_str());
    if (file_ >= 0)
        ::close(file_);
}

void Replacement::replace(const std::string& text) {
    const std::optional<std::string> before = readAll(file_);
    if (!before)
        throw IOException("can't read the file that is to be replaced: " + path_, messageOf(errno));
    if (text.size() > before->size() && !reserve(file_, text.size())) {
        const std::string why = messageOf(errno);
        const bool released = cutAt(file_, before->size());
        throw IOException((released ? "no room for " : "no room, and none given back, for ") + path_, why);
    }
    if (const int error = *before == text ? 0 : overwriteInWriter(file_, *before, text); error != 0)
        throw IOException("can't write " + path_, messageOf(error));
    if (std::exchange(made_, false) && !flushFolderOf(path_))
        throw IOException("can't enter " + path_ + " into its folder", messageOf(errno));
    if (::close(std::exchange(file_, -1)) != 0)
        throw IOException("can't close " + path_, messageOf(errno));
}

void write(const std::string& path, const std::string& text) {
    std::string why;
    const auto file = Replacement::open(path, &why);
    if (!file)
        throw IOException("can't open " + path + " for writing", why);
    file->replace(text);
}

FolderLock::FolderLock(int file) : file_(file) {}

std::unique_ptr<FolderLock> FolderLock::acquire(const std::string& path) {
    // The writer of a program that was killed holds the folder for moments more.
    constexpr int mostTries = 20;
    constexpr useconds_t pauseMicroseconds = 20'000;
    const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int tries = 1; folder >= 0 && ::flock(folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK; ++tries) {
        if (tries == mostTries) {
            ::close(folder);
            return nullptr;
        }
        ::usleep(pauseMicroseconds);
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
