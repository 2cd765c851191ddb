#include <gtest/gtest.h>

#include "platform/base/text.h"
#include "settings/edit_headings.h"
#include "settings/globals.h"
#include "settings/prefs_window.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

const std::string defaultFile =
    "Breakfast\nLunch\nSupper\nWeight\nBefore\nAfter\nBefore\nAfter\nBefore\nAfter\nBefore Bed\nAverage\nWeight\n";

class HeadingsEditorTest : public TestDesk {};

TEST_F(HeadingsEditorTest, EveryWayOfClosingSavesAndTwoShow) {
    const auto check = [this](const char* name, const char* shown, const std::string& want,
                              void (*close)(EditHeadings&)) {
        SCOPED_TRACE(name);
        write(applicationFile("7VXHeadings"), "Morning\n");
        EditHeadings editor;
        Texts lastHeadings; // shown in the main window
        editor.showHeadings = [&](const Headings& headings) { lastHeadings.push_back(headings[12]); };
        editor.Show();
        EXPECT_EQ(editor.TextField1.Text(), "Morning");
        EXPECT_EQ(editor.TextField2.Text(), "") << "a file that is too short";
        editor.TextField13.userChanged("Kilos", 5, 0);
        close(editor);
        EXPECT_FALSE(editor.isOpen());
        EXPECT_EQ(read(applicationFile("7VXHeadings")), want);
        EXPECT_EQ(lastHeadings, shown == nullptr ? Texts() : Texts{shown});
    };
    const std::string changed = "Morning\n\n\n\n\n\n\n\n\n\n\n\nKilos\n";
    check("Apply", "Kilos", changed, [](EditHeadings& e) { e.PushButton1.Action(); });
    check("Cancel", nullptr, changed, [](EditHeadings& e) { e.PushButton2.Action(); });
    check("close box", nullptr, changed, [](EditHeadings& e) { e.Close(); });
    check("Restore Default Headings", "Weight", defaultFile, [](EditHeadings& e) { e.PushButton3.Action(); });
}

TEST_F(HeadingsEditorTest, WithoutAFileTheDefaultsStandAndAreWritten) {
    EditHeadings editor;
    editor.Show();
    EXPECT_EQ(editor.TextField11.Text(), "Before Bed");
    editor.Close();
    EXPECT_EQ(read(applicationFile("7VXHeadings")), defaultFile);
}

TEST_F(HeadingsEditorTest, EachFieldHasItsLineOfTheFile) {
    write(applicationFile("7VXHeadings"), "a\nb\nc\nd\ne\nf\ng\nh\ni\nj\nk\nl\nm\n");
    EditHeadings editor;
    std::string seventh;
    editor.showHeadings = [&](const Headings& headings) { seventh = headings[6]; };
    editor.Show();
    EXPECT_EQ(editor.TextField1.Text() + editor.TextField4.Text() + editor.TextField5.Text() +
                  editor.TextField10.Text() + editor.TextField13.Text(),
              "adejm");
    editor.TextField2.Text("B");
    editor.TextField7.Text("G");
    editor.PushButton1.Action();
    EXPECT_EQ(read(applicationFile("7VXHeadings")), "a\nB\nc\nd\ne\nf\nG\nh\ni\nj\nk\nl\nm\n");
    EXPECT_EQ(seventh, "G");
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
    const std::pair<TextField*, double*> fields[] = {{&prefs_.EditField1, &Globals::gOver},
                                                     {&prefs_.EditField2, &Globals::gCaution},
                                                     {&prefs_.EditField3, &Globals::gLow},
                                                     {&prefs_.EditField4, &Globals::gUnder}};
    for (const auto& [field, limit] : fields)
        for (const auto& [text, want] : {std::pair("7.5", 7.5), {"7.5.2", 7.5}, {"", 0.0}, {"240", 240.0}}) {
            field->userChanged(text, 0, 0);
            EXPECT_EQ(*limit, want) << text;
        }
    EXPECT_EQ(timerStarts_, 16);
    prefs_.CheckBox1.userToggled(false);
    EXPECT_FALSE(Globals::gShowIndicators);
    EXPECT_EQ(timerStarts_, 17);
}

TEST_F(PrefsWindowTest, KeysThatAreNoFigureAreRefused) {
    for (const std::string& key : Texts{"0", "9", ".", Chr(8)})
        EXPECT_FALSE(prefs_.EditField2.KeyDown(key)) << key;
    EXPECT_EQ(toolkit_.beeps, 0);
    for (const std::string& key : Texts{"a", ",", "-", Chr(28), Chr(127)})
        EXPECT_TRUE(prefs_.EditField2.KeyDown(key)) << key;
    EXPECT_EQ(toolkit_.beeps, 5);
}

TEST_F(PrefsWindowTest, OkSavesAndClosesALittleLater) {
    prefs_.EditField1.userChanged("180", 3, 0);
    prefs_.PushButton1.Action();
    EXPECT_TRUE(prefs_.isOpen());
    EXPECT_EQ(prefs_.Timer1.Mode(), Timer::ModeSingle);
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

TEST_F(PrefsWindowTest, TheUsualLimitsComeByOneButtonAndGoByOneLink) {
    const auto shown = [this] {
        return Texts{prefs_.EditField1.Text(), prefs_.EditField2.Text(), prefs_.EditField3.Text(),
                     prefs_.EditField4.Text()};
    };
    prefs_.EditField2.userChanged("9.5", 3, 0);
    prefs_.PushButton3.Action();
    EXPECT_EQ(shown(), (Texts{"250", "180", "70", "54"}));
    EXPECT_EQ(Globals::gUnder, 54);
    EXPECT_GT(timerStarts_, 0);
    EXPECT_EQ(prefs_.LimitsBefore.Text(), "Before: 13, 9.5, 5 and 3.");
    prefs_.PushButton2.Action();
    EXPECT_EQ(shown(), (Texts{"13.9", "10", "3.9", "3"}));
    EXPECT_EQ(prefs_.LimitsBefore.Text(), "Before: 13, 9.5, 5 and 3."); // the user's own still
    prefs_.LimitsBefore.userPressed(0);
    EXPECT_EQ(shown(), (Texts{"13", "9.5", "5", "3"}));
    EXPECT_EQ(Globals::gCaution, 9.5);
    EXPECT_EQ(prefs_.LimitsBefore.Text(), "");
}

} // namespace

} // namespace tallyvane
