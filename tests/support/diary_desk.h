#pragma once

#include "diary/window1.h"
#include "support/test_desk.h"

namespace tallyvane {

/// The main window with nothing around it, on the files that the test has laid out.
class DiaryDesk : public TestDesk {
protected:
    void SetUp() override;
    /// Brings the main window into being; the data folder is the application's.
    Window1& open();
    /// The texts below the table, from the first reading to the weight.
    Texts strip() const;

    Toolbar toolbar_{{}};
    MenuBar menuBar_{{}};
    Window1 window1_{toolbar_, menuBar_};
    Listbox& table_ = window1_.ListBox1;
};

} // namespace tallyvane
