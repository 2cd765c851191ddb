/// Days that leave the table for a file, and files that come into it.
#include "diary/day_table.h"
#include "exchange/archive.h"
#include "exchange/archive_window.h"
#include "exchange/export_data.h"
#include "exchange/export_window.h"
#include "exchange/import_window.h"
#include "support/test_desk.h"

#include <sys/stat.h>

namespace tallyvane {

namespace {

using Cells = std::vector<std::string>;

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

    void addRow(const Cells& cells) {
        table_.AddRow("");
        for (std::size_t i = 0; i < cells.size(); ++i)
            table_.Cell(table_.LastIndex(), static_cast<int>(i), cells[i]);
    }
    std::vector<Cells> rows(int columns = 10) const {
        std::vector<Cells> all;
        for (int row = 0; row < table_.ListCount(); ++row) {
            Cells cells;
            for (int column = 0; column < columns; ++column)
                cells.push_back(table_.Cell(row, column));
            all.push_back(cells);
        }
        return all;
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

Cells padded(Cells cells) {
    cells.resize(10);
    return cells;
}

// Export

TEST_F(ExchangeTest, AllDaysAreExportedUnchanged) {
    addRow({"11/1/2026", "5", "", "a,b", "", "", "", "7", "6", "80", "hidden key"});
    addRow({"", "x"});
    table_.select({false, true});
    struct Row {
        const char* delimiter;
        const char* want;
    };
    for (const Row& row : {Row{",", "11/1/2026,5,,a,b,,,,7,6,80\n,x,,,,,,,,\n"},
                           Row{"\t", "11/1/2026\t5\t\ta,b\t\t\t\t7\t6\t80\n\tx\t\t\t\t\t\t\t\t\n"}}) {
        ExportData(table_, row.delimiter, item("days.txt"));
        EXPECT_EQ(read(path()), row.want);
    }
    EXPECT_NO_THROW(ExportData(table_, ",", std::nullopt));
}

TEST_F(ExchangeTest, AnExportGetsItsEndingUnlessThatNameIsTaken) {
    struct Row {
        const char* name;
        const char* want;
        bool taken; // the name with ".txt" by another file
    };
    const std::vector<Row> rows{{"a.txt", "a.txt", false},
                                {"b", "b.txt", false},
                                {"c.csv", "c.csv.txt", false},
                                {"d.TXT", "d.TXT.txt", false},
                                {"e", "e", true}};
    for (const Row& row : rows) {
        if (row.taken)
            write(path(std::string(row.name) + ".txt"), "somebody's");
        ExportData(table_, ",", item(row.name));
        EXPECT_EQ(read(path(row.want)), "") << row.name;
        EXPECT_EQ(std::filesystem::exists(path(row.name)), std::string(row.name) == row.want) << row.name;
    }
    EXPECT_EQ(read(path("e.txt")), "somebody's");
}

TEST_F(ExchangeTest, TheExportWindowClosesWhateverTheDialogSays) {
    addRow({"11/1/2026", "5"});
    struct Row {
        const char* name;
        bool tabs;
        const char* answer;
        const char* want;
    };
    for (const Row& row :
         {Row{"commas", false, "a.txt", "11/1/2026,5,,,,,,,,\n"},
          Row{"tabs", true, "b.txt", "11/1/2026\t5\t\t\t\t\t\t\t\t\n"}, Row{"cancelled", false, nullptr, nullptr}}) {
        exportWindow window(table_);
        window.Show();
        EXPECT_TRUE(window.RadioButton1.Value()) << row.name;
        if (row.tabs)
            window.RadioButton2.userChose();
        EXPECT_EQ(window.RadioButton1.Value(), !row.tabs) << row.name;
        toolkit_.answer = row.answer == nullptr ? "" : path(row.answer).string();
        window.PushButton1.Action();
        EXPECT_FALSE(window.isOpen()) << row.name;
        EXPECT_EQ(toolkit_.dialogs.back(), "Save your data|Enter a filename|Tallyvane Data");
        if (row.want != nullptr)
            EXPECT_EQ(read(path(row.answer)), row.want) << row.name;
    }
}

// Import

TEST_F(ExchangeTest, LinesBecomeRows) {
    struct Row {
        const char* name;
        std::string file;
        bool tabs;
        std::vector<Cells> want;
    };
    const std::vector<Row> table{
        {"two days", "1/1/2026,5,6\n1/2/2026,7\n", false, {{"1/1/2026", "5", "6"}, {"1/2/2026", "7"}}},
        {"tabs", "1/1/2026\t5,5\t6\n", true, {{"1/1/2026", "5,5", "6"}}},
        {"tabs as commas", "1/1/2026\t5\n", false, {{"1/1/2026\t5"}}},
        {"no last line end", "a\nb", false, {{"a"}, {"b"}}},
        {"CR LF and CR", "a\r\nb\rc\r\n", false, {{"a"}, {"b"}, {"c"}}},
        {"empty", "", false, {{}}},
        {"an empty line inside", "a\n\nb\n", false, {{"a"}, {}, {"b"}}},
        {"eleven fields", "0,1,2,3,4,5,6,7,8,9,10\n", false, {{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}}},
        {"quotes and a first line of names", "Date,\"a\"\n\"1\",2\n", false, {{"Date", "\"a\""}, {"\"1\"", "2"}}},
        {"a mark of UTF-8",
         "\xEF\xBB\xBF"
         "1/1/2026,5\n",
         false,
         {{"1/1/2026", "5"}}},
        {"UTF-16",
         std::string("\xFF\xFE"
                     "d\0,\0\xE4\0\n\0",
                     10),
         false,
         {{"d", "\u00e4"}}},
        {"bytes of any kind", std::string("\xff\x00,\xc3\n", 5), false, {{std::string("\xff\0", 2), "\xc3"}}},
    };
    for (const Row& row : table) {
        table_.DeleteAllRows();
        addRow({"before"});
        write(path(), row.file);
        import(row.tabs);
        std::vector<Cells> want{padded({"before"})};
        for (const Cells& cells : row.want)
            want.push_back(padded(cells));
        EXPECT_EQ(rows(), want) << row.name;
    }
    EXPECT_EQ(toolkit_.dialogs.back(), "Select glucose readings data file|txt,csv");
}

TEST_F(ExchangeTest, WhatCannotBeReadChangesNothing) {
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    std::filesystem::create_directory(path("folder"));
    for (const char* name : {"nothing there", "pipe", "folder"}) {
        toolkit_.answer = path(name).string();
        import();
        EXPECT_EQ(table_.ListCount(), 0) << name;
    }
    toolkit_.answer = "";
    import();
    EXPECT_EQ(table_.ListCount(), 0) << "cancelled";
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
        const std::vector<Cells> before = rows();
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
    addRow({"11/1/2026", "5", "", "6", "", "", "", "7", "6.0", "80"});
    addRow({"11/2/2026", "9"});
    addRow({"11/3/2026"});
    EXPECT_EQ(archiveSelected(table_), "");
    FileArchiveSelectedDays_Action(table_);
    EXPECT_EQ(toolkit_.messages, std::vector<std::string>{"Please select 2 or more rows to archive"});
    EXPECT_TRUE(toolkit_.dialogs.empty());

    table_.select({true, false, true});
    FileArchiveSelectedDays_Action(table_);
    EXPECT_EQ(toolkit_.dialogs.back(), "Save archive|Enter name|untitled");
    EXPECT_EQ(read(path()), "11/1/2026     5     --     6     --     --     --     7     AV: 6.0\n\n"
                            "11/3/2026     --     --     --     --     --     --     --     AV: \n\n\n");
    EXPECT_EQ(table_.SelectedCount(), 2);
}

TEST_F(ExchangeTest, AnyTextOpensAsAnArchiveAndIsPrintedUnderItsName) {
    write(path("November"), "one line\nand another\n");
    std::unique_ptr<archiveWindow> window;
    for (const char* answer : {"", "nothing there"}) {
        toolkit_.answer = *answer == '\0' ? "" : path(answer).string();
        FileOpenArchivedDays_Action(window);
        EXPECT_EQ(window, nullptr) << answer;
    }
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
    ASSERT_EQ(toolkit_.printed.size(), 3U);
    EXPECT_EQ(toolkit_.printed[0].text, "November");
    EXPECT_TRUE(toolkit_.printed[0].style.bold);
    EXPECT_EQ(toolkit_.printed[0].numbers, (std::vector<double>{50, 50}));
    EXPECT_FALSE(toolkit_.printed[1].style.bold);
    EXPECT_EQ(toolkit_.printed[1].numbers, (std::vector<double>{50, 69})) << "a block from 60 on";
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
    const auto& printed = toolkit_.printed;
    EXPECT_EQ(std::count_if(printed.begin(), printed.end(), [](const auto& call) { return call.text == "December"; }),
              1);
    const auto second =
        std::find_if(printed.begin(), printed.end(), [](const auto& call) { return call.operation == "NextPage"; });
    ASSERT_NE(second, printed.end());
    EXPECT_EQ((second + 1)->numbers, (std::vector<double>{50, 69}));
}

} // namespace

} // namespace tallyvane
