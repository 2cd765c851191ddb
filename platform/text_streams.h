/// Text files, read and written whole.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/system_files.h"

namespace tallyvane {

class FolderItem;

/// Reads a text that was taken from a file in one piece, so that no other program changes it on the way.
class TextInputStream {
public:
    explicit TextInputStream(std::string text) : text_(std::move(text)) {}

    /// The next line without its end, which is CR, LF or CR LF; "" at the end. Valid as long as the stream lives.
    std::string_view ReadLine();
    /// All that is left, as it stands.
    std::string_view ReadAll();
    std::size_t bytesLeft() const { return text_.size() - place_; }
    /// Nothing is left to read. (Plain EOF is a macro of the C library.)
    bool EndOfFile() const { return place_ == text_.size(); }

private:
    std::string text_;
    std::size_t place_ = 0;
};

/// Takes a text together.
class TextWriter {
public:
    void Write(std::string_view text) { text_ += text; }
    void WriteLine(std::string_view text);
    /// Writes texts as one line, with the separator between them.
    void WriteFields(std::span<const std::string> texts, std::string_view separator);
    const std::string& text() const { return text_; }

private:
    std::string text_;
};

/// Takes a text together and replaces a file by it on Close. A stream that goes without Close leaves the file alone.
class TextOutputStream : public TextWriter {
public:
    /// Empty for what is no plain file or can't be opened for writing.
    [[nodiscard]] static std::optional<TextOutputStream> Create(const FolderItem& file);

    /// Replaces the file. Throws IOException, with the old content in place, when it can't. The stream ends here.
    void Close();

private:
    explicit TextOutputStream(std::unique_ptr<SystemFiles::Replacement> file) : file_(std::move(file)) {}

    std::unique_ptr<SystemFiles::Replacement> file_;
};

} // namespace tallyvane
