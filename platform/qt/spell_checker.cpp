#include "platform/qt/spell_checker.h"

#include <QFile>
#include <QLocale>
#include <QRegularExpression>

#include <hunspell/hunspell.hxx>

namespace tallyvane {

namespace {

/// A longer line is not a text that anybody wrote; looking through it at every key would hold the user up.
constexpr int longestLine = 20'000;

QString dictionaryPath(const QString& language, const char* ending) {
    for (const char* folder : {"/usr/share/hunspell/", "/usr/share/myspell/dicts/", "/usr/local/share/hunspell/"}) {
        const QString path = QLatin1String(folder) + language + QLatin1String(ending);
        if (QFile::exists(path))
            return path;
    }
    return {};
}

/// The name that Qt knows for an encoding as dictionaries name it.
std::string commonName(std::string encoding) {
    constexpr std::string_view maker = "microsoft-"; // before "cp1251"
    if (encoding.starts_with(maker))
        encoding.erase(0, maker.size());
    if (encoding == "TIS620-2533") // the year of the standard, by another calendar
        return "TIS-620";
    return encoding;
}

} // namespace

Dictionary::Dictionary(const QString& language)
    : Dictionary(dictionaryPath(language, ".aff"), dictionaryPath(language, ".dic")) {}

Dictionary::Dictionary(const QString& affixes, const QString& words) {
    if (affixes.isEmpty() || words.isEmpty())
        return;
    auto dictionary =
        std::make_unique<Hunspell>(QFile::encodeName(affixes).constData(), QFile::encodeName(words).constData());
    const std::string encoding = commonName(dictionary->get_dict_encoding());
    encode_ = QStringEncoder(encoding.c_str());
    decode_ = QStringDecoder(encoding.c_str());
    if (encode_.isValid() && decode_.isValid())
        words_ = std::move(dictionary);
}

Dictionary::~Dictionary() = default;

const Dictionary& Dictionary::ofDesktop() {
    static const Dictionary dictionary(QLocale::system().name());
    return dictionary;
}

std::string Dictionary::encoded(const QString& word) const {
    QString plain = word;
    plain.replace(QChar(0x2019), QLatin1Char('\'')); // dictionaries know the straight apostrophe
    const QByteArray bytes = encode_.encode(plain);
    return bytes.toStdString();
}

bool Dictionary::knows(const QString& word) const {
    if (!isThere())
        return true;
    const auto found = known_.constFind(word);
    if (found != known_.constEnd())
        return *found;
    return *known_.insert(word, words_->spell(encoded(word)));
}

QStringList Dictionary::suggestions(const QString& word) const {
    QStringList result;
    if (isThere())
        for (const std::string& suggestion : words_->suggest(encoded(word)))
            result += QString(decode_.decode(suggestion));
    return result;
}

std::vector<WordPlace> wordsOf(const QString& line) {
    static const QRegularExpression word(
        QStringLiteral("[\\p{L}\\p{M}]+(?:['\u2019][\\p{L}\\p{M}]+)*(?![\\p{L}\\p{N}])"),
        QRegularExpression::UseUnicodePropertiesOption);
    std::vector<WordPlace> words;
    for (auto matches = word.globalMatch(line); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        words.push_back({static_cast<int>(match.capturedStart()), static_cast<int>(match.capturedLength())});
    }
    return words;
}

void SpellingMarker::highlightBlock(const QString& line) {
    if (line.size() > longestLine)
        return;
    QTextCharFormat unknown;
    unknown.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    unknown.setUnderlineColor(Qt::red);
    for (const WordPlace& word : wordsOf(line))
        if (!dictionary_.knows(line.mid(word.start, word.length)))
            setFormat(word.start, word.length, unknown);
}

} // namespace tallyvane
