#include "shell/splash_window.h"

#include "platform/base/translation.h"

namespace tallyvane {

SplashWindow::SplashWindow() {
    shape(Kind::splash, 428, 168);
    place({
        {&Canvas1, {18, 18, 132, 132}},
        {&AppNameLabel, {168, 34, 244, 42}},
        {&StaticText1, {168, 80, 244, 22}},
        {&ProgressWheel1, {168, 124, 16, 16}},
        {&StaticText11, {190, 121, 236, 22}},
        {&Timer1},
    });
    Canvas1.Backdrop(Picture("vaneLogo128.png"));
    AppNameLabel.TextSize(28);
    AppNameLabel.Bold(true);
    StaticText1.Text(tr("Made by the Tallyvane team"));
    StaticText11.Text(tr("Checking for newer version..."));
    Timer1.Period(1000);
    Timer1.Mode(Timer::ModeSingle);
    Timer1.Action = [this] { Timer1_Action(); };
}

void SplashWindow::Event_Open() {
    AppNameLabel.Text("Tallyvane");
    VersionCheck::doVersionCheck(VersionCheckSocket1, TALLYVANE_VERSION_URL);
}

void SplashWindow::Timer1_Action() {
    if (showPrimaryWindow)
        showPrimaryWindow();
    Close();
    if (handedOver)
        handedOver();
}

} // namespace tallyvane
