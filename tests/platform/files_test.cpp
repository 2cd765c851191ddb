#include "platform/folder_item.h"
#include "platform/system_files.h"

#include <sys/stat.h>

#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class FilesTest : public TestDesk {
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

TEST_F(FilesTest, LinesEndWithCrLfOrBoth) {
    struct Row {
        const char* name;
        std::string text;
        std::vector<std::string> want;
    };
    const Row rows[] = {
        {"LF", "a\nb\n", {"a", "b"}},
        {"CR", "a\rb\r", {"a", "b"}},
        {"CR LF", "a\r\nb\r\n", {"a", "b"}},
        {"mixed, with empty lines", "a\n\r\n\rb", {"a", "", "", "b"}},
        {"no last line end", "a\nb", {"a", "b"}},
        {"empty", "", {}},
        {"NUL bytes", std::string("a\0b\nc", 5), {std::string("a\0b", 3), "c"}},
        {"a line of megabytes", std::string(3000000, 'x') + "\ny", {std::string(3000000, 'x'), "y"}},
    };
    for (const Row& row : rows) {
        TextInputStream stream(row.text);
        std::vector<std::string> lines;
        while (!stream.EndOfFile())
            lines.emplace_back(stream.ReadLine());
        EXPECT_EQ(lines, row.want) << row.name;
        EXPECT_EQ(stream.ReadLine(), "") << row.name;
    }
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
    struct Row {
        const char* name;
        std::string before;
        std::string after;
    };
    const Row rows[] = {
        {"grows", "one\n", "one\ntwo\n"},
        {"shrinks", "one\ntwo\n", "one\n"},
        {"changes in the middle", "abcdef", "abXdef"},
        {"changes at once", "abc", "xyz"},
        {"becomes empty", "abc", ""},
        {"was empty", "", "abc"},
        {"stays", "abc", "abc"},
        {"grows in the middle", "ad", "abcd"},
        {"shrinks in the middle", "abcd", "ad"},
    };
    for (const Row& row : rows) {
        const std::filesystem::path path = folder_ / "file";
        write(path, row.before);
        std::filesystem::remove(folder_ / "twin");
        std::filesystem::create_hard_link(path, folder_ / "twin");
        EXPECT_TRUE(replace(place("file"), row.after)) << row.name;
        EXPECT_EQ(read(path), row.after) << row.name;
        EXPECT_EQ(read(folder_ / "twin"), row.after) << row.name << ": another inode";
        const auto entries = std::distance(std::filesystem::directory_iterator(folder_), {});
        EXPECT_EQ(entries, 2) << row.name << ": a second file";
    }
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
    struct Row {
        const char* name;
        Call call;
        std::size_t afterBytes;
        std::string text;
    };
    const Row rows[] = {
        {"no room to grow", Call::reserve, 0, old + "more"},
        {"nothing can be written", Call::write, 0, std::string(1000, 'n')},
        {"full after a byte", Call::write, 1, std::string(1000, 'n')},
        {"full in the middle", Call::write, 600, std::string(1200, 'n')},
        {"full at the last byte", Call::write, 1199, std::string(1200, 'n')},
        {"can't be cut", Call::cut, 0, std::string(10, 'n')},
        {"can't be flushed", Call::flush, 0, std::string(1100, 'n')},
    };
    for (const Row& row : rows) {
        write(folder_ / "file", old);
        const FailingDisk disk(row.call, row.afterBytes);
        EXPECT_THROW(replace(place("file"), row.text), IOException) << row.name;
        EXPECT_TRUE(disk.hasFailed()) << row.name;
        EXPECT_EQ(read(folder_ / "file"), old) << row.name;
    }
}

TEST_F(FilesTest, AFileThatCouldNotBeFilledIsNotLeftBehind) {
    const FailingDisk disk(FailingDisk::Call::write, 3);
    EXPECT_THROW(replace(place("new"), "some text"), IOException);
    EXPECT_FALSE(place("new").Exists());
}

TEST_F(FilesTest, AFolderIsHeldByOneProgramAtATime) {
    auto first = SystemFiles::FolderClaim::take(folder_.string());
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(SystemFiles::FolderClaim::take(folder_.string()), nullptr);
    first.reset();
    EXPECT_NE(SystemFiles::FolderClaim::take(folder_.string()), nullptr);
}

} // namespace
} // namespace tallyvane
