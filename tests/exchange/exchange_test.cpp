/// Days that leave the table for a file, and files that come into it.
#include "diary/day_table.h"
#include "exchange/archive.h"
#include "exchange/archive_window.h"
#include "exchange/export_data.h"
#include "exchange/export_window.h"
#include "exchange/import_window.h"
#include "platform/controls/list_history.h"
#include "support/drawn.h"
#include "support/test_desk.h"

#include <sys/stat.h>

namespace tallyvane {

namespace {

class ExchangeTest : public TestDesk {
protected:
    void SetUp() override {
        TestDesk::SetUp();
        toolkit_.answer = path().string();
    }
    void TearDown() override {
        ImportReader::clock = realClock_;
        TestDesk::TearDown();
    }
    /// The file that the user chooses.
    std::filesystem::path path(const std::string& name = "days.txt") const { return folder_ / name; }
    std::optional<FolderItem> item(const std::string& name) const { return GetFolderItem(path(name).string()); }

    std::vector<Texts> rows() const {
        std::vector<Texts> all;
        for (int row = 0; row < table_.ListCount(); ++row)
            all.push_back(padded({table_.cells(row).begin(), table_.cells(row).end()}));
        return all;
    }
    /// What stands in the columns that are seen.
    static Texts padded(Texts cells) {
        cells.resize(DayTable::visibleColumns);
        return cells;
    }
    /// Imports the file on disk by the window.
    void import(bool tabs = false) {
        importWindow window(table_);
        window.Show();
        if (tabs)
            window.RadioButton2.userChose();
        window.PushButton1.Action();
        EXPECT_FALSE(window.isOpen());
    }

    Listbox table_{DayTable::columnCount};

private:
    std::function<ImportReader::Milliseconds()> realClock_ = ImportReader::clock;
};

// Export

TEST_F(ExchangeTest, AllDaysAreExportedUnchanged) {
    table_.AddRows({{"11/1/2026", "5", "", "a,b", "", "", "", "7", "6", "80", "hidden key"}, {"", "x"}});
    table_.select({false, true});
    ExportData(table_, ",", item("days.txt"));
    EXPECT_EQ(read(path()), "11/1/2026,5,,a,b,,,,7,6,80\n,x,,,,,,,,\n");
    EXPECT_NO_THROW(ExportData(table_, ",", std::nullopt));
}

TEST_F(ExchangeTest, AnExportGetsItsEndingUnlessThatNameIsTaken) {
    write(path("e.txt"), "somebody's");
    for (const auto& [name, want] : {std::pair("a.txt", "a.txt"), {"b", "b.txt"}, {"d.TXT", "d.TXT.txt"}, {"e", "e"}}) {
        ExportData(table_, ",", item(name));
        EXPECT_EQ(read(path(want)), "") << name;
        EXPECT_EQ(std::filesystem::exists(path(name)), std::string(name) == want) << name;
    }
    EXPECT_EQ(read(path("e.txt")), "somebody's");
}

TEST_F(ExchangeTest, TheExportWindowClosesWhateverTheDialogSays) {
    table_.AddRows({{"11/1/2026", "5"}});
    const auto check = [this](bool tabs, const std::string& answer) {
        SCOPED_TRACE(answer);
        exportWindow window(table_);
        window.Show();
        EXPECT_TRUE(window.RadioButton1.Value());
        if (tabs)
            window.RadioButton2.userChose();
        EXPECT_EQ(window.RadioButton1.Value(), !tabs);
        toolkit_.answer = answer;
        window.PushButton1.Action();
        EXPECT_FALSE(window.isOpen());
        EXPECT_EQ(toolkit_.dialogs.back(), "Save your data|Enter a filename|Tallyvane Data");
    };
    check(false, "");
    check(false, path("a.txt"));
    EXPECT_EQ(read(path("a.txt")), "11/1/2026,5,,,,,,,,\n");
    check(true, path("b.txt"));
    EXPECT_EQ(read(path("b.txt")), "11/1/2026\t5\t\t\t\t\t\t\t\t\n");
}

// Import

TEST_F(ExchangeTest, LinesBecomeRows) {
    const auto check = [this](const char* name, const std::string& file, const std::vector<Texts>& want,
                              bool tabs = false) {
        table_.DeleteAllRows();
        table_.AddRows({{"before"}});
        write(path(), file);
        import(tabs);
        std::vector<Texts> all{padded({"before"})};
        for (const Texts& cells : want)
            all.push_back(padded(cells));
        EXPECT_EQ(rows(), all) << name;
    };
    check("tabs", "1/1/2026\t5,5\t6\n", {{"1/1/2026", "5,5", "6"}}, true);
    check("tabs as commas", "1/1/2026\t5\n", {{"1/1/2026\t5"}});
    check("no last line end", "a\nb", {{"a"}, {"b"}});
    check("CR LF and CR", "a\r\nb\rc\r\n", {{"a"}, {"b"}, {"c"}});
    check("empty", "", {Texts()});
    check("an empty line inside", "a\n\nb\n", {{"a"}, {}, {"b"}});
    check("eleven fields", "0,1,2,3,4,5,6,7,8,9,10\n", {{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}});
    check("quotes and a first line of names", "Date,\"a\"\n\"1\",2\n", {{"Date", "\"a\""}, {"\"1\"", "2"}});
    const std::string utf16("\xFF\xFE\x64\0,\0\xE4\0\n\0", 10);
    check("UTF-16", utf16, {{"d", "\u00e4"}});
    check("bytes of any kind", std::string("\xff\x00,\xc3\n", 5), {{std::string("\xff\0", 2), "\xc3"}});
    EXPECT_EQ(toolkit_.dialogs.back(), "Select glucose readings data file|txt,csv");
}

TEST_F(ExchangeTest, AnImportIsUndoneAsOneStep) {
    table_.AddRow("1/1/2026");
    ListHistory history(table_);
    write(path(), "1/13/2026,5\n1/14/2026,6\n");
    import();
    EXPECT_EQ(history.undoName(), "Import of 2 Days");
    history.undo();
    EXPECT_EQ(columnOf(table_, 0), Texts{"1/1/2026"});
    EXPECT_FALSE(history.canUndo());
    history.redo();
    EXPECT_EQ(columnOf(table_, 1), (Texts{"", "5", "6"}));
    EXPECT_EQ(table_.SelectedCount(), 2);
}

TEST_F(ExchangeTest, DatesOfAnotherDesktopAreAskedAbout) {
    write(path(), "3/4/2026,5\n20/4/2026,6\n");
    toolkit_.answers = {0};
    import();
    EXPECT_EQ(toolkit_.questions,
              Texts{"2 dates were written in another form: 3/4/2026 is 2026-04-03. Show them in your form?"});
    EXPECT_EQ(columnOf(table_, 0), (Texts{"4/3/2026", "4/20/2026"}));
    toolkit_.answers = {1};
    import();
    EXPECT_EQ(columnOf(table_, 0), (Texts{"4/3/2026", "4/20/2026", "3/4/2026", "20/4/2026"})) << "left as they are";
    write(path(), "3/4/2026,5\n5/4/2026,6\n");
    toolkit_.answers.clear();
    import();
    EXPECT_EQ(table_.ListCount(), 4) << "the program was ended: nobody knows what they mean";
}

TEST_F(ExchangeTest, WhatCannotBeReadChangesNothing) {
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    std::filesystem::create_directory(path("folder"));
    for (const char* name : {"nothing there", "pipe", "folder", ""}) { // the last one: cancelled
        toolkit_.answer = *name == '\0' ? "" : path(name).string();
        import();
        EXPECT_EQ(table_.ListCount(), 0) << name;
    }
}

TEST_F(ExchangeTest, ALineOfTenMegabytes) {
    const std::string cell(10 << 20, '7');
    write(path(), "1/1/2026," + cell + ",8\n");
    import();
    ASSERT_EQ(table_.ListCount(), 1);
    EXPECT_EQ(table_.Cell(0, 1).size(), cell.size());
    EXPECT_EQ(table_.Cell(0, 2), "8");
}

TEST_F(ExchangeTest, ALongImportShowsItsProgressAndCanBeCancelled) {
    std::string file;
    for (int line = 0; line < 1000; ++line)
        file += std::to_string(line) + ",5\n";
    write(path(), file);
    ImportReader::Milliseconds now{0};
    ImportReader::clock = [&now] { return now += ImportReader::Milliseconds(200); };
    for (const bool cancels : {true, false}) {
        importWindow window(table_);
        window.Show();
        EXPECT_FALSE(window.ProgressBar1.Visible());
        window.PushButton1.Action();
        EXPECT_TRUE(window.ProgressBar1.Visible());
        EXPECT_FALSE(window.PushButton1.Enabled());
        EXPECT_EQ(table_.ListCount(), 0) << "nothing before all is read";
        const int first = window.ProgressBar1.Value();
        EXPECT_GT(first, 0);
        window.Timer1.fire();
        EXPECT_GT(window.ProgressBar1.Value(), first);
        if (cancels)
            window.PushButton2.Action();
        while (window.isOpen() && window.Timer1.Mode() == Timer::ModeSingle)
            window.Timer1.fire();
        EXPECT_FALSE(window.isOpen());
        EXPECT_EQ(window.Timer1.Mode(), Timer::ModeOff);
        EXPECT_EQ(table_.ListCount(), cancels ? 0 : 1000);
    }
    EXPECT_EQ(table_.Cell(999, 0), "999");
}

TEST_F(ExchangeTest, RealDaysGoOutAndInAgain) {
    for (const char* patient : {"patient-01.csv", "patient-20.csv", "patient-27.csv"}) {
        toolkit_.answer = std::string(TEST_DATA) + "/" + patient;
        import();
        ExportData(table_, ",", item("days.txt"));
        EXPECT_EQ(read(path()), read(toolkit_.answer)) << patient;
        const std::vector<Texts> before = rows();
        ExportData(table_, "\t", item("days.txt"));
        table_.DeleteAllRows();
        toolkit_.answer = path().string();
        import(true);
        EXPECT_EQ(rows(), before) << patient;
        table_.DeleteAllRows();
    }
}

// Archive

TEST_F(ExchangeTest, AnArchiveIsForReading) {
    table_.AddRows({{"11/1/2026", "5", "", "6", "", "", "", "7", "6.0", "80"}, {"11/2/2026", "9"}, {"11/3/2026"}});
    FileArchiveSelectedDays_Action(table_);
    EXPECT_EQ(toolkit_.messages, Texts{"Please select 2 or more rows to archive"});
    EXPECT_TRUE(toolkit_.dialogs.empty());

    table_.select({true, false, true});
    FileArchiveSelectedDays_Action(table_);
    EXPECT_EQ(toolkit_.dialogs.back(), "Save archive|Enter name|untitled");
    EXPECT_EQ(read(path()), "11/1/2026     5     --     6     --     --     --     7     AV: 6.0\n\n"
                            "11/3/2026     --     --     --     --     --     --     --     AV: \n\n\n");
    EXPECT_EQ(table_.SelectedCount(), 2);
}

TEST_F(ExchangeTest, AnyTextOpensAsAnArchiveAndIsPrintedUnderItsName) {
    std::unique_ptr<archiveWindow> window;
    for (const char* answer : {"", "/nothing there"}) {
        toolkit_.answer = answer;
        FileOpenArchivedDays_Action(window);
        EXPECT_EQ(window, nullptr) << answer;
    }
    write(path("November"), "one line\nand another\n");
    toolkit_.answer = path("November").string();
    FileOpenArchivedDays_Action(window);
    EXPECT_EQ(toolkit_.dialogs.back(), "Select an archive file|text");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->Title(), "November");
    EXPECT_EQ(window->EditField1.Text(), "one line\nand another\n");

    toolkit_.printerReady = false;
    window->PushButton1_Action();
    EXPECT_TRUE(toolkit_.printed.empty());
    toolkit_.printerReady = true;
    window->PushButton1_Action();
    Texts printed = drawn(toolkit_.printed);
    ASSERT_EQ(printed.size(), 3U);
    EXPECT_EQ(printed[0], "text 50 50 'November'");
    EXPECT_EQ(printed[1], "text 50 69 'one line'") << "a block from 60 on";
    EXPECT_TRUE(toolkit_.printed[0].style.bold);
    EXPECT_FALSE(toolkit_.printed[1].style.bold);
    EXPECT_TRUE(window->isOpen());

    std::string pages;
    for (int line = 0; line < 100; ++line)
        pages += "a day\n";
    write(path("December"), pages);
    toolkit_.answer = path("December").string();
    const archiveWindow* before = window.get();
    FileOpenArchivedDays_Action(window);
    EXPECT_EQ(window.get(), before) << "the window that is open";
    window->PushButton1_Action();
    printed = drawn(toolkit_.printed);
    EXPECT_EQ(std::count(printed.begin(), printed.end(), "text 50 50 'December'"), 1);
    const auto second = std::find(printed.begin(), printed.end(), "page");
    ASSERT_NE(second, printed.end());
    EXPECT_EQ(*(second + 1), "text 50 69 'a day'");
}

} // namespace

} // namespace tallyvane
