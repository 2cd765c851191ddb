#include "platform/files/plain_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <system_error>
#include <utility>

#include "platform/base/translation.h"

namespace tallyvane {

namespace {

constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;

std::string messageOf(int error) { return std::generic_category().message(error); }

[[noreturn]] void fail(const std::string& what, int error) { throw IOException(what, messageOf(error)); }

/// Calls until no signal comes between.
template <class Call>
auto withoutSignals(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

/// A link that somebody else has put there, and that may lead anywhere.
bool isForeignLink(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode) && status.st_uid != ::geteuid() &&
           status.st_uid != 0;
}

/// Opens a plain file; -1 otherwise. O_NONBLOCK keeps a pipe of that name from holding the program up.
int openPlain(const std::string& path, int flags) {
    if (path.find('\0') != std::string::npos || isForeignLink(path))
        return -1;
    const int file = ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, ownerOnly);
    struct stat status {};
    if (file < 0 || (::fstat(file, &status) == 0 && S_ISREG(status.st_mode)))
        return file;
    ::close(file);
    return -1;
}

/// Why a file can't be opened for writing, after an attempt that ended with that error.
std::string obstacleAt(const std::string& path, int error) {
    if (isForeignLink(path))
        return tr("a link of another user stands there");
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode))
        return tr("a folder of that name stands there");
    if (::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode))
        return tr("what stands there is no file");
    const bool folderIsThere = ::stat(path.substr(0, path.rfind('/')).c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    return folderIsThere ? messageOf(error) : tr("the folder is not there");
}

} // namespace

PlainFile::PlainFile(int file, std::string path, bool isNew) : file_(file), path_(std::move(path)), isNew_(isNew) {}

std::unique_ptr<PlainFile> PlainFile::openToRead(const std::string& path) {
    const int file = openPlain(path, O_RDONLY);
    return file < 0 ? nullptr : std::unique_ptr<PlainFile>(new PlainFile(file, path, false));
}

std::unique_ptr<PlainFile> PlainFile::openOrMake(const std::string& path, std::string* why) {
    int file = openPlain(path, O_RDWR | O_CREAT | O_EXCL);
    const bool isNew = file >= 0;
    if (!isNew)
        file = openPlain(path, O_RDWR | O_CREAT); // it was there, or a link leads to where it is to be
    if (file < 0 && why != nullptr)
        *why = obstacleAt(path, errno);
    return file < 0 ? nullptr : std::unique_ptr<PlainFile>(new PlainFile(file, path, isNew));
}

PlainFile::~PlainFile() {
    if (file_ >= 0)
        ::close(file_);
}

std::optional<std::string> PlainFile::read() const {
    constexpr off_t largest = off_t{1} << 30; // no file of a diary comes near
    struct stat status {};
    if (::fstat(file_, &status) != 0 || status.st_size > largest)
        return std::nullopt;
    std::string content(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t done = 0;
    for (;;) {
        if (done == content.size())
            content.resize(done + 4096); // also sees the end of a file that has grown since
        const ssize_t got = withoutSignals(
            [&] { return ::pread(file_, content.data() + done, content.size() - done, static_cast<off_t>(done)); });
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        done += static_cast<std::size_t>(got);
    }
    content.resize(done);
    return content;
}

void PlainFile::write(std::string_view bytes, std::size_t place) {
    while (!bytes.empty()) {
        const ssize_t written =
            withoutSignals([&] { return ::pwrite(file_, bytes.data(), bytes.size(), static_cast<off_t>(place)); });
        if (written <= 0)
            fail("can't write " + path_, written < 0 ? errno : EIO); // a write may end short without an error
        bytes.remove_prefix(static_cast<std::size_t>(written));
        place += static_cast<std::size_t>(written);
    }
}

void PlainFile::cut(std::size_t size) {
    if (withoutSignals([&] { return ::ftruncate(file_, static_cast<off_t>(size)); }) != 0)
        fail("can't cut " + path_, errno);
}

void PlainFile::reserve(std::size_t size) {
    const int result =
        withoutSignals([&] { return ::fallocate(file_, FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(size)); });
    if (result != 0 && errno != EOPNOTSUPP && errno != ENOSYS)
        fail("no room for " + path_, errno);
}

void PlainFile::flush() {
    if (withoutSignals([&] { return ::fsync(file_); }) != 0)
        fail("can't see to the disk " + path_, errno);
}

void PlainFile::close() {
    if (::close(std::exchange(file_, -1)) != 0)
        fail("can't close " + path_, errno);
}

} // namespace tallyvane
