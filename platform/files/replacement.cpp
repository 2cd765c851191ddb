#include "platform/files/replacement.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/base/translation.h"
#include "platform/files/save_record.h"
#include "platform/files/system_files.h"

namespace tallyvane {

namespace {

/// The range in which two contents differ, as places in the newer one.
struct Difference {
    std::size_t begin = 0;
    std::size_t end = 0;
};

Difference differenceOf(const std::string& before, const std::string& after) {
    const auto [differs, unused] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    Difference range{static_cast<std::size_t>(differs - before.begin()), after.size()};
    if (before.size() == after.size())
        while (range.end > range.begin && before[range.end - 1] == after[range.end - 1])
            --range.end;
    return range;
}

/// Turns the file from one content into another and sees it to the disk.
void overwrite(PlainFile& file, const std::string& before, const std::string& after, const Difference& range) {
    if (after.size() > before.size())
        file.reserve(after.size());
    file.write(std::string_view(after).substr(range.begin, range.end - range.begin), range.begin);
    if (after.size() < before.size())
        file.cut(after.size());
    file.flush();
}

/// Puts a content back after a failed overwrite, whatever that left.
void restore(PlainFile& file, const std::string& content) {
    file.write(content, 0);
    file.cut(content.size());
    file.flush();
}

} // namespace

Replacement::Replacement(std::unique_ptr<PlainFile> file, std::string path, Recorded recorded)
    : file_(std::move(file)), path_(std::move(path)), isRecorded_(recorded == Recorded::always || !file_->isNew()),
      wasRecorded_(SaveRecords::isKept(path_)) {}

std::unique_ptr<Replacement> Replacement::open(const std::string& path, Recorded recorded, std::string* why) {
    std::unique_ptr<PlainFile> file = PlainFile::openOrMake(path, why);
    if (!file)
        return nullptr;
    return std::unique_ptr<Replacement>(new Replacement(std::move(file), path, recorded));
}

Replacement::~Replacement() {
    if (file_->isNew() && !isReplaced_)
        static_cast<void>(SystemFiles::remove(path_)); // it is empty: nothing is lost if it stays
}

void Replacement::overwriteOrRestore(const std::string& before, const std::string& after) {
    // What a failed flush has not taken counts as written all the same, so nothing is left out after one.
    const Difference range = wasRecorded_ ? Difference{0, after.size()} : differenceOf(before, after);
    try {
        overwrite(*file_, before, after, range);
    } catch (const IOException& failure) {
        try {
            restore(*file_, before);
        } catch (const IOException&) { // the record stays
            throw failure;
        }
        if (!wasRecorded_) // else what was put back is no whole table
            SaveRecords::drop(path_);
        throw;
    }
}

void Replacement::replace(const std::string& text) {
    const std::optional<std::string> before = file_->read();
    if (!before)
        throw IOException("can't read the file that is to be replaced: " + path_, tr("it is unreadable or too large"));
    if (before != text || file_->isNew() || wasRecorded_) {
        if (isRecorded_)
            SaveRecords::keep(path_, Fingerprint::of(*before), text);
        overwriteOrRestore(*before, text);
        isReplaced_ = true;
        if (file_->isNew() && !SystemFiles::flushFolderOf(path_))
            throw IOException("can't enter " + path_ + " into its folder");
    }
    file_->close();
    SaveRecords::drop(path_);
}

void writeFile(const std::string& path, const std::string& text, Replacement::Recorded recorded) {
    std::string why;
    const auto file = Replacement::open(path, recorded, &why);
    if (!file)
        throw IOException("can't open " + path + " for writing", why);
    file->replace(text);
}

} // namespace tallyvane
