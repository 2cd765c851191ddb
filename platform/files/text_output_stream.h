#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/files/folder_item.h"
#include "platform/files/replacement.h"

namespace tallyvane {

/// Collects a text in memory.
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

/// Collects a text in memory and replaces a file by it on Close. Destroyed without Close, it leaves the file unchanged.
class TextOutputStream : public TextWriter {
public:
    /// Empty for what is no plain file or can't be opened for writing.
    [[nodiscard]] static std::optional<TextOutputStream>
    Create(const FolderItem& file, Replacement::Recorded recorded = Replacement::Recorded::unlessNew);

    /// Replaces the file. Throws IOException, with the old content in place, when it can't. The stream ends here.
    void Close();

private:
    explicit TextOutputStream(std::unique_ptr<Replacement> file) : file_(std::move(file)) {}

    std::unique_ptr<Replacement> file_;
};

} // namespace tallyvane
