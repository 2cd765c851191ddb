#include "platform/text.h"

#include <gtest/gtest.h>

#include "platform/text_decoding.h"

namespace tallyvane {

TEST(Text, FieldsAreCountedFromOneAndMissingOnesAreEmpty) {
    struct Row {
        const char* name;
        std::string text;
        int n;
        std::string want;
        int count;
    };
    const Row rows[] = {
        {"first", "a@#@b@#@c", 1, "a", 3},
        {"last", "a@#@b@#@c", 3, "c", 3},
        {"past the last", "a@#@b", 3, "", 2},
        {"whole text without a separator", "abc", 1, "abc", 1},
        {"no second field without a separator", "abc", 2, "", 1},
        {"empty text", "", 1, "", 1},
        {"empty field in the middle", "a@#@@#@c", 2, "", 3},
        {"separator at the end", "a@#@", 2, "", 2},
        {"half a separator is text", "a@#b@#@c", 1, "a@#b", 2},
        {"field zero", "a@#@b", 0, "", 2},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(NthField(row.text, "@#@", row.n), row.want) << row.name;
        EXPECT_EQ(CountFields(row.text, "@#@"), row.count) << row.name;
    }
}

TEST(Text, PlacesCountCharactersAndBytesThatAreNoUtf8CountOne) {
    const std::string accents = "h\u00e9llo \u20ac\U0001F34E!";
    EXPECT_EQ(Len(accents), 9);
    EXPECT_EQ(Left(accents, 2), "h\u00e9");
    EXPECT_EQ(Right(accents, 2), "\U0001F34E!");
    EXPECT_EQ(Mid(accents, 7, 1), "\u20ac");
    EXPECT_EQ(Mid(accents, 8), "\U0001F34E!");
    EXPECT_EQ(InStr(accents, "\u20ac"), 7);

    struct Broken {
        const char* name;
        std::string text;
        int length;
    };
    const Broken rows[] = {
        {"stray continuation byte", "a\x80z", 3}, {"start without its continuation", "\xC3z", 2},
        {"cut off at the end", "a\xE2\x82", 3},   {"overlong start byte", "\xC0\xAF", 2},
        {"NUL", std::string("a\0b", 3), 3},
    };
    for (const Broken& row : rows) {
        EXPECT_EQ(Len(row.text), row.length) << row.name;
        EXPECT_EQ(Left(row.text, row.length), row.text) << row.name;
        EXPECT_EQ(Right(row.text, row.length - 1), Mid(row.text, 2)) << row.name;
    }
}

TEST(Text, EndsOutsideOfTheTextAreTakenAsItsEnds) {
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

TEST(Text, MarksOfTheByteOrder) {
    struct Row {
        const char* name;
        std::string file;
        std::string want;
    };
    const std::vector<Row> rows{
        {"none", "a\xFF", "a\xFF"},
        {"UTF-8",
         "\xEF\xBB\xBF"
         "a",
         "a"},
        {"half a mark", "\xEF\xBB", "\xEF\xBB"},
        {"little end first",
         std::string("\xFF\xFE"
                     "a\0\xAC\x20\x3D\xD8\0\xDE",
                     10),
         "a\u20ac\U0001F600"},
        {"big end first", std::string("\xFE\xFF\0a\x20\xAC\xD8\x3D\xDE\0", 10), "a\u20ac\U0001F600"},
        {"halves of characters", std::string("\xFE\xFF\xD8\x3D\0a\xDE\0\xD8\x3D", 10), "\uFFFDa\uFFFD\uFFFD"},
        {"an odd byte",
         std::string("\xFF\xFE"
                     "a\0b",
                     5),
         "a"},
        {"the mark alone", "\xFF\xFE", ""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(withoutByteOrderMark(row.file), row.want) << row.name;
}

} // namespace tallyvane
