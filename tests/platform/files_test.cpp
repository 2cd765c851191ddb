#include "platform/files/folder_item.h"
#include "platform/files/system_files.h"

#include <sys/stat.h>

#include "platform/files/text_output_stream.h"
#include "support/failing_disk.h"
#include "support/platform_desk.h"

namespace tallyvane {

namespace {

class FilesTest : public PlatformDesk {
protected:
    FolderItem place(const std::string& name) const { return *SpecialFolder::ApplicationData->Child(name); }

    /// Replaces the file by a text; false when the file can't be opened.
    static bool replace(const FolderItem& file, const std::string& text) {
        auto stream = TextOutputStream::Create(file);
        if (!stream)
            return false;
        stream->Write(text);
        stream->Close();
        return true;
    }
};

TEST_F(FilesTest, LinesEndWithCrOrLfOrCrLf) {
    const auto check = [](const char* name, std::string text, const Texts& want) {
        TextInputStream stream(std::move(text));
        Texts lines;
        while (!stream.EndOfFile())
            lines.emplace_back(stream.ReadLine());
        EXPECT_EQ(lines, want) << name;
        EXPECT_EQ(stream.ReadLine(), "") << name;
    };
    check("LF", "a\nb\n", {"a", "b"});
    check("CR", "a\rb\r", {"a", "b"});
    check("CR LF", "a\r\nb\r\n", {"a", "b"});
    check("mixed, with empty lines, and no last line end", "a\n\r\n\rb", {"a", "", "", "b"});
    check("empty", "", {});
    check("NUL bytes", std::string("a\0b\nc", 5), {std::string("a\0b", 3), "c"});
    check("a line of megabytes", std::string(3000000, 'x') + "\ny", {std::string(3000000, 'x'), "y"});
}

TEST_F(FilesTest, OnlyPlainFilesOpen) {
    write(folder_ / "file", "text");
    std::filesystem::create_directory(folder_ / "folder");
    std::filesystem::create_symlink(folder_ / "file", folder_ / "link");
    ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), 0600), 0);

    EXPECT_TRUE(place("file").OpenAsTextFile());
    EXPECT_TRUE(place("link").OpenAsTextFile());
    for (const char* name : {"folder", "pipe", "missing"})
        EXPECT_FALSE(place(name).OpenAsTextFile()) << name;
    for (const char* name : {"folder", "pipe"})
        EXPECT_FALSE(TextOutputStream::Create(place(name))) << name;
    EXPECT_FALSE(TextOutputStream::Create(*GetFolderItem("/nowhere/at/all")));
}

TEST_F(FilesTest, AFileTakesAnotherNameUnlessItIsTaken) {
    write(folder_ / "file", "text");
    write(folder_ / "taken", "text");
    EXPECT_FALSE(place("file").Name("taken"));
    EXPECT_FALSE(place("missing").Name("other"));
    EXPECT_TRUE(place("file").Name("other"));
    EXPECT_FALSE(place("file").Exists());
    EXPECT_TRUE(place("other").OpenAsTextFile());
    EXPECT_EQ(place("other").Name(), "other");
}

TEST_F(FilesTest, ChildrenAndTheirNames) {
    EXPECT_FALSE(place("missing").Child("file"));
    EXPECT_FALSE(SpecialFolder::ApplicationData->Child(""));
    EXPECT_FALSE(SpecialFolder::ApplicationData->Child(".."));
    EXPECT_EQ(place("11/22/2026").AbsolutePath(), (folder_ / "11:22:2026").string());
    EXPECT_FALSE(GetFolderItem("relative"));
    EXPECT_FALSE(GetFolderItem(""));
    EXPECT_FALSE(GetFolderItem(std::string("/tmp\0/x", 7))->Exists());
    EXPECT_TRUE(GetFolderItem("/")->Child("tmp")->Directory());
}

TEST_F(FilesTest, TheTextOfAFileGivesTheFileBackAndIsNoLink) {
    for (const char* name : {"plain.txt", "a b.txt", "a@b#c@@@d###e.txt", "www.txt", "wwww.txt", "100%.txt",
                             "\u00e4\xff.txt", "two\nlines"}) {
        const FolderItem file = place(name);
        write(file.AbsolutePath(), "text");
        const std::string info = file.GetSaveInfo();
        EXPECT_EQ(FolderItem::GetRelative(info), file) << name;
        for (const char* taken : {"@", "#", "www", "\n"})
            EXPECT_EQ(info.find(taken), std::string::npos) << info;
        std::filesystem::remove(file.AbsolutePath());
        EXPECT_EQ(FolderItem::GetRelative(info), std::nullopt) << "a file that has gone";
    }
    for (const char* text :
         {"", "www.example.org", "a@b.c", "file:", "file://", "file://relative", "/etc/passwd", "file:///%"})
        EXPECT_EQ(FolderItem::GetRelative(text), std::nullopt) << text;
}

TEST_F(FilesTest, NewFilesAndFoldersBelongToTheirOwnerAlone) {
    const auto rights = [](const std::filesystem::path& path) {
        return std::filesystem::status(path).permissions() & std::filesystem::perms::all;
    };
    EXPECT_TRUE(place("folder").CreateAsFolder());
    EXPECT_FALSE(place("folder").CreateAsFolder());
    EXPECT_TRUE(replace(place("file"), "text"));
    EXPECT_EQ(rights(folder_ / "folder"), std::filesystem::perms::owner_all);
    EXPECT_EQ(rights(folder_ / "file"), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(FilesTest, AFileIsReplacedInPlace) {
    const auto check = [this](const char* name, const std::string& before, const std::string& after) {
        SCOPED_TRACE(name);
        write(folder_ / "file", before);
        std::filesystem::remove(folder_ / "twin");
        std::filesystem::create_hard_link(folder_ / "file", folder_ / "twin");
        EXPECT_TRUE(replace(place("file"), after));
        EXPECT_EQ(read(folder_ / "file"), after);
        EXPECT_EQ(read(folder_ / "twin"), after) << "another inode";
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_), {}), 2) << "a second file";
    };
    check("grows", "one\n", "one\ntwo\n");
    check("shrinks", "one\ntwo\n", "one\n");
    check("changes in the middle", "abcdef", "abXdef");
    check("changes at once", "abc", "xyz");
    check("becomes empty", "abc", "");
    check("was empty", "", "abc");
    check("stays", "abc", "abc");
    check("grows in the middle", "ad", "abcd");
    check("shrinks in the middle", "abcd", "ad");
}

TEST_F(FilesTest, AStreamWithoutCloseLeavesTheDiskAlone) {
    write(folder_ / "old", "old text");
    {
        auto old = TextOutputStream::Create(place("old"));
        auto fresh = TextOutputStream::Create(place("new"));
        old->Write("new text");
        fresh->Write("new text");
    }
    EXPECT_EQ(read(folder_ / "old"), "old text");
    EXPECT_FALSE(place("new").Exists());
}

TEST_F(FilesTest, AFailingDiskLeavesTheOldFileWhole) {
    using Call = FailingDisk::Call;
    const std::string old(1000, 'o');
    const auto check = [this, &old](const char* name, Call call, std::size_t afterBytes, const std::string& text) {
        SCOPED_TRACE(name);
        write(folder_ / "file", old);
        const FailingDisk disk(call, afterBytes);
        EXPECT_THROW(replace(place("file"), text), IOException);
        EXPECT_TRUE(disk.hasFailed());
        EXPECT_EQ(read(folder_ / "file"), old);
    };
    check("no room to grow", Call::reserve, 0, old + "more");
    check("nothing can be written", Call::write, 0, std::string(1000, 'n'));
    check("full after a byte", Call::write, 1, std::string(1000, 'n'));
    check("full in the middle", Call::write, 600, std::string(1200, 'n'));
    check("full at the last byte", Call::write, 1199, std::string(1200, 'n'));
    check("can't be cut", Call::cut, 0, std::string(10, 'n'));
    check("can't be flushed", Call::flush, 0, std::string(1100, 'n'));
}

TEST_F(FilesTest, AFileThatCouldNotBeFilledIsNotLeftBehind) {
    const FailingDisk disk(FailingDisk::Call::write, 3);
    EXPECT_THROW(replace(place("new"), "some text"), IOException);
    EXPECT_FALSE(place("new").Exists());
}

TEST_F(FilesTest, AFolderIsHeldByOneProgramAtATime) {
    auto first = SystemFiles::FolderLock::acquire(folder_.string());
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(SystemFiles::FolderLock::acquire(folder_.string()), nullptr);
    first.reset();
    EXPECT_NE(SystemFiles::FolderLock::acquire(folder_.string()), nullptr);
}

} // namespace
} // namespace tallyvane
