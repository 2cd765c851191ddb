#include "shell/unsaved_work.h"

#include <array>

#include "platform/dialogs.h"
#include "platform/system_files.h"
#include "platform/toolkit.h"
#include "platform/translation.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/rescued_files.h"
#include "settings/unsaved_files.h"

namespace tallyvane::UnsavedWork {

namespace {

std::string pathOf(const UnsavedFiles::UserFile& file) { return file.place ? file.place->AbsolutePath() : file.name; }

std::string listOfUnsaved() {
    std::string list;
    for (const auto& [file, text, why] : UnsavedFiles::all())
        list.append("\n\n").append(tr("%1: %2", {file.what, why})).append("\n").append(pathOf(file));
    return list;
}

void saveElsewhere() {
    const std::optional<FolderItem> folder = SelectFolderDialog{tr("Select a folder to save in")}.ShowModal();
    if (!folder)
        return;
    const std::string name = tr("Tallyvane unsaved %1", {Date().isoDate()});
    if (const std::optional<FolderItem> target = UnsavedFiles::saveInto(*folder, name))
        MsgBox(tr("What could be saved there is in \u201c%1\u201d. The next start opens the files in their old places: "
                  "bring these back first. The file \u201c%2\u201d tells where each belongs.",
                  {target->AbsolutePath(), std::string(UnsavedFiles::listName)}));
    else
        MsgBox(tr("Nothing can be saved in \u201c%1\u201d.", {folder->AbsolutePath()}));
}

std::string listOf(const RescuedFiles::Set& set) {
    std::string list;
    for (const RescuedFiles::Rescued& file : set.files)
        list.append("\n").append(tr("%1: %2", {file.what, file.place}));
    return list;
}

void putInPlaceOrTell(const RescuedFiles::Set& set, const Date& today) {
    try {
        RescuedFiles::putInPlace(set, today);
    } catch (const IOException& failure) {
        MsgBox(
            tr("The files can't be put in their places: %1\n\nThey stay in \u201c%2\u201d and will be offered again.",
               {failure.why().empty() ? failure.what() : failure.why(), set.folder.AbsolutePath()}));
    }
}

} // namespace

void ask() {
    enum Choice : std::size_t { tryAgain, elsewhere, giveUp };
    while (!UnsavedFiles::all().empty()) {
        const std::optional<std::size_t> choice =
            Ask(tr("Not everything could be saved.%1", {listOfUnsaved()}),
                {tr("Try Again"), tr("Save Elsewhere..."), tr("Quit Without Saving")}, tryAgain);
        if (!choice || *choice == giveUp)
            return;
        if (*choice == tryAgain)
            UnsavedFiles::tryAgain();
        else
            saveElsewhere();
    }
}

bool offerRescued(const Date& today) {
    for (const RescuedFiles::Set& set : RescuedFiles::sets()) {
        if (set.files.empty())
            continue;
        const Answer answer =
            Ask(tr("When Tallyvane was ended, these files could not be saved in their places, and were kept in "
                   "\u201c%1\u201d:"
                   "\n%2\n\nDo you want to put them in their places now? What stands there is kept beside them.",
                   {set.folder.AbsolutePath(), listOf(set)}),
                tr("Put Them in Place"), tr("Go On Without Them"));
        if (answer == Answer::none)
            return false;
        if (answer == Answer::yes)
            putInPlaceOrTell(set, today);
        else
            MsgBox(tr("They are kept in \u201c%1\u201d.", {RescuedFiles::setAside(set, today)}));
    }
    return true;
}

void tellOfUnreadable() {
    using namespace DataFiles;
    constexpr std::array names{preferences, headings, runningLogs, journal, contacts, medications};
    std::vector<std::optional<FolderItem>> files;
    const std::optional<FolderItem>& folder = StartupGlobals::gDataFolder;
    files.push_back(folder ? folder->Child(dayTable) : std::nullopt);
    for (const std::string_view name : names)
        files.push_back(applicationFile(name));
    for (const std::string_view name : {runningLogs, resources})
        files.push_back(innerFile(name));
    std::string list;
    for (const std::optional<FolderItem>& file : files) {
        const SystemFiles::Kind kind = file ? SystemFiles::kindOf(file->AbsolutePath()) : SystemFiles::Kind::none;
        if (kind == SystemFiles::Kind::folder || kind == SystemFiles::Kind::other)
            list.append("\n").append(file->AbsolutePath());
    }
    if (!list.empty())
        MsgBox(tr("This can't be read or saved, since what stands in its place is no file. Move it away, then start "
                  "Tallyvane again:\n%1",
                  {list}));
}

} // namespace tallyvane::UnsavedWork
