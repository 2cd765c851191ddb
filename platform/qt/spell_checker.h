#pragma once

#include <QHash>
#include <QStringConverter>
#include <QStringList>
#include <QSyntaxHighlighter>

#include <memory>
#include <vector>

class Hunspell;

namespace tallyvane {

/// A dictionary of the desktop's language. Without one installed every word is good.
class Dictionary {
public:
    /// The dictionary of that language, such as "en_US", in one of the folders where desktops keep them.
    explicit Dictionary(const QString& language);
    /// The dictionary in these two files, if they are there and in an encoding that Qt knows.
    Dictionary(const QString& affixes, const QString& words);
    ~Dictionary();
    Dictionary(const Dictionary&) = delete;
    Dictionary& operator=(const Dictionary&) = delete;

    bool isThere() const { return words_ != nullptr; }
    bool knows(const QString& word) const;
    /// What may have been meant, the likeliest first.
    QStringList suggestions(const QString& word) const;

    /// The one of the user's language.
    static const Dictionary& ofDesktop();

private:
    std::string encoded(const QString& word) const;

    std::unique_ptr<Hunspell> words_;
    // Between texts and the dictionary's own encoding
    mutable QStringEncoder encode_;
    mutable QStringDecoder decode_;
    mutable QHash<QString, bool> known_; // what was asked before
};

/// A word in a line, by its place in UTF-16 units.
struct WordPlace {
    int start;
    int length;
};
std::vector<WordPlace> wordsOf(const QString& line);

/// Draws a wavy line under the words of a text that a dictionary does not know.
class SpellingMarker : public QSyntaxHighlighter {
public:
    SpellingMarker(QTextDocument* document, const Dictionary& dictionary)
        : QSyntaxHighlighter(document), dictionary_(dictionary) {}

protected:
    void highlightBlock(const QString& line) override;

private:
    const Dictionary& dictionary_;
};

} // namespace tallyvane
