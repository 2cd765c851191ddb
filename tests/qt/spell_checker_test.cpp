#include "platform/qt/spell_checker.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>

namespace tallyvane {

namespace {

TEST(SpellChecker, WordsOfALine) {
    struct Row {
        QString line;
        QStringList want;
    };
    const Row rows[] = {
        {QStringLiteral("Felt well, didn't walk."),
         {QStringLiteral("Felt"), QStringLiteral("well"), QStringLiteral("didn't"), QStringLiteral("walk")}},
        {QStringLiteral("7.5 after 2h"), {QStringLiteral("after"), QStringLiteral("h")}},
        {QStringLiteral("na\u00efve \u2018quoted\u2019"), {QStringLiteral("na\u00efve"), QStringLiteral("quoted")}},
        {QString(), {}},
    };
    for (const Row& row : rows) {
        QStringList words;
        for (const WordPlace& word : wordsOf(row.line))
            words += row.line.mid(word.start, word.length);
        EXPECT_EQ(words, row.want) << row.line.toStdString();
    }
}

TEST(SpellChecker, AnInstalledDictionaryKnowsAndSuggests) {
    const Dictionary english(QStringLiteral("en_US"));
    ASSERT_TRUE(english.isThere());
    for (const char* word : {"breakfast", "Breakfast", "didn't"})
        EXPECT_TRUE(english.knows(QLatin1String(word))) << word;
    EXPECT_TRUE(english.knows(QStringLiteral("didn\u2019t")));
    EXPECT_FALSE(english.knows(QStringLiteral("brekfast")));
    EXPECT_TRUE(english.suggestions(QStringLiteral("brekfast")).contains(QStringLiteral("breakfast")));
}

TEST(SpellChecker, WithoutADictionaryEveryWordIsGood) {
    const Dictionary none(QStringLiteral("xx_XX"));
    EXPECT_FALSE(none.isThere());
    EXPECT_TRUE(none.knows(QStringLiteral("brekfast")));
    EXPECT_TRUE(none.suggestions(QStringLiteral("brekfast")).isEmpty());
}

TEST(SpellChecker, UnknownWordsAreMarked) {
    const Dictionary english(QStringLiteral("en_US"));
    QPlainTextEdit edit;
    new SpellingMarker(edit.document(), english);
    edit.setPlainText(QStringLiteral("a good brekfast"));
    edit.document()->documentLayout(); // marking is due with the next look
    QCoreApplication::processEvents();
    const auto formats = edit.document()->firstBlock().layout()->formats();
    ASSERT_EQ(formats.size(), 1);
    EXPECT_EQ(formats[0].start, 7);
    EXPECT_EQ(formats[0].length, 8);
    EXPECT_EQ(edit.toPlainText(), QStringLiteral("a good brekfast"));
}

} // namespace

} // namespace tallyvane
