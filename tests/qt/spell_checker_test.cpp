#include "platform/qt/spell_checker.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QPlainTextEdit>
#include <QTemporaryDir>
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

TEST(SpellChecker, DictionariesInOtherEncodings) {
    const QTemporaryDir folder;
    const auto check = [&](const QByteArray& encoding, const QByteArray& bytes, const QString& word) {
        const auto write = [&](const char* name, const QByteArray& content) {
            QFile file(folder.filePath(name));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(content);
        };
        write("d.aff", "SET " + encoding + "\n");
        write("d.dic", "1\n" + bytes + "\n");
        const Dictionary dictionary(folder.filePath("d.aff"), folder.filePath("d.dic"));
        ASSERT_TRUE(dictionary.isThere()) << encoding.toStdString();
        EXPECT_TRUE(dictionary.knows(word)) << encoding.toStdString();
        EXPECT_FALSE(dictionary.knows(word + 'x')) << encoding.toStdString();
        EXPECT_TRUE(dictionary.suggestions(word + 'x').contains(word)) << encoding.toStdString();
    };
    check("ISO8859-1", "caf\xE9", "caf\u00e9");
    check("ISO8859-2", "\xB6niadanie", "\u015bniadanie");
    check("ISO8859-15", "c\xBDur", "c\u0153ur");
    check("KOI8-R", "\xDA\xC1\xD7\xD4\xD2\xC1\xCB", "\u0437\u0430\u0432\u0442\u0440\u0430\u043a");
    check("microsoft-cp1251", "\xEE\xE1\xB3\xE4", "\u043e\u0431\u0456\u0434");
    check("UTF-8", "fr\u00fchst\u00fcck", "fr\u00fchst\u00fcck");
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
