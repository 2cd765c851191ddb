#include "exchange/import_reader.h"

#include "diary/day_table.h"
#include "platform/base/text.h"
#include "platform/base/text_decoding.h"

namespace tallyvane {

ImportReader::ImportReader(std::string text, std::string delimiter)
    : size_(text.size()), stream_(std::move(text)), delimiter_(std::move(delimiter)) {}

std::unique_ptr<ImportReader> ImportReader::open(const FolderItem& file, std::string delimiter) {
    std::optional<TextInputStream> stream = file.OpenAsTextFile();
    if (!stream)
        return nullptr;
    return std::unique_ptr<ImportReader>(
        new ImportReader(withoutByteOrderMark(std::string(stream->ReadAll())), std::move(delimiter)));
}

bool ImportReader::readFor(Milliseconds time) {
    constexpr int linesPerTimeCheck = 64;
    const Milliseconds end = clock() + time;
    do
        for (int line = 0; line < linesPerTimeCheck && !atEnd_; ++line)
            readLine();
    while (!atEnd_ && clock() < end);
    return atEnd_;
}

void ImportReader::readLine() {
    FieldWalk fields(stream_.ReadLine(), delimiter_);
    Row row;
    row.reserve(DayTable::columnCount); // the table adds its hidden columns
    for (int column = 0; column < DayTable::visibleColumns; ++column)
        row.emplace_back(fields.next());
    rows_.push_back(std::move(row));
    atEnd_ = stream_.EndOfFile();
}

double ImportReader::progress() const {
    return size_ == 0 ? 1 : static_cast<double>(size_ - stream_.bytesLeft()) / static_cast<double>(size_);
}

} // namespace tallyvane
