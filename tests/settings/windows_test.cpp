#include <gtest/gtest.h>

#include "platform/text.h"
#include "settings/edit_headings.h"
#include "settings/globals.h"
#include "settings/prefs_window.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

const std::string defaultFile =
    "Breakfast\nLunch\nSupper\nWeight\nBefore\nAfter\nBefore\nAfter\nBefore\nAfter\nBefore Bed\nAverage\nWeight\n";

class HeadingsEditorTest : public TestDesk {
protected:
    void SetUp() override {
        TestDesk::SetUp();
        editor_.showHeadings = [this](const Headings& headings) { shown_.push_back(headings); };
    }

    EditHeadings editor_;
    std::vector<Headings> shown_; // in the main window
};

TEST_F(HeadingsEditorTest, EveryWayOfClosingSavesAndTwoShow) {
    struct Row {
        const char* name;
        void (*close)(EditHeadings&);
        bool shows;
        bool defaults;
    };
    const Row rows[] = {
        {"Apply", [](EditHeadings& e) { e.PushButton1.Action(); }, true, false},
        {"Cancel", [](EditHeadings& e) { e.PushButton2.Action(); }, false, false},
        {"close box", [](EditHeadings& e) { e.Close(); }, false, false},
        {"Restore Default Headings", [](EditHeadings& e) { e.PushButton3.Action(); }, true, true},
    };
    for (const Row& row : rows) {
        makeApplicationFolder();
        write(applicationFile("7VXHeadings"), "Morning\n");
        EditHeadings editor;
        std::vector<Headings> shown;
        editor.showHeadings = [&](const Headings& headings) { shown.push_back(headings); };
        editor.Show();
        EXPECT_EQ(editor.TextField1.Text(), "Morning") << row.name;
        EXPECT_EQ(editor.TextField2.Text(), "") << row.name << ": a file that is too short";
        editor.TextField13.userChanged("Kilos", 5, 0);
        row.close(editor);
        EXPECT_FALSE(editor.isOpen()) << row.name;
        EXPECT_EQ(read(applicationFile("7VXHeadings")),
                  row.defaults ? defaultFile : "Morning\n\n\n\n\n\n\n\n\n\n\n\nKilos\n")
            << row.name;
        EXPECT_EQ(shown.size(), row.shows ? 1U : 0U) << row.name;
        if (row.shows)
            EXPECT_EQ(shown[0][12], row.defaults ? "Weight" : "Kilos") << row.name;
    }
}

TEST_F(HeadingsEditorTest, WithoutAFileTheDefaultsStandAndAreWritten) {
    editor_.Show();
    EXPECT_EQ(editor_.TextField11.Text(), "Before Bed");
    editor_.Close();
    EXPECT_EQ(read(applicationFile("7VXHeadings")), defaultFile);
    EXPECT_TRUE(shown_.empty());
}

TEST_F(HeadingsEditorTest, EachFieldHasItsLineOfTheFile) {
    const std::string file = "a\nb\nc\nd\ne\nf\ng\nh\ni\nj\nk\nl\nm\n";
    makeApplicationFolder();
    write(applicationFile("7VXHeadings"), file);
    editor_.Show();
    EXPECT_EQ(editor_.TextField1.Text() + editor_.TextField4.Text() + editor_.TextField5.Text() +
                  editor_.TextField10.Text() + editor_.TextField13.Text(),
              "adejm");
    editor_.TextField2.Text("B");
    editor_.TextField7.Text("G");
    editor_.PushButton1.Action();
    EXPECT_EQ(read(applicationFile("7VXHeadings")), "a\nB\nc\nd\ne\nf\nG\nh\ni\nj\nk\nl\nm\n");
    ASSERT_EQ(shown_.size(), 1U);
    EXPECT_EQ(shown_[0][6], "G");
}

class PrefsWindowTest : public TestDesk {
protected:
    void SetUp() override {
        TestDesk::SetUp();
        makeApplicationFolder();
        StartupGlobals::gDataFolder = SpecialFolder::ApplicationData->Child("Tallyvane");
        prefs_.startIndicatorTimer = [this] { ++timerStarts_; };
        prefs_.Show();
        timerStarts_ = 0;
    }
    std::string firstLines() const { return read(applicationFile("Brindlemarks Preferences")).substr(0, 17); }

    PrefsWindow prefs_;
    int timerStarts_ = 0;
};

TEST_F(PrefsWindowTest, FieldsShowTheLimitsAndChangeThemByTheKey) {
    EXPECT_EQ(prefs_.EditField1.Text(), "13") << "the text of the number, not what the field was built with";
    EXPECT_EQ(prefs_.EditField2.Text() + prefs_.EditField3.Text() + prefs_.EditField4.Text(), "953");
    EXPECT_TRUE(prefs_.CheckBox1.Value());
    struct Row {
        TextField& field;
        double& limit;
    };
    const Row rows[] = {{prefs_.EditField1, Globals::gOver},
                        {prefs_.EditField2, Globals::gCaution},
                        {prefs_.EditField3, Globals::gLow},
                        {prefs_.EditField4, Globals::gUnder}};
    for (const Row& row : rows) {
        for (const auto& [text, want] : {std::pair("7.5", 7.5), {"7.5.2", 7.5}, {"", 0.0}, {"240", 240.0}}) {
            row.field.userChanged(text, 0, 0);
            EXPECT_EQ(row.limit, want) << text;
        }
    }
    EXPECT_EQ(timerStarts_, 16);
    prefs_.CheckBox1.userToggled(false);
    EXPECT_FALSE(Globals::gShowIndicators);
    EXPECT_EQ(timerStarts_, 17);
}

TEST_F(PrefsWindowTest, KeysThatAreNoFigureAreRefused) {
    for (const std::string& key : {std::string("0"), std::string("9"), std::string("."), Chr(8)})
        EXPECT_FALSE(prefs_.EditField2.KeyDown(key)) << key;
    EXPECT_EQ(toolkit_.beeps, 0);
    for (const std::string& key : {std::string("a"), std::string(","), std::string("-"), Chr(28), Chr(127)})
        EXPECT_TRUE(prefs_.EditField2.KeyDown(key)) << key;
    EXPECT_EQ(toolkit_.beeps, 5);
}

TEST_F(PrefsWindowTest, OkSavesAndClosesALittleLater) {
    prefs_.EditField1.userChanged("180", 3, 0);
    prefs_.PushButton1.Action();
    EXPECT_TRUE(prefs_.isOpen());
    EXPECT_EQ(prefs_.Timer1.Mode(), Timer::ModeSingle);
    EXPECT_EQ(prefs_.Timer1.Period(), 100);
    prefs_.Timer1.fire();
    EXPECT_FALSE(prefs_.isOpen());
    EXPECT_EQ(firstLines(), "true\n180\n9\n5\n3\nfa");
}

TEST_F(PrefsWindowTest, TheCloseBoxSavesToo) {
    prefs_.EditField4.userChanged("", 0, 0);
    prefs_.CheckBox1.userToggled(false);
    prefs_.Close();
    EXPECT_EQ(firstLines(), "false\n13\n9\n5\n0\nfa");
}

} // namespace

} // namespace tallyvane
