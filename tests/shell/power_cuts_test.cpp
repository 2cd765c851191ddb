/// Every state that a power cut can leave of all files while a whole day with the program goes by.
#include <iostream>
#include <set>

#include "platform/files/save_record.h"
#include "settings/data_files.h"
#include "settings/unfinished_saves.h"
#include "shell/app.h"
#include "support/power_cuts.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class RunPowerCutsTest : public TestDesk {
protected:
    /// The files of the program and the user, with what they hold. Records of saves and the lock are none.
    std::map<std::string, std::string> files() const {
        std::map<std::string, std::string> found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_))
            if (entry.is_regular_file() && entry.path().string().find("Unfinished save") == std::string::npos)
                found[entry.path().string()] = read(entry.path());
        return found;
    }
    /// Notes what each file holds between two saves; "" for one that is not there yet.
    void noteVersions() {
        const bool isFirst = versions_.empty();
        for (const auto& [path, content] : files()) {
            if (!isFirst && !versions_.contains(path))
                versions_[path].insert("");
            versions_[path].insert(content);
        }
    }

    std::map<std::string, std::set<std::string>> versions_;
};

TEST_F(RunPowerCutsTest, NoFileIsEverFoundHalfSaved) {
    std::string days;
    for (int day = 1; day <= 28; ++day)
        days += "1/" + std::to_string(day) + "/2026@#@5.5@#@@#@@#@@#@@#@@#@@#@5.5@#@@#@0\n";
    write(applicationFile("7VXData"), days);
    write(applicationFile("QVXLogData"), "walk@#@soup@#@" + std::string(1500, 'j') + "@#@pill\n");
    write(applicationFile("QVXContacts"), "Dr. A@#@@#@@#@@#@@#@@#@\n");
    noteVersions();
    PowerCuts cuts(folder_);
    {
        App app;
        app.Event_Open();
        noteVersions();
        Window1& window = *app.windows().main;
        for (const char* reading : {"6.1", "7.2"}) {
            window.BevelButton1_Action();
            window.ListBox1.userTyped(reading, 3, 0);
            window.JournalFld.Text(std::string("felt ") + reading);
            app.Event_Deactivate();
            noteVersions();
        }
        window.ListBox1.Selected(0, true);
        window.BevelButton2_Action();
        window.showLogs();
        window.showTeamAndMedications();
        window.showResources();
        window.showHeadingsEditor();
        app.FilePreferences_Action();
        for (Window* open : Window::openWindows())
            if (open != &window) {
                open->Close();
                noteVersions();
            }
        window.Close();
        noteVersions();
        app.Event_Close();
        noteVersions();
    }
    std::set<std::string> wrong; // paths
    const auto atTheEnd = files();
    const std::size_t states = cuts.visit([&](bool isAfterEnd) {
        SaveRecords::useFolder((folder_ / "Tallyvane").string());
        static_cast<void>(UnfinishedSaves::finishAll([](const auto&) { return true; }));
        SaveRecords::useFolder("");
        const auto found = files();
        for (const auto& [path, contents] : versions_)
            if (!contents.contains(found.contains(path) ? found.at(path) : ""))
                wrong.insert(path);
        for (const auto& [path, content] : atTheEnd)
            if (isAfterEnd && (!found.contains(path) || found.at(path) != content))
                wrong.insert(path + " after the end");
        const std::filesystem::path set = applicationFile("Snapshots") / "2026-11-22";
        if (std::filesystem::exists(set) && !std::filesystem::exists(set / "QVXContacts"))
            wrong.insert("a set that is not whole");
    });
    EXPECT_EQ(wrong, std::set<std::string>());
    std::cout << states << " states of " << atTheEnd.size() << " files\n";
}

} // namespace
} // namespace tallyvane
