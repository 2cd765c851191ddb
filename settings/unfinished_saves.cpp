#include "settings/unfinished_saves.h"

#include "platform/base/date.h"
#include "platform/files/replacement.h"
#include "platform/files/save_record.h"
#include "platform/files/system_files.h"
#include "settings/data_files.h"
#include "settings/unsaved_files.h"

namespace tallyvane::UnfinishedSaves {

namespace {

/// Keeps a file that holds neither the old nor the new text. The path of the copy.
std::string keepDamaged(const FolderItem& folder, const FolderItem& file, const std::string& content) {
    return UnsavedFiles::writeNewCopy(folder, file.Name() + " damaged " + Date().isoDate(), content).path;
}

/// Gives a file its new text. Where what it held is kept, if it was neither the old nor the new text.
std::string finish(const FolderItem& folder, const FolderItem& file, const SaveRecord& record) {
    const std::string present = SystemFiles::read(record.path).value_or("");
    const Fingerprint print = Fingerprint::of(present);
    const bool isDamaged = !present.empty() && print != record.before && print != Fingerprint::of(record.content);
    std::string keptAt = isDamaged ? keepDamaged(folder, file, present) : "";
    writeFile(record.path, record.content, Replacement::Recorded::always);
    return keptAt;
}

/// The file's path within the application's folder; just its name if it is elsewhere.
std::string nameAmongFiles(const FolderItem& file) {
    const std::optional<FolderItem> folder = DataFiles::applicationFolder();
    const std::string beginning = folder ? folder->AbsolutePath() + "/" : "/";
    const std::string& path = file.AbsolutePath();
    return path.starts_with(beginning) && folder ? path.substr(beginning.size()) : file.Name();
}

/// A place where nothing, or a file that can be read, stands.
bool canBeFinished(const FolderItem& file) {
    const SystemFiles::Kind kind = SystemFiles::kindOf(file.AbsolutePath());
    return kind == SystemFiles::Kind::none ||
           (kind == SystemFiles::Kind::file && SystemFiles::read(file.AbsolutePath()));
}

} // namespace

std::vector<Finished> finishAll(const std::function<bool(const std::optional<FolderItem>& folder)>& mayWriteIn) {
    SaveRecords::removeParts();
    std::vector<Finished> finished;
    for (const std::string& path : SaveRecords::all()) {
        const std::optional<std::string> text = SystemFiles::read(path);
        if (!text)
            continue; // a later start may be able to
        const std::optional<SaveRecord> record = SaveRecord::in(*text);
        if (!record) {
            static_cast<void>(SystemFiles::remove(path));
            continue;
        }
        const std::optional<FolderItem> file = GetFolderItem(record->path);
        const std::optional<FolderItem> folder = GetFolderItem(record->path.substr(0, record->path.rfind('/')));
        if (!file || !folder || !folder->Directory() || !canBeFinished(*file) || !mayWriteIn(folder))
            continue;
        try {
            if (const std::string keptAt = finish(*folder, *file, *record); !keptAt.empty())
                finished.push_back({record->path, keptAt});
        } catch (const IOException& failure) {
            UnsavedFiles::addUnsaved({file->Name(), nameAmongFiles(*file), file}, record->content, failure.why());
        }
    }
    return finished;
}

} // namespace tallyvane::UnfinishedSaves
