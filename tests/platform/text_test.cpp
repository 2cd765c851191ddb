#include "platform/base/text.h"

#include <gtest/gtest.h>

#include "platform/base/text_decoding.h"

namespace tallyvane {

TEST(Text, FieldsAreCountedFromOneAndMissingOnesAreEmpty) {
    const auto check = [](const char* text, int n, const char* want, int count) {
        EXPECT_EQ(NthField(text, "@#@", n), want) << n << " of " << text;
        EXPECT_EQ(CountFields(text, "@#@"), count) << text;
    };
    check("a@#@b", 0, "", 2);
    check("a@#@b@#@c", 1, "a", 3);
    check("a@#@b@#@c", 3, "c", 3);
    check("a@#@b", 3, "", 2);
    check("abc", 1, "abc", 1);
    check("abc", 2, "", 1);
    check("", 1, "", 1);
    check("a@#@@#@c", 2, "", 3);
    check("a@#@", 2, "", 2);
    check("a@#b@#@c", 1, "a@#b", 2); // half a separator is text
}

TEST(Text, PlacesCountCharactersAndBytesThatAreNoUtf8CountOne) {
    const std::string accents = "h\u00e9llo \u20ac\U0001F34E!";
    EXPECT_EQ(Len(accents), 9);
    EXPECT_EQ(Left(accents, 2), "h\u00e9");
    EXPECT_EQ(Right(accents, 2), "\U0001F34E!");
    EXPECT_EQ(Mid(accents, 7, 1), "\u20ac");
    EXPECT_EQ(Mid(accents, 8), "\U0001F34E!");
    EXPECT_EQ(InStr(accents, "\u20ac"), 7);

    const auto checkBroken = [](const char* name, const std::string& text, int length) {
        EXPECT_EQ(Len(text), length) << name;
        EXPECT_EQ(Left(text, length), text) << name;
        EXPECT_EQ(Right(text, length - 1), Mid(text, 2)) << name;
    };
    checkBroken("stray continuation byte", "a\x80z", 3);
    checkBroken("start without its continuation", "\xC3z", 2);
    checkBroken("cut off at the end", "a\xE2\x82", 3);
    checkBroken("overlong start byte", "\xC0\xAF", 2);
    checkBroken("NUL", std::string("a\0b", 3), 3);
}

TEST(Text, PlacesOutsideTheTextAreClamped) {
    EXPECT_EQ(Left("abc", 9), "abc");
    EXPECT_EQ(Left("abc", -1), "");
    EXPECT_EQ(Right("abc", 9), "abc");
    EXPECT_EQ(Right("abc", -1), "");
    EXPECT_EQ(Mid("abc", 9), "");
    EXPECT_EQ(Mid("abc", 2, 9), "bc");
    EXPECT_EQ(InStr("abc", "x"), 0);
    EXPECT_EQ(InStr("abc", ""), 0);
}

TEST(Text, ReplacesEveryOccurrenceAndDoesNotReadItsOwnReplacement) {
    EXPECT_EQ(ReplaceAll("a$%$b$%$", "$%$", "\n"), "a\nb\n");
    EXPECT_EQ(ReplaceAll("aaa", "a", "aa"), "aaaaaa");
    EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(ReplaceLineEndings("a\r\nb\rc\nd\r\n\r\n", "|"), "a|b|c|d||");
}

TEST(Text, CharactersAndTrimming) {
    EXPECT_EQ(Chr(31), "\x1F");
    EXPECT_EQ(Chr(0xE9), "\u00e9");
    EXPECT_EQ(Chr(0x20AC), "\u20ac");
    EXPECT_EQ(Chr(0x1F34E), "\U0001F34E");
    EXPECT_EQ(Chr(-1), "");
    EXPECT_EQ(Chr(0x110000), "");
    EXPECT_EQ(Trim(" \t a b \r\n"), "a b");
    EXPECT_EQ(Trim(" \n"), "");
}

TEST(Text, ByteOrderMarks) {
    const auto check = [](const char* name, const std::string& file, const char* want) {
        EXPECT_EQ(withoutByteOrderMark(file), want) << name;
    };
    check("none", "a\xFF", "a\xFF");
    check("UTF-8", "\xEF\xBB\xBF\x61", "a");
    check("half a mark", "\xEF\xBB", "\xEF\xBB");
    check("little end first", std::string("\xFF\xFE\x61\0\xAC\x20\x3D\xD8\0\xDE", 10), "a\u20ac\U0001F600");
    check("big end first", std::string("\xFE\xFF\0a\x20\xAC\xD8\x3D\xDE\0", 10), "a\u20ac\U0001F600");
    check("halves of characters", std::string("\xFE\xFF\xD8\x3D\0a\xDE\0\xD8\x3D", 10), "\uFFFDa\uFFFD\uFFFD");
    check("an odd byte", std::string("\xFF\xFE\x61\0b", 5), "a");
    check("the mark alone", "\xFF\xFE", "");
}

} // namespace tallyvane
