#include "shell/about_window.h"

#include "platform/base/translation.h"

namespace tallyvane {

AboutWindow::AboutWindow() {
    shape(Kind::fixed, 322, 235);
    place({
        {&Canvas1, {129, 24, 64, 64}},
        {&StaticText1, {16, 102, 290, 34}},
        {&StaticText2, {16, 140, 290, 22}},
        {&StaticText3, {16, 190, 290, 22}},
    });
    Canvas1.Backdrop(Picture("vaneLogo64.png"));
    for (StaticText* label : {&StaticText1, &StaticText2, &StaticText3})
        label->Align(TextAlign::center);
    StaticText1.Text("Tallyvane");
    StaticText1.TextSize(22);
    StaticText1.Bold(true);
    StaticText2.Text("v" TALLYVANE_VERSION);
    StaticText3.Text(tr("Made by the Tallyvane team"));
}

void AboutWindow::Event_Open() { Title(tr("About Tallyvane")); }

} // namespace tallyvane
