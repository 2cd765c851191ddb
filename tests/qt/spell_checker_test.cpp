#include "platform/qt/spell_checker.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>

namespace tallyvane {

namespace {

TEST(SpellChecker, WordsOfALine) {
    const auto check = [](const QString& line, const QStringList& want) {
        QStringList words;
        for (const WordPlace& word : wordsOf(line))
            words += line.mid(word.start, word.length);
        EXPECT_EQ(words, want) << line.toStdString();
    };
    check("Felt well, didn't walk.", {"Felt", "well", "didn't", "walk"});
    check("7.5 after 2h", {"after", "h"});
    check("na\u00efve \u2018quoted\u2019", {"na\u00efve", "quoted"});
}

TEST(SpellChecker, AnInstalledDictionaryKnowsAndSuggests) {
    const Dictionary english("en_US");
    ASSERT_TRUE(english.isThere());
    EXPECT_TRUE(english.knows("Breakfast"));
    EXPECT_TRUE(english.knows("didn\u2019t"));
    EXPECT_FALSE(english.knows("brekfast"));
    EXPECT_TRUE(english.suggestions("brekfast").contains("breakfast"));
}

TEST(SpellChecker, WithoutADictionaryEveryWordIsGood) {
    const Dictionary none("xx_XX");
    EXPECT_FALSE(none.isThere());
    EXPECT_TRUE(none.knows("brekfast"));
    EXPECT_TRUE(none.suggestions("brekfast").isEmpty());
}

TEST(SpellChecker, UnknownWordsAreMarked) {
    const Dictionary english("en_US");
    QPlainTextEdit edit;
    new SpellingMarker(edit.document(), english);
    edit.setPlainText("a good brekfast");
    edit.document()->documentLayout(); // marking is due with the next look
    QCoreApplication::processEvents();
    const auto formats = edit.document()->firstBlock().layout()->formats();
    ASSERT_EQ(formats.size(), 1);
    EXPECT_EQ(std::pair(formats[0].start, formats[0].length), std::pair(7, 8));
}

} // namespace

} // namespace tallyvane
