/// Text helpers. A text is UTF-8 in a std::string; a byte that is not UTF-8 is kept as it is and counts as one
/// character. Places are counted in characters, from 1.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tallyvane {

/// The line end inside texts that the user writes, and in the files that the program writes.
inline const std::string EndOfLine = "\n";

/// The one comparison of texts in the whole system: exact, byte for byte. Below 0, 0 or above 0.
int compareTexts(std::string_view a, std::string_view b);

/// Number of characters.
int Len(std::string_view text);
/// Place of the first occurrence of `sought`; 0 when it does not occur or is empty.
int InStr(std::string_view text, std::string_view sought);
/// The first `count` characters, or all there are.
std::string Left(std::string_view text, int count);
/// The last `count` characters, or all there are.
std::string Right(std::string_view text, int count);
/// The characters from place `start` to the end.
std::string Mid(std::string_view text, int start);
/// At most `count` characters from place `start`.
std::string Mid(std::string_view text, int start, int count);
/// The text without blanks, tabs and line ends at its ends.
std::string Trim(std::string_view text);
/// The text with every occurrence of `sought` replaced; unchanged when `sought` is empty.
std::string ReplaceAll(std::string_view text, std::string_view sought, std::string_view replacement);
/// The text with every line end (CR, LF or CR LF) replaced.
std::string ReplaceLineEndings(std::string_view text, std::string_view lineEnd);
/// The character of a Unicode code point, as UTF-8; "" for a number that is no code point.
std::string Chr(int code);

/// The text with small and capital letters alike, to find one in the other.
std::string Folded(std::string_view text);

namespace TextSource {
/// How letters are made alike; those of English alone until it is set, once at start.
extern std::function<std::string(std::string_view text)> fold;
} // namespace TextSource

/// Field `n`, counted from 1, of the text split at the separator; "" past the last field.
std::string NthField(std::string_view text, std::string_view separator, int n);
/// Number of fields; an empty text has one field, which is empty.
int CountFields(std::string_view text, std::string_view separator);

/// Walks the fields of a text from the first, for those who want them all: the n-th call of `next` gives what
/// NthField gives for n. It looks at the text that it was made from and does not own it.
class FieldWalk {
public:
    FieldWalk(std::string_view text, std::string_view separator) : rest_(text), separator_(separator) {}
    /// The next field; "" past the last one.
    std::string_view next();
    /// True once the last field has been given.
    bool atEnd() const { return atEnd_; }

private:
    std::string_view rest_;
    std::string_view separator_;
    bool atEnd_ = false;
};

} // namespace tallyvane
