#include "support/diary_desk.h"

#include "settings/data_files.h"
#include "settings/globals.h"

namespace tallyvane {

void DiaryDesk::SetUp() {
    TestDesk::SetUp();
    makeApplicationFolder();
    StartupGlobals::gDataFolder = DataFiles::applicationFolder();
}

Window1& DiaryDesk::open() {
    window1_.Open();
    return window1_;
}

Texts DiaryDesk::strip() const {
    const Window1& w = window1_;
    Texts texts;
    for (const StaticText* label : {&w.StaticText1, &w.StaticText2, &w.StaticText3, &w.StaticText4, &w.StaticText5,
                                    &w.StaticText6, &w.StaticText23, &w.StaticText22, &w.StaticText16})
        texts.push_back(label->Text());
    return texts;
}

} // namespace tallyvane
