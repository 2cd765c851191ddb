#include "platform/windows/window.h"

#include "platform/windows/quit.h"
#include "support/platform_desk.h"

namespace tallyvane {

namespace {

/// A window that writes down what happens to it, in the order of its happening.
class DiaristWindow : public Window {
public:
    DiaristWindow() {
        shape(Kind::document, 300, 200, 150, 1000);
        place({{&CalendarControl1, {0, 0, 10, 10}},
               {&StaticText1, {10, 20, 30, 40}},
               {&StaticText2, {10, 20, 30, 40}, lockLeft | lockBottom},
               {&StaticText3, {10, 20, 30, 40}, lockLeft | lockTop | lockBottom}});
        CalendarControl1.Open = [this] { log += "control "; };
    }

    CalendarControl CalendarControl1;
    StaticText StaticText1, StaticText2, StaticText3;
    std::string log;
    bool savingFails = false;

    void Event_Open() override { log += "open "; }
    void Event_Close() override {
        log += "close ";
        if (savingFails)
            throw std::runtime_error("disk full");
        Quit(7);
    }
    void Event_Moved() override { log += "moved "; }
    void Event_Resized() override { log += "resized "; }
};

class WindowTest : public PlatformDesk {};

TEST_F(WindowTest, OpensItsControlsFirstAndClosesOnce) {
    DiaristWindow window;
    window.Show();
    window.Show();
    EXPECT_EQ(window.log, "control open ");
    EXPECT_TRUE(window.Visible());
    window.Close(); // its event quits, which closes all that is open
    window.Close();
    EXPECT_EQ(window.log, "control open close ");
    EXPECT_EQ(toolkit_.quits, std::vector<int>{7});
    EXPECT_TRUE(Window::openWindows().empty());
}

TEST_F(WindowTest, AFailedSaveLeavesTheWindowOpenToBeClosedAgain) {
    DiaristWindow window;
    window.Show();
    window.savingFails = true;
    EXPECT_THROW(window.Close(), std::runtime_error);
    EXPECT_TRUE(window.isOpen());
    EXPECT_TRUE(window.Visible());
    window.savingFails = false;
    window.Close();
    EXPECT_FALSE(window.isOpen());
}

TEST_F(WindowTest, QuitClosesWindowsSoThatTheySave) {
    DiaristWindow first;
    DiaristWindow second;
    first.Show();
    second.Show();
    first.Close();
    EXPECT_EQ(second.log, "control open close ");
}

TEST_F(WindowTest, TheLimitsWinOverWhatIsSetAndControlsFollowTheHeight) {
    DiaristWindow window;
    window.Width(9000);
    window.Height(20);
    EXPECT_EQ(window.Width(), 300);
    EXPECT_EQ(window.Height(), 150);
    window.Height(260);
    const auto& placements = window.placements();
    EXPECT_EQ(window.frameOf(placements[1]), (Rect{10, 20, 30, 40}));
    EXPECT_EQ(window.frameOf(placements[2]), (Rect{10, 80, 30, 40}));
    EXPECT_EQ(window.frameOf(placements[3]), (Rect{10, 20, 30, 100}));
}

TEST_F(WindowTest, TheUsersMovesAndSizesRaiseTheirEvents) {
    DiaristWindow window;
    window.Open();
    window.log.clear();
    window.userChangedBounds({400, 300, 300, 200});
    EXPECT_EQ(window.log, "");
    window.userChangedBounds({0, 5, 300, 200});
    window.userChangedBounds({0, 5, 300, 250});
    EXPECT_EQ(window.log, "moved resized ");
    EXPECT_EQ(window.Top(), 5);
    EXPECT_EQ(window.Height(), 250);
}

TEST_F(WindowTest, OnlyAddressesForTheWebAndMailGoOut) {
    for (const char* address : {"http://a.example", "https://a.example", "mailto:a@b.example", "file:///etc/passwd",
                                "javascript:x", "", "www.a.example"})
        ShowURL(address);
    EXPECT_EQ(toolkit_.addresses, (std::vector<std::string>{"http://a.example", "https://a.example",
                                                            "mailto:a@b.example", "http://www.a.example"}));
}

} // namespace
} // namespace tallyvane
