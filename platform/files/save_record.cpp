#include "platform/files/save_record.h"

#include <xxhash.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/files/plain_file.h"
#include "platform/files/system_files.h"

namespace tallyvane {

namespace {

/// The first line of a record, of a length that never changes: what it is, and the checksum of all that follows it.
constexpr std::string_view title = "Unfinished save of Tallyvane, 1: ";

std::string hex(std::uint64_t number) {
    std::array<char, 17> digits{};
    std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(number));
    return digits.data();
}

/// "LENGTH CHECKSUM".
std::string textOf(const Fingerprint& print) {
    return std::to_string(print.length) + " " + hex(print.high) + hex(print.low);
}

/// The line at the beginning of a text, which is taken off it with its line end.
std::string_view takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

std::optional<std::uint64_t> numberIn(const std::string& digits, int base) {
    char* end = nullptr;
    const std::uint64_t number = std::strtoull(digits.c_str(), &end, base);
    return digits.empty() || *end != '\0' ? std::nullopt : std::optional(number);
}

std::optional<Fingerprint> fingerprintIn(std::string_view line) {
    constexpr std::size_t digits = 16;
    const std::size_t blank = line.find(' ');
    if (blank == std::string_view::npos || line.size() != blank + 1 + 2 * digits)
        return std::nullopt;
    const auto length = numberIn(std::string(line.substr(0, blank)), 10);
    const auto high = numberIn(std::string(line.substr(blank + 1, digits)), 16);
    const auto low = numberIn(std::string(line.substr(blank + 1 + digits)), 16);
    return length && high && low ? std::optional(Fingerprint{*length, *high, *low}) : std::nullopt;
}

/// All of a record but the content, which follows.
std::string headOf(const std::string& path, const Fingerprint& before, std::string_view content) {
    std::string head;
    head.append(textOf(before)).append("\n");
    head.append(textOf(Fingerprint::of(content))).append("\n");
    head.append(std::to_string(path.size())).append("\n").append(path).append("\n"); // a path may hold line ends
    return std::string(title).append(textOf(Fingerprint::of(head, content))).append("\n").append(head);
}

} // namespace

Fingerprint Fingerprint::of(std::string_view first, std::string_view second) {
    const std::unique_ptr<XXH3_state_t, XXH_errorcode (*)(XXH3_state_t*)> state(XXH3_createState(), XXH3_freeState);
    XXH3_128bits_reset(state.get());
    XXH3_128bits_update(state.get(), first.data(), first.size());
    XXH3_128bits_update(state.get(), second.data(), second.size());
    const XXH128_hash_t hash = XXH3_128bits_digest(state.get());
    return {first.size() + second.size(), hash.high64, hash.low64};
}

Fingerprint Fingerprint::of(std::string_view content) {
    const XXH128_hash_t hash = XXH3_128bits(content.data(), content.size());
    return {content.size(), hash.high64, hash.low64};
}

std::optional<SaveRecord> SaveRecord::in(std::string_view text) {
    const std::string_view first = takeLine(text);
    if (!first.starts_with(title) || fingerprintIn(first.substr(title.size())) != Fingerprint::of(text))
        return std::nullopt;
    const std::optional<Fingerprint> before = fingerprintIn(takeLine(text));
    const std::optional<Fingerprint> after = fingerprintIn(takeLine(text));
    const std::optional<std::uint64_t> pathLength = numberIn(std::string(takeLine(text)), 10);
    if (!before || !after || !pathLength || *pathLength >= text.size() || text[*pathLength] != '\n')
        return std::nullopt;
    SaveRecord record{std::string(text.substr(0, *pathLength)), *before, std::string(text.substr(*pathLength + 1))};
    return Fingerprint::of(record.content) == after ? std::optional(std::move(record)) : std::nullopt;
}

namespace SaveRecords {

namespace {

constexpr std::string_view nameBeginning = "Unfinished save ";
constexpr std::string_view partEnding = " part"; // of the name of a record that is still being written

std::string& folder() {
    static std::string path;
    return path;
}

/// Whether a file of that name is a record, or what a save left of one.
bool isNameOfRecord(std::string_view name) {
    if (name.ends_with(partEnding))
        name.remove_suffix(partEnding.size());
    return name.starts_with(nameBeginning) &&
           name.find_first_not_of("0123456789abcdef", nameBeginning.size()) == std::string_view::npos;
}

std::string recordPath(const std::string& path) {
    return folder() + "/" + std::string(nameBeginning) + hex(XXH3_64bits(path.data(), path.size()));
}

} // namespace

void useFolder(const std::string& path) { folder() = path; }

void keep(const std::string& savedPath, const Fingerprint& before, std::string_view content) {
    if (folder().empty())
        return;
    const std::string path = recordPath(savedPath);
    const std::string part = path + std::string(partEnding);
    static_cast<void>(SystemFiles::remove(part)); // of a save that was cut off
    std::string why;
    const std::unique_ptr<PlainFile> file = PlainFile::openOrMake(part, &why);
    if (!file && !SystemFiles::canWriteIn(folder()))
        return;
    if (!file)
        throw IOException("can't make the record of a save", why);
    const bool wasKept = isKept(savedPath);
    try {
        const std::string head = headOf(savedPath, before, content);
        file->write(head, 0);
        file->write(content, head.size());
        file->flush();
        file->close();
        if (!SystemFiles::moveOver(part, path) || !SystemFiles::flushFolderOf(path))
            throw IOException("can't enter the record of the save into its folder");
    } catch (const IOException&) {
        static_cast<void>(SystemFiles::remove(part));
        if (!wasKept) // else the file may be half written, and the record is what can mend it
            static_cast<void>(SystemFiles::remove(path));
        throw;
    }
}

bool isKept(const std::string& path) {
    return !folder().empty() && SystemFiles::kindOf(recordPath(path)) == SystemFiles::Kind::file;
}

void drop(const std::string& path) {
    if (isKept(path) && SystemFiles::remove(recordPath(path)))
        static_cast<void>(SystemFiles::flushFolderOf(recordPath(path))); // else it might come back with a power cut
}

namespace {

/// The paths in the folder that end so.
std::vector<std::string> pathsOfRecords(bool arePart) {
    std::vector<std::string> paths;
    for (const std::string& name : folder().empty() ? std::vector<std::string>{} : SystemFiles::namesIn(folder()))
        if (isNameOfRecord(name) && name.ends_with(partEnding) == arePart)
            paths.push_back(folder() + "/" + name);
    return paths;
}

} // namespace

void removeParts() {
    for (const std::string& path : pathsOfRecords(true))
        static_cast<void>(SystemFiles::remove(path));
}

std::vector<std::string> all() { return pathsOfRecords(false); }

} // namespace SaveRecords
} // namespace tallyvane
