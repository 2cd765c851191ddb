#include "shell/new_version_window.h"

#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"
#include "platform/windows/wiring.h"

namespace tallyvane {

newVersionWindow::newVersionWindow(Window& owner, const std::string& appName) {
    shape(Kind::dialog, 480, 150);
    setOwner(&owner);
    Title("Tallyvane");
    place({
        {&StaticText1, {20, 16, 440, 70}},
        // The harmless button comes first and so has the focus: the offer can appear while the user is typing.
        {&PushButton2, {150, 104, 150, 30}},
        {&PushButton1, {310, 104, 150, 30}},
    });
    StaticText1.Text(tr("There is a newer version of %1 available. Would you like to download it now?", {appName}));
    StaticText1.Multiline(true);
    PushButton1.Caption(tr("Download Now"));
    PushButton2.Caption(tr("Download Later"));
    PushButton2.Cancel(true);
    Wiring(*this).connect({
        {PushButton1.Action, &newVersionWindow::PushButton1_Action},
        {PushButton2.Action, &newVersionWindow::Close},
    });
}

void newVersionWindow::Event_Close() {
    if (closed)
        closed();
}

void newVersionWindow::PushButton1_Action() {
    ShowURL(TALLYVANE_DOWNLOAD_URL);
    Close();
}

} // namespace tallyvane
