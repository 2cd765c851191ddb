#include "records/info_window.h"

#include <algorithm>

#include "platform/base/text.h"
#include "platform/files/system_files.h"
#include "settings/unsaved_files.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class InfoWindowTest : public TestDesk {
protected:
    void openWith(const std::string& contacts, const std::string& medications) {
        makeApplicationFolder();
        write(applicationFile("QVXContacts"), contacts);
        write(applicationFile("QVXMedications"), medications);
        info_.Show();
    }

    InfoWindow info_;
};

TEST_F(InfoWindowTest, ANewOneHasThreeRolesAndWritesBothFiles) {
    info_.Show();
    EXPECT_EQ(info_.ListBox1.ListIndex(), -1);
    EXPECT_FALSE(info_.EditField2.Enabled());
    info_.Close();
    EXPECT_EQ(read(applicationFile("QVXContacts")),
              "Primary Care Provider (Doctor)@#@@#@@#@@#@\nDietician@#@@#@@#@@#@\nDiabetes Nurse@#@@#@@#@@#@\n");
    EXPECT_EQ(read(applicationFile("QVXMedications")), "");
}

TEST_F(InfoWindowTest, WhatWasReadIsWrittenAgain) {
    const std::string contacts = "Doctor@#@Dr A@#@1@#@a@b.c@#@Street 1$%$Town\nNurse@#@B@#@@#@@#@\n";
    const std::string medications = "Metformin@#@500@#@with meals\n@#@@#@\n";
    openWith(contacts, medications);
    EXPECT_EQ(info_.ListBox1.ListIndex(), 0);
    EXPECT_EQ(info_.EditField5.Text(), "Street 1\nTown");
    EXPECT_EQ(info_.ListBox2.ListIndex(), -1);
    info_.PushButton1.Action();
    EXPECT_FALSE(info_.isOpen());
    EXPECT_EQ(read(applicationFile("QVXContacts")), contacts);
    EXPECT_EQ(read(applicationFile("QVXMedications")), medications);
}

TEST_F(InfoWindowTest, UnsavedListsAreShownWhenTheWindowOpensAgain) {
    const auto typedThenOpenedAgain = [](const std::string& name) {
        {
            InfoWindow first;
            first.Show();
            first.ListBox1.ListIndex(0);
            first.EditField2.userChanged(name, 0, 0);
            try {
                first.Close();
            } catch (const IOException&) {
                // it waits all the same
            }
        }
        InfoWindow second;
        second.Show();
        return second.ListBox1.Cell(0, 1);
    };
    write(folder_ / "Tallyvane", "a file where the folder belongs");
    EXPECT_EQ(typedThenOpenedAgain("Dr A"), "Dr A");
    UnsavedFiles::forgetAll();
    SpecialFolder::ApplicationData.reset();
    EXPECT_EQ(typedThenOpenedAgain("Dr B"), "Dr B") << "a desktop without a folder for it";
}

TEST_F(InfoWindowTest, AFailedSaveDoesNotPreventTheOther) {
    openWith("Doctor\n", "Aspirin\n");
    info_.EditField2.userChanged("Dr A\r\nof Town", 0, 0); // pasted
    info_.ListBox2.Cell(0, 1, "100");
    {
        const FailingDisk disk(FailingDisk::Call::reserve);
        EXPECT_THROW(info_.PushButton1.Action(), IOException);
    }
    EXPECT_TRUE(info_.isOpen());
    EXPECT_EQ(read(applicationFile("QVXMedications")), "Aspirin@#@100@#@\n");
    info_.Close();
    EXPECT_EQ(read(applicationFile("QVXContacts")), "Doctor@#@Dr A of Town@#@@#@@#@\n");
}

TEST_F(InfoWindowTest, AnEmptyFileIsOneEmptyRow) {
    openWith("", "");
    EXPECT_EQ(columnOf(info_.ListBox1, 0), Texts{""});
    EXPECT_EQ(columnOf(info_.ListBox2, 0), Texts{""});
}

TEST_F(InfoWindowTest, WhatAnotherProgramWroteIsJoined) {
    openWith("Doctor@#@Dr A@#@@#@@#@\nNurse@#@B@#@@#@@#@\n", "Aspirin@#@100@#@\n");
    info_.EditField2.userChanged("Dr Z", 4, 0);
    write(applicationFile("QVXContacts"), "Doctor@#@Dr A@#@@#@@#@\nNurse@#@B@#@@#@@#@\nEyes@#@C@#@@#@@#@\n");
    write(applicationFile("QVXMedications"), "");
    info_.Close();
    EXPECT_EQ(read(applicationFile("QVXContacts")), "Doctor@#@Dr Z@#@@#@@#@\nNurse@#@B@#@@#@@#@\nEyes@#@C@#@@#@@#@\n");
    EXPECT_EQ(columnOf(info_.ListBox1, 0), (Texts{"Doctor", "Nurse", "Eyes"}));
    EXPECT_EQ(read(applicationFile("QVXMedications")), "Aspirin@#@100@#@\n") << "an emptied file is no change to join";
}

TEST_F(InfoWindowTest, DetailsFollowTheSelectionAndTheList) {
    openWith("Doctor@#@Dr A@#@@#@@#@\nNurse@#@B@#@@#@@#@\n", "");
    info_.EditField2.userChanged("Dr Z", 4, 0);
    info_.EditField5.userTyped("Street 9\nTown");
    info_.ListBox1.ListIndex(1);
    EXPECT_EQ(info_.EditField2.Text(), "B");
    EXPECT_EQ(info_.ListBox1.Cell(0, 1), "Dr Z");
    EXPECT_EQ(info_.ListBox1.Cell(0, 4), "Street 9$%$Town");
    EXPECT_EQ(info_.ListBox1.Cell(1, 4), "");

    info_.BevelButton1.Action();
    EXPECT_EQ(info_.ListBox1.Cell(2, 0), "new contact");
    EXPECT_EQ(info_.ListBox1.ListIndex(), 2);
    EXPECT_EQ(info_.EditField2.Text(), "");
    info_.EditField3.userChanged("555", 3, 0);
    EXPECT_EQ(info_.ListBox1.Cell(2, 2), "555");

    info_.BevelButton2.Action();
    EXPECT_EQ(info_.ListBox1.ListCount(), 2);
    EXPECT_EQ(info_.ListBox1.ListIndex(), -1);
    EXPECT_FALSE(info_.BevelButton2.Enabled());
    EXPECT_FALSE(info_.EditField2.Enabled() || info_.EditField3.Enabled());
    EXPECT_FALSE(info_.EditField4.Enabled() || info_.EditField5.Enabled());
    EXPECT_EQ(info_.EditField3.Text(), "");
    EXPECT_EQ(info_.ListBox1.Cell(1, 1), "B") << "emptying the details is no editing";
}

TEST_F(InfoWindowTest, Email) {
    openWith("Doctor\n", "");
    for (const char* address : {"a@b.c", "mailto:a@b.c", "a at b", ""}) {
        info_.EditField4.userChanged(address, 0, 0);
        info_.Canvas2.Action();
    }
    EXPECT_EQ(toolkit_.addresses, Texts(2, "mailto:a@b.c"));
    EXPECT_EQ(toolkit_.messages, Texts(2, "Not a valid email address"));
}

TEST_F(InfoWindowTest, KeysInTheSchedule) {
    struct Row {
        const char* name;
        int from[2];
        int key;
        int to[2];
        bool consumed;
    };
    const Row rows[] = {
        {"up", {1, 1}, 30, {0, 1}, true},         {"up at the top", {0, 1}, 30, {0, 1}, true},
        {"down", {0, 1}, 31, {1, 1}, true},       {"down at the bottom", {1, 1}, 31, {1, 1}, true},
        {"left", {0, 1}, 28, {0, 0}, true},       {"left at the edge", {0, 0}, 28, {0, 0}, true},
        {"right", {0, 1}, 29, {0, 2}, true},      {"right at the edge", {0, 2}, 29, {0, 2}, true},
        {"tab", {0, 0}, 9, {0, 1}, true},         {"backspace", {0, 0}, 8, {0, 0}, false},
        {"a letter", {0, 0}, 'a', {0, 0}, false},
    };
    openWith("", "aaa@#@bb@#@c\nddd@#@ee@#@f\n");
    Listbox& list = info_.ListBox2;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        list.EditCell(row.from[0], row.from[1]);
        list.ActiveCell().SelStart(1);
        list.ActiveCell().SelLength(0);
        EXPECT_EQ(list.CellKeyDown(row.from[0], row.from[1], Chr(row.key)), row.consumed);
        EXPECT_EQ(list.openRow(), row.to[0]);
        EXPECT_EQ(list.openColumn(), row.to[1]);
        const TextField& cell = list.ActiveCell();
        EXPECT_EQ(cell.SelStart() == 0 && cell.SelLength() == Len(cell.Text()), row.consumed) << "all is selected";
    }
}

TEST_F(InfoWindowTest, MedicationsComeAndGo) {
    info_.Show();
    EXPECT_FALSE(info_.AutoButton4.Enabled());
    EXPECT_FALSE(info_.AutoButton4.Event_MouseDown(5, 5)) << "nothing to remove";
    info_.AutoButton3.Action();
    EXPECT_EQ(info_.ListBox2.Cell(0, 0), "medication");
    EXPECT_EQ(info_.ListBox2.openRow(), 0);
    EXPECT_EQ(info_.ListBox2.ActiveCell().SelLength(), 10);
    EXPECT_TRUE(info_.AutoButton4.Enabled()) << "the row is selected";
    EXPECT_TRUE(info_.AutoButton4.Event_MouseDown(5, 5));
    info_.AutoButton4.Event_MouseUp(5, 5);
    EXPECT_EQ(info_.ListBox2.ListCount(), 0);
    EXPECT_FALSE(info_.AutoButton4.Enabled());

    info_.Canvas1.Action();
    EXPECT_TRUE(std::any_of(toolkit_.printed.begin(), toolkit_.printed.end(),
                            [](const auto& call) { return call.text == "Schedule"; }));
}

TEST_F(InfoWindowTest, WhatIsRemovedOrEditedComesBackWithItsDetails) {
    openWith("Doctor@#@Dr A@#@1@#@a@b.c@#@Street\nNurse@#@B@#@@#@@#@\n", "Metformin@#@500@#@with meals\n");
    MenuBar bar({});
    const auto undo = [&] { bar.choose("EditUndo", &info_); };
    info_.EditField2.userChanged("Dr C", 0, 0);
    info_.EditField2.userChanged("Dr Ca", 0, 0); // one step with the letter before
    info_.EditField3.userChanged("2", 0, 0);
    info_.BevelButton2.Action();
    EXPECT_EQ(info_.ListBox1.ListCount(), 1);
    undo();
    EXPECT_EQ(info_.EditField2.Text(), "Dr Ca");
    EXPECT_EQ(info_.EditField5.Text(), "Street");
    undo();
    EXPECT_EQ(info_.EditField3.Text(), "1");
    undo();
    EXPECT_EQ(info_.EditField2.Text(), "Dr A");
    undo(); // nothing is left
    bar.choose("EditRedo", &info_);
    EXPECT_EQ(info_.EditField2.Text(), "Dr Ca");

    info_.TabPanel1.Value(1);
    info_.ListBox2.EditCell(0, 1);
    info_.ListBox2.userTyped("850", 3, 0);
    info_.AutoButton4.Action();
    undo();
    EXPECT_EQ(info_.ListBox2.Cell(0, 1), "850");
    EXPECT_TRUE(info_.AutoButton4.Enabled());
    undo();
    EXPECT_EQ(info_.ListBox2.Cell(0, 1), "500");
    EXPECT_EQ(info_.EditField2.Text(), "Dr Ca"); // a list of its own
}

} // namespace

} // namespace tallyvane
