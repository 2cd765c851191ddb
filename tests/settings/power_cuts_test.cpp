/// Every state that a power cut in the middle of a save can leave, and what the next start makes of it.
#include <iostream>

#include "platform/files/replacement.h"
#include "platform/files/save_record.h"
#include "platform/files/text_output_stream.h"
#include "settings/unfinished_saves.h"
#include "settings/unsaved_files.h"
#include "support/failing_disk.h"
#include "support/power_cuts.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

/// Days of a table, each of 40 bytes.
std::string days(int count, const std::string& reading) {
    std::string table;
    for (int day = 0; day < count; ++day)
        table += "1/" + std::to_string(10 + day) + "/2026@#@" + reading + "@#@@#@@#@@#@@#@@#@@#@@#@\n";
    return table;
}

class PowerCutsTest : public TestDesk {
protected:
    void SetUp() override {
        TestDesk::SetUp();
        makeApplicationFolder();
        std::filesystem::create_directory(folder_ / "days");
        SaveRecords::useFolder((folder_ / "Tallyvane").string());
    }
    void TearDown() override {
        SaveRecords::useFolder("");
        TestDesk::TearDown();
    }

    std::filesystem::path table() const { return folder_ / "days" / "7VXData"; }
    UnsavedFiles::UserFile userFile() const { return {"Your days", "7VXData", GetFolderItem(table().string()), false}; }

    void replace(const std::string& text) const { writeFile(table().string(), text, Replacement::Recorded::always); }

    /// What the next start reads; "" for no file.
    std::string afterStart() const {
        static_cast<void>(UnfinishedSaves::finishAll([](const auto&) { return true; }));
        return std::filesystem::exists(table()) ? read(table()) : "";
    }

    /// Saves, and has a start look at all that a cut can leave: it finds the old table or the new one, and the new one
    /// once the save has returned. How many states there were.
    std::size_t tryAll(const std::string& old, const std::string& fresh, const std::function<void()>& save) const {
        std::size_t wrong = 0;
        PowerCuts cuts(folder_);
        save();
        const std::size_t states = cuts.visit([&](bool isAfterEnd) {
            const std::string found = afterStart();
            wrong += found != fresh && (isAfterEnd || found != old);
            wrong += SaveRecords::all().empty() ? 0 : 1;
        });
        EXPECT_EQ(wrong, 0U) << "of " << states;
        return states;
    }
};

TEST_F(PowerCutsTest, EverySaveIsFoundDoneOrNotBegun) {
    struct Row {
        const char* name;
        std::string old;
        std::string fresh;
    };
    const std::vector<Row> rows{
        {"a day more", days(40, "5.5"), days(41, "5.5")},
        {"a first save", "", days(40, "5.5")},
        {"another reading everywhere", days(100, "5.5"), days(100, "7.7")},
        {"longer everywhere", days(40, "5.5"), days(45, "12.7")},
        {"shorter everywhere", days(45, "12.7"), days(40, "5")},
        {"cut at the end of a line", days(45, "5.5"), days(40, "5.5")},
        {"the last day removed", days(1, "5.5"), ""},
    };
    std::size_t states = 0;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        if (row.old.empty())
            std::filesystem::remove(table());
        else
            write(table(), row.old);
        states += tryAll(row.old, row.fresh, [&] { replace(row.fresh); });
    }
    std::cout << states << " states of a save\n";
}

TEST_F(PowerCutsTest, WithoutARecordTheCheckFindsMixtures) {
    SaveRecords::useFolder("");
    const std::string old = days(40, "5.5");
    const std::string fresh = days(40, "7.7");
    write(table(), old);
    std::size_t mixtures = 0;
    PowerCuts cuts(folder_);
    replace(fresh);
    cuts.visit([&](bool) { mixtures += read(table()) != old && read(table()) != fresh; });
    EXPECT_GT(mixtures, 0U) << "a check that finds nothing here checks nothing";
    std::cout << mixtures << " mixtures without a record\n";
}

TEST_F(PowerCutsTest, AFailedSaveLeavesTheOldTableOrTheNew) {
    using Call = FailingDisk::Call;
    const std::string old = days(20, "5.5");
    const std::string fresh = days(21, "7.7");
    std::size_t states = 0;
    const auto fail = [&](Call call, std::size_t afterBytes, bool once) {
        SCOPED_TRACE(static_cast<int>(call) * 100000 + static_cast<int>(afterBytes));
        write(table(), old);
        std::size_t wrong = 0;
        PowerCuts cuts(folder_);
        {
            const FailingDisk disk(call, afterBytes, once);
            EXPECT_THROW(replace(fresh), IOException);
        }
        states += cuts.visit([&](bool) {
            const std::string found = afterStart();
            wrong += found != fresh && found != old;
        });
        EXPECT_EQ(wrong, 0U);
    };
    for (const bool once : {true, false}) {
        fail(Call::reserve, 0, once);
        fail(Call::flush, 0, once); // of the record
        fail(Call::flush, 2, once); // of the table
        for (const std::size_t bytes : {0, 700, 1000, 1300, 1700})
            fail(Call::write, bytes, once);
    }
    std::cout << states << " states of a failed save\n";
}

TEST_F(PowerCutsTest, AfterASaveThatCouldNotBePutBackTheNextOneIsAsSafe) {
    const Texts texts{days(10, "5.5"), days(10, "7.7"), days(11, "8.8")};
    std::size_t states = 0;
    for (const bool failsAgain : {false, true})
        for (const auto call : {FailingDisk::Call::write, FailingDisk::Call::flush}) {
            SCOPED_TRACE(failsAgain * 10 + static_cast<int>(call));
            write(table(), texts[0]);
            static_cast<void>(afterStart());
            PowerCuts cuts(folder_);
            {
                const FailingDisk disk(call, call == FailingDisk::Call::write ? 850 : 2, false);
                EXPECT_THROW(replace(texts[1]), IOException);
            }
            if (failsAgain) {
                const FailingDisk disk(FailingDisk::Call::reserve);
                EXPECT_THROW(replace(texts[2]), IOException);
            } else {
                replace(texts[2]);
            }
            std::size_t wrong = 0;
            states += cuts.visit([&](bool isAfterEnd) {
                const std::string found = afterStart();
                wrong += isAfterEnd ? found != texts[2] : std::find(texts.begin(), texts.end(), found) == texts.end();
            });
            EXPECT_EQ(wrong, 0U);
        }
    std::cout << states << " states of a save after a failed one\n";
}

TEST_F(PowerCutsTest, AStartThatIsCutOffIsMadeGoodByTheNext) {
    const std::string old = days(20, "5.5");
    const std::string fresh = days(20, "7.7");
    std::size_t states = 0;
    const std::string mixture = fresh.substr(0, 512) + old.substr(512);
    for (const std::string& found : {old, mixture, fresh, std::string()}) {
        std::filesystem::remove_all(folder_ / "days");
        write(table(), found);
        SaveRecords::keep(table().string(), Fingerprint::of(old), fresh);
        states += tryAll(fresh, fresh, [this] { EXPECT_NE(afterStart(), ""); });
    }
    std::cout << states << " states of a start that finishes a save\n";
}

} // namespace
} // namespace tallyvane
