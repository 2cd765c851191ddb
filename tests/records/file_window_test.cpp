#include "records/file_window.h"

#include "platform/files/system_files.h"
#include "settings/globals.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class FileWindowTest : public TestDesk {
protected:
    std::filesystem::path list() const { return applicationFile("Tallyvane") / "QVXFileData"; }
    void openWith(const std::string& content) {
        std::filesystem::create_directories(applicationFile("Tallyvane"));
        write(list(), content);
        files_.Show();
    }
    FolderItem fileNamed(const std::string& name) const {
        write(folder_ / name, "text");
        return *GetFolderItem((folder_ / name).string());
    }

    fileWindow files_;
};

TEST_F(FileWindowTest, EntriesAreReadAndWrittenAgain) {
    const std::string content = "Guide@@@www.example.org###Jane@@@jane@example.org###note@@@file:///nowhere\n";
    openWith(content);
    EXPECT_TRUE(Globals::gFileWindowOpen);
    ASSERT_EQ(files_.ListBox1.ListCount(), 3);
    for (const int row : {0, 1, 2})
        EXPECT_EQ(files_.ListBox1.RowPicture(row).has_value(), row < 2) << row;
    EXPECT_EQ(files_.ListBox1.Cell(2, 1), "file:///nowhere") << "without the line end";
    files_.PushButton1.Action();
    EXPECT_FALSE(Globals::gFileWindowOpen);
    EXPECT_EQ(read(list()), content);
}

TEST_F(FileWindowTest, LinksOfAnotherProgramAreJoined) {
    openWith("Guide@@@www.example.org\n");
    files_.ListBox1.AddRow("Jane");
    files_.ListBox1.Cell(1, 1, "jane@example.org");
    write(list(), "News@@@www.example.com###Guide@@@www.example.org\n");
    files_.Close();
    EXPECT_EQ(read(list()), "News@@@www.example.com###Guide@@@www.example.org###Jane@@@jane@example.org\n");
}

TEST_F(FileWindowTest, FilesComeByDialogAndByDrop) {
    const FolderItem file = fileNamed("my notes.txt");
    files_.Show();
    files_.BevelButton1.Action();
    EXPECT_EQ(toolkit_.dialogs.back(), "Select a file|all");
    EXPECT_EQ(files_.ListBox1.ListCount(), 0) << "cancelled";
    toolkit_.answer = file.AbsolutePath();
    files_.UtilityButton1.Action();
    EXPECT_EQ(files_.ListBox1.Cell(0, 0), "my notes.txt");
    EXPECT_EQ(read(list()), "my notes.txt@@@" + file.GetSaveInfo() + "\n") << "saved at once";
    files_.ListBox1.DropObject({file, std::nullopt});
    EXPECT_EQ(files_.ListBox1.ListCount(), 2);
    files_.ListBox1.ListIndex(1);
    files_.ListBox1.DoubleClick();
    EXPECT_EQ(toolkit_.files, Texts{file.AbsolutePath()});
}

TEST_F(FileWindowTest, DroppedTexts) {
    const auto drop = [this](const std::optional<std::string>& text) {
        std::filesystem::remove(list());
        toolkit_.addresses.clear();
        fileWindow files;
        files.Show();
        files.ListBox1.DropObject({std::nullopt, text});
        if (files.ListBox1.ListCount() == 1)
            EXPECT_EQ(files.ListBox1.RowPicture(0), Picture("webFileIcon.png"));
        files.ListBox1.ListIndex(0);
        files.ListBox1.DoubleClick();
        return toolkit_.addresses;
    };
    EXPECT_EQ(drop("www.example.org"), Texts{"http://www.example.org"});
    EXPECT_EQ(drop("a@b.c"), Texts{"mailto:a@b.c"});
    EXPECT_EQ(drop("just words"), Texts());
    EXPECT_EQ(toolkit_.beeps, 0);
    EXPECT_EQ(drop(std::nullopt), Texts()) << "neither file nor text";
    EXPECT_EQ(toolkit_.beeps, 1);
}

TEST_F(FileWindowTest, RemovingTheLastEntryTakesALoadedFileAway) {
    openWith("a@@@b\n");
    EXPECT_FALSE(files_.BevelButton2.Enabled());
    files_.ListBox1.ListIndex(0);
    EXPECT_TRUE(files_.BevelButton2.Enabled());
    files_.BevelButton2.Action();
    EXPECT_FALSE(std::filesystem::exists(list()));
    files_.Close();
    EXPECT_FALSE(std::filesystem::exists(list())) << "an empty list is not saved";
}

TEST_F(FileWindowTest, AListThatBeganEmptyKeepsItsFile) {
    files_.Show();
    const FolderItem file = fileNamed("note");
    files_.ListBox1.DropObject({file, std::nullopt});
    files_.ListBox1.ListIndex(0);
    files_.BevelButton2.Action();
    files_.Close();
    EXPECT_EQ(read(list()), "note@@@" + file.GetSaveInfo() + "\n");
}

TEST_F(FileWindowTest, NamesAndTargetsThatTouchTheSeparatorsComeBack) {
    const FolderItem odd = fileNamed("a@@b##c@");
    files_.Show();
    for (const DragItem& item : {DragItem{odd, {}}, {{}, " www.example.org/#\n"}, {odd, {}}, {{}, "www.a\nb##c@@d"}})
        files_.ListBox1.DropObject(item);
    files_.Close();
    fileWindow again;
    again.Show();
    ASSERT_EQ(again.ListBox1.ListCount(), 4);
    EXPECT_EQ(again.ListBox1.Cell(3, 1), "www.a b##c@@d");
    EXPECT_EQ(again.ListBox1.Cell(0, 0), "a@@b##c@ ");
    EXPECT_EQ(again.ListBox1.Cell(0, 1), odd.GetSaveInfo());
    EXPECT_EQ(again.ListBox1.Cell(1, 1), "www.example.org/");
    EXPECT_EQ(FolderItem::GetRelative(again.ListBox1.Cell(2, 1)), odd);
}

TEST_F(FileWindowTest, WhatCannotBeKeptOrOpenedIsTold) {
    const auto told = [this](const char* words) {
        ASSERT_FALSE(toolkit_.messages.empty()) << words;
        EXPECT_NE(toolkit_.messages.back().find(words), std::string::npos) << toolkit_.messages.back();
        toolkit_.messages.clear();
    };
    files_.Show();
    files_.ListBox1.DropObject({{}, "www.example.org/a###b"});
    told("\u201c###\u201d between its entries");
    files_.ListBox1.DropObject({fileNamed("a@@@b"), {}});
    told("\u201c@@@\u201d between its entries");
    files_.ListBox1.DropObject({{}, "https://example.org/a"});
    told("is not added");
    EXPECT_EQ(files_.ListBox1.ListCount(), 0);

    const FolderItem gone = fileNamed("gone");
    for (const DragItem& item : {DragItem{gone, {}}, {{}, "see www.example.org"}})
        files_.ListBox1.DropObject(item);
    gone.Delete();
    files_.ListBox1.ListIndex(0);
    files_.ListBox1.DoubleClick();
    told("not there any more");
    files_.ListBox1.ListIndex(1);
    files_.ListBox1.DoubleClick();
    told("neither a web nor an e-mail address");
    EXPECT_TRUE(toolkit_.addresses.empty());

    files_.ListBox1.Cell(1, 1, "https://example.org");
    files_.ListBox1.DoubleClick();
    told("no file, web or e-mail address");

    files_.ListBox1.CellCommandClick(0, 0);
    files_.ListBox1.userTyped("a###b", 4, 0);
    EXPECT_EQ(files_.ListBox1.Cell(0, 0), "a##b") << "it would split the entry";
}

TEST_F(FileWindowTest, AFailedSaveLeavesTheShownEntriesAlone) {
    openWith("a@@@www.b\n");
    std::filesystem::remove(list());
    std::filesystem::create_directory(list()); // no plain file any more
    files_.ListBox1.DropObject({std::nullopt, "www.new"});
    ASSERT_EQ(files_.ListBox1.ListCount(), 2);
    EXPECT_EQ(files_.ListBox1.RowPicture(1), Picture("webFileIcon.png"));
}

TEST_F(FileWindowTest, ARenamedEntryIsSavedOnceTheDiskTakesIt) {
    openWith("a@@@www.b\n");
    files_.ListBox1.CellCommandClick(0, 0);
    EXPECT_EQ(files_.ListBox1.openRow(), 0);
    files_.ListBox1.userTyped("a longer name than before", 5, 0);
    {
        const FailingDisk disk(FailingDisk::Call::reserve);
        EXPECT_THROW(files_.Close(), IOException);
    }
    EXPECT_TRUE(files_.isOpen());
    EXPECT_TRUE(Globals::gFileWindowOpen);
    files_.Close();
    EXPECT_EQ(read(list()), "a longer name than before@@@www.b\n");
}

TEST_F(FileWindowTest, WhatIsRemovedComesBackAlsoToTheDisk) {
    const std::string content = "Guide@@@www.example.org\n";
    openWith(content);
    MenuBar bar({});
    files_.ListBox1.ListIndex(0);
    files_.BevelButton2.Action();
    EXPECT_FALSE(std::filesystem::exists(list()));
    bar.choose("EditUndo", &files_);
    EXPECT_EQ(read(list()), content);
    EXPECT_TRUE(files_.ListBox1.RowPicture(0).has_value());
    EXPECT_TRUE(files_.BevelButton2.Enabled());
    bar.choose("EditRedo", &files_);
    EXPECT_FALSE(std::filesystem::exists(list()));
    EXPECT_FALSE(files_.BevelButton2.Enabled());

    bar.choose("EditUndo", &files_);
    files_.ListBox1.DropObject({std::nullopt, "www.other.org"}); // the list is read again from the disk
    EXPECT_EQ(files_.ListBox1.ListCount(), 2);
    bar.choose("EditUndo", &files_);
    EXPECT_EQ(read(list()), content);
}

} // namespace

} // namespace tallyvane
