#include "platform/files/text_output_stream.h"

#include <utility>

#include "platform/base/text.h"

namespace tallyvane {

std::optional<TextOutputStream> TextOutputStream::Create(const FolderItem& file, Replacement::Recorded recorded) {
    std::unique_ptr<Replacement> replacement = Replacement::open(file.AbsolutePath(), recorded);
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
