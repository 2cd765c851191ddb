#include "shell/unsaved_work.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/base/date.h"
#include "platform/base/number.h"
#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"
#include "platform/files/system_files.h"
#include "platform/windows/dialogs.h"
#include "settings/damaged_files.h"
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

std::string listOf(const std::vector<RescuedFiles::Rescued>& files) {
    std::string list;
    for (const RescuedFiles::Rescued& file : files)
        list.append("\n").append(tr("%1, kept %2: %3", {file.what, file.when, file.place}));
    return list;
}

bool isInApplicationFolder(const std::string& path) {
    const std::optional<FolderItem> folder = DataFiles::applicationFolder();
    return folder && path.starts_with(folder->AbsolutePath() + "/");
}

void putInPlace(const std::vector<RescuedFiles::Rescued>& files, const FolderCheck& mayWriteIn) {
    std::string away;
    std::string failed;
    for (const RescuedFiles::Rescued& file : files) {
        const std::optional<FolderItem> folder = GetFolderItem(file.place.substr(0, file.place.rfind('/')));
        if (isInApplicationFolder(file.place)) // which may lack the folder inside it
            SystemFiles::makeFolders(folder->AbsolutePath());
        if (!folder || !folder->Directory() || !mayWriteIn(folder))
            away.append("\n").append(file.place);
        else if (const std::optional<RescuedFiles::Failure> failure = RescuedFiles::putInPlace(file))
            failed.append("\n").append(tr("%1: %2", {file.what, failure->why})).append("\n").append(failure->keptAt);
    }
    if (!away.empty())
        MsgBox(tr(
            "The folders of these are not there, or another Tallyvane has them open. They will be offered again:\n%1",
            {away}));
    if (!failed.empty())
        MsgBox(
            tr("These can't be put in their places yet. They are shown as they were kept, and saved as soon as that is "
               "possible; until then they are kept here too:\n%1",
               {failed}));
}

void setAside(const std::vector<RescuedFiles::Rescued>& files) {
    std::string list;
    for (const RescuedFiles::Rescued& file : files)
        for (const std::string& path : RescuedFiles::setAside(file))
            list.append("\n").append(tr("%1: %2", {file.what, path}));
    MsgBox(tr("They are kept:\n%1", {list}));
}

/// What is damaged, and what the copy holds.
std::string describe(const DamagedFiles::Copy& copy) {
    if (copy.file.name == DataFiles::dayTable)
        return copy.daysOfTable == 1
                   ? tr("The file with your days is empty or cut off: it holds 1 whole day. The copy of %1 holds %2 "
                        "days.",
                        {copy.day.ShortDate(), Grouped(copy.days)})
                   : tr("The file with your days is empty or cut off: it holds %1 whole days. The copy of %2 holds %3 "
                        "days.",
                        {Grouped(copy.daysOfTable), copy.day.ShortDate(), Grouped(copy.days)});
    return tr("%1: the file is empty or cut off. The copy of %2 holds more.", {copy.file.what, copy.day.ShortDate()});
}

Answer askForCopy(const DamagedFiles::Copy& copy, const std::string& kept, const std::string& whyNotKept) {
    std::string question = describe(copy) + tr(" Do you want it back in its place?");
    if (!kept.empty())
        question += tr(" What the file holds now is kept as \u201c%1\u201d.", {kept});
    if (!whyNotKept.empty())
        question += tr(" What the file holds now can't be kept beside it: %1", {whyNotKept});
    return Ask(question, tr("Bring It Back"), tr("Go On Without It"));
}

/// Something stands there that is not what belongs there, or can't be read.
bool isInTheWay(const std::optional<FolderItem>& place, SystemFiles::Kind wanted) {
    const SystemFiles::Kind kind = place ? SystemFiles::kindOf(place->AbsolutePath()) : SystemFiles::Kind::none;
    const bool isUnreadable = kind == SystemFiles::Kind::file && !SystemFiles::read(place->AbsolutePath());
    return kind != SystemFiles::Kind::none && (kind != wanted || isUnreadable);
}

} // namespace

Outcome ask() {
    enum Choice : std::size_t { tryAgain, elsewhere, giveUp };
    while (!UnsavedFiles::all().empty()) {
        const std::optional<std::size_t> choice =
            Ask(tr("Not everything could be saved.%1", {listOfUnsaved()}),
                {tr("Try Again"), tr("Save Elsewhere..."), tr("Quit Without Saving")}, tryAgain);
        if (!choice)
            return Outcome::unanswered;
        if (*choice == giveUp)
            return Outcome::givenUp;
        if (*choice == tryAgain)
            UnsavedFiles::tryAgain();
        else
            saveElsewhere();
    }
    return Outcome::saved;
}

bool offerRescued(const FolderCheck& mayWriteIn) {
    const std::vector<RescuedFiles::Rescued> files = RescuedFiles::pending();
    if (files.empty())
        return true;
    const Answer answer = Ask(tr("When Tallyvane was ended, these files could not be saved in their places:\n%1\n\nDo "
                                 "you want to put them in their places now? What stands there is kept beside them.",
                                 {listOf(files)}),
                              tr("Put Them in Place"), tr("Go On Without Them"));
    if (answer == Answer::yes)
        putInPlace(files, mayWriteIn);
    else if (answer == Answer::no)
        setAside(files);
    return answer != Answer::none;
}

bool mayReadHuge() {
    const std::vector<std::string> paths = DamagedFiles::hugeFiles();
    return std::all_of(paths.begin(), paths.end(), [](const std::string& path) {
        constexpr std::uintmax_t megabyte = 1'000'000;
        const auto megabytes = static_cast<int>(SystemFiles::sizeOf(path) / megabyte);
        return Ask(tr("\u201c%1\u201d holds %2 megabytes, and the diary of a life would hold 2. It is probably no "
                      "diary "
                      "any more. Reading it can take minutes and much memory.",
                      {path, Grouped(megabytes)}),
                   tr("Read It"), tr("Quit")) == Answer::yes;
    });
}

bool offerCopies() {
    const Date today;
    for (const DamagedFiles::Copy& copy : DamagedFiles::findFullerCopies(today)) {
        std::string kept;
        std::string whyNotKept;
        try {
            kept = DamagedFiles::keep(copy, today);
        } catch (const IOException& failure) {
            whyNotKept = failure.why();
        }
        const Answer answer = askForCopy(copy, kept, whyNotKept);
        if (answer == Answer::none)
            return false;
        const std::string why = answer == Answer::yes ? DamagedFiles::restore(copy, whyNotKept) : "";
        if (!why.empty())
            MsgBox(
                tr("The copy can't be put in its place: %1\n\nTallyvane shows it all the same, and saves it as soon as "
                   "that is possible.",
                   {why}));
    }
    return true;
}

void reportFinished(const std::vector<UnfinishedSaves::Finished>& files) {
    for (const auto& [path, keptAt] : files)
        MsgBox(tr(
            "Tallyvane was cut off while it was saving \u201c%1\u201d. The save has been finished now. What the file "
            "held is kept as \u201c%2\u201d.",
            {path, keptAt}));
}

void reportUnreadable() {
    using namespace DataFiles;
    using enum SystemFiles::Kind;
    constexpr std::array names{preferences, headings, runningLogs, journal, contacts, medications};
    std::vector<std::optional<FolderItem>> inTheWay;
    const auto look = [&](const std::optional<FolderItem>& place, SystemFiles::Kind wanted) {
        if (isInTheWay(place, wanted))
            inTheWay.push_back(place);
    };
    const std::optional<FolderItem>& days = StartupGlobals::gDataFolder;
    look(days ? days->Child(dayTable) : std::nullopt, file);
    for (const std::string_view name : names)
        look(applicationFile(name), file);
    look(applicationFile(applicationName), folder);
    for (const std::string_view name : {runningLogs, resources})
        look(innerFile(name), file);
    std::string list;
    for (const std::optional<FolderItem>& place : inTheWay)
        list.append("\n").append(place->AbsolutePath());
    if (!list.empty())
        MsgBox(tr("This can't be read or saved, since something else stands in its place, or is not "
                  "yours to read. Close Tallyvane, mend that, "
                  "then start it again:\n%1",
                  {list}));
}

} // namespace tallyvane::UnsavedWork
