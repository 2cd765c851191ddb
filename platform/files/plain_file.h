/// A file that is open to be read or changed. One source a system realises it, chosen by the build.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files/io_exception.h"

namespace tallyvane {

/// A plain file that is open; closed at the end of this object. What changes it throws IOException when that fails.
class PlainFile {
public:
    /// Null for what is no plain file or can't be read.
    [[nodiscard]] static std::unique_ptr<PlainFile> openToRead(const std::string& path);
    /// Opens the file, and makes one for its owner alone where there is none. Null for what is no plain file or can't
    /// be opened for writing; `why` then gets the reason, for the user.
    [[nodiscard]] static std::unique_ptr<PlainFile> openOrMake(const std::string& path, std::string* why = nullptr);

    PlainFile(const PlainFile&) = delete;
    PlainFile& operator=(const PlainFile&) = delete;
    ~PlainFile();

    /// It was made just now: there was none.
    bool isNew() const { return isNew_; }

    /// The whole content; nothing for what can't be read or is larger than a gigabyte.
    [[nodiscard]] std::optional<std::string> read() const;

    void write(std::string_view bytes, std::size_t place);
    /// Makes the file that long.
    void cut(std::size_t size);
    /// Reserves room up to that size without changing the file's length; nothing on a disk that can't reserve.
    void reserve(std::size_t size);
    /// Sees all that was written to the disk.
    void flush();
    void close();

private:
    PlainFile(int file, std::string path, bool isNew);

    int file_;
    std::string path_;
    bool isNew_;
};

} // namespace tallyvane
