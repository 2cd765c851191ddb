#include "platform/text_streams.h"

#include <algorithm>
#include <utility>

#include "platform/folder_item.h"
#include "platform/text.h"

namespace tallyvane {

std::string_view TextInputStream::ReadLine() {
    const std::string_view rest = std::string_view(text_).substr(place_);
    const auto isEnd = [](char c) { return c == '\n' || c == '\r'; };
    const auto end = std::find_if(rest.begin(), rest.end(), isEnd);
    const auto length = static_cast<std::size_t>(end - rest.begin());
    const std::size_t endLength = end == rest.end() ? 0 : rest.substr(length).starts_with("\r\n") ? 2 : 1;
    place_ += length + endLength;
    return rest.substr(0, length);
}

std::string_view TextInputStream::ReadAll() {
    return std::string_view(text_).substr(std::exchange(place_, text_.size()));
}

std::optional<TextOutputStream> TextOutputStream::Create(const FolderItem& file) {
    std::unique_ptr<SystemFiles::Replacement> replacement = SystemFiles::Replacement::open(file.AbsolutePath());
    if (!replacement)
        return std::nullopt;
    return TextOutputStream(std::move(replacement));
}

void TextWriter::WriteLine(std::string_view text) {
    Write(text);
    Write(EndOfLine);
}

void TextWriter::WriteFields(std::span<const std::string> texts, std::string_view separator) {
    for (const std::string& text : texts) {
        if (&text != &texts.front())
            Write(separator);
        Write(text);
    }
    Write(EndOfLine);
}

void TextOutputStream::Close() {
    const auto file = std::exchange(file_, nullptr);
    if (file)
        file->replace(text());
}

} // namespace tallyvane
