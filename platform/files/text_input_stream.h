#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace tallyvane {

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

} // namespace tallyvane
