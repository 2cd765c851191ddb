#include "shell/version_check.h"

#include "shell/app.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

TEST(VersionCheck, VersionsCompareAsNumbersOfThreeDigits) {
    for (const auto& [version, want] :
         {std::pair("1.1.7", 117), {"1.2", 120}, {"2", 200}, {"1.1.10", 1110}, {"", 0}, {"1.1.8b", 118}})
        EXPECT_EQ(VersionCheck::numberOf(version), want) << version;
}

class NewVersionTest : public TestDesk {
protected:
    void SetUp() override {
        TestDesk::SetUp();
        app_.Event_Open();
    }
    /// The server's answer comes.
    void answer(const std::string& file) {
        ASSERT_EQ(toolkit_.downloads.size(), 1U);
        write(toolkit_.downloads[0].path, file);
        toolkit_.downloads[0].done(200);
    }
    bool fileIsThere() const { return std::filesystem::exists(folder_ / "Temporary Version File"); }

    App app_;
};

TEST_F(NewVersionTest, TheOfferWaitsForTheMainWindow) {
    EXPECT_EQ(toolkit_.downloads[0].address, "http://www.tallyvane.example/VersionInfo/Tallyvane.txt");
    answer("Tallyvane 2\n2.0\n");
    EXPECT_EQ(app_.windows().newVersion, nullptr);
    app_.windows().splash->Timer1.fire();
    ASSERT_NE(app_.windows().newVersion, nullptr);
    EXPECT_EQ(app_.windows().newVersion->StaticText1.Text(),
              "There is a newer version of Tallyvane 2 available. Would you like to download it now?");
    EXPECT_TRUE(fileIsThere());
    app_.windows().newVersion->PushButton1.Action();
    EXPECT_EQ(toolkit_.addresses, Texts{"http://www.tallyvane.example/Tallyvane.zip"});
    EXPECT_FALSE(app_.windows().newVersion->isOpen());
    EXPECT_FALSE(fileIsThere());
}

TEST_F(NewVersionTest, DownloadLaterOpensNoPage) {
    app_.windows().splash->Timer1.fire();
    answer("Tallyvane\n1.1.8\n");
    app_.windows().newVersion->PushButton2.Action();
    EXPECT_TRUE(toolkit_.addresses.empty());
    EXPECT_FALSE(fileIsThere());
}

TEST_F(NewVersionTest, AFileThatNamesNoProgramIsLeftAlone) {
    app_.windows().splash->Timer1.fire();
    answer("\n9.9.9\n");
    EXPECT_EQ(app_.windows().newVersion, nullptr);
    EXPECT_TRUE(fileIsThere());
}

TEST_F(NewVersionTest, AnAnswerAfterTheMainWindowHasClosedMakesNoOffer) {
    app_.windows().splash->Timer1.fire();
    app_.windows().main->Close();
    answer("Tallyvane\n2.0\n");
    EXPECT_EQ(app_.windows().newVersion, nullptr);
    EXPECT_FALSE(fileIsThere());
}

} // namespace

} // namespace tallyvane
