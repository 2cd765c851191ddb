#include "settings/prefs_window.h"

#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/controls/keys.h"
#include "platform/desktop/desktop.h"
#include "platform/windows/wiring.h"
#include "settings/globals.h"
#include "settings/prefs_module.h"
#include "settings/ranges.h"

namespace tallyvane {

namespace {

constexpr std::array<double*, 4> limits{&Globals::gOver, &Globals::gCaution, &Globals::gLow, &Globals::gUnder};

constexpr int zoneTop(int zone) { return 122 + 56 * zone; }
constexpr Rect zoneMark(int zone) { return {56, zoneTop(zone) + 6, 15, 15}; }
constexpr Rect backgroundOfLights{50, zoneTop(0), 27, zoneTop(4) + 27 - zoneTop(0)};
constexpr Rect zoneName(int zone) { return {82, zoneTop(zone), 150, 26}; }
constexpr Rect limitField(int limit) { return {240, zoneTop(limit) + 27, 90, 28}; }

} // namespace

PrefsWindow::PrefsWindow() {
    shape(Kind::fixed, 440, 500);
    Title(tr("Preferences"));
    place({
        {&TabPanel1, {12, 12, 416, 436}},
        {&StaticText1, {28, 50, 384, 40}, lockLeft | lockTop, &TabPanel1, 0},
        {&CheckBox1, {28, 92, 384, 26}, lockLeft | lockTop, &TabPanel1, 0},
        {&IndicatorBackground, backgroundOfLights, lockLeft | lockTop, &TabPanel1, 0},
        {&Canvas1, zoneMark(0), lockLeft | lockTop, &TabPanel1, 0},
        {&StaticText2, zoneName(0), lockLeft | lockTop, &TabPanel1, 0},
        {&EditField1, limitField(0), lockLeft | lockTop, &TabPanel1, 0},
        {&Canvas2, zoneMark(1), lockLeft | lockTop, &TabPanel1, 0},
        {&StaticText3, zoneName(1), lockLeft | lockTop, &TabPanel1, 0},
        {&EditField2, limitField(1), lockLeft | lockTop, &TabPanel1, 0},
        {&Canvas3, zoneMark(2), lockLeft | lockTop, &TabPanel1, 0},
        {&StaticText4, zoneName(2), lockLeft | lockTop, &TabPanel1, 0},
        {&EditField3, limitField(2), lockLeft | lockTop, &TabPanel1, 0},
        {&Canvas4, zoneMark(3), lockLeft | lockTop, &TabPanel1, 0},
        {&StaticText5, zoneName(3), lockLeft | lockTop, &TabPanel1, 0},
        {&EditField4, limitField(3), lockLeft | lockTop, &TabPanel1, 0},
        {&Canvas5, zoneMark(4), lockLeft | lockTop, &TabPanel1, 0},
        {&StaticText6, zoneName(4), lockLeft | lockTop, &TabPanel1, 0},
        {&StaticText7, {28, 404, 384, 20}, lockLeft | lockTop, &TabPanel1, 0},
        {&LimitsBefore, {28, 424, 384, 20}, lockLeft | lockTop, &TabPanel1, 0},
        {&PushButton2, {12, 458, 146, 30}},
        {&PushButton3, {164, 458, 146, 30}},
        {&PushButton1, {318, 458, 110, 30}},
        {&Timer1},
    });
    build();
    wire();
}

void PrefsWindow::build() {
    TabPanel1.Captions({tr("Test Result Indicators")});
    StaticText1.Text(tr("Enter the limits for each blood glucose level. You can use either mmol/L or mg/dL"));
    StaticText1.Multiline(true);
    CheckBox1.Caption(tr("Show Indicator Lights"));
    IndicatorBackground.Paint = [](Graphics& g) {
        g.ForeColor(RGB(186, 200, 220));
        g.FillRect(0, 0, g.Width(), g.Height());
        g.ForeColor(RGB(255, 255, 255));
        g.FillRect(1, 1, g.Width() - 2, g.Height() - 2);
    };
    const std::array<Canvas*, 5> marks{&Canvas1, &Canvas2, &Canvas3, &Canvas4, &Canvas5};
    const std::array<StaticText*, 5> names{&StaticText2, &StaticText3, &StaticText4, &StaticText5, &StaticText6};
    for (std::size_t i = 0; i < Ranges::all.size(); ++i) {
        marks[i]->Backdrop(Ranges::picture(Ranges::all[i]));
        names[i]->Text(Ranges::title(Ranges::all[i]));
    }
    const std::array<const char*, 4> built{"13.0", "9.0", "5.0", "3.0"};
    for (std::size_t i = 0; i < built.size(); ++i) {
        fields()[i]->Text(built[i]);
        fields()[i]->AccessibleName(tr("Limit between %1 and %2", {names[i]->Text(), names[i + 1]->Text()}));
    }
    StaticText7.Text(tr("mmol/L or mg/dL"));
    StaticText7.Align(TextAlign::center);
    PushButton1.Caption(tr("OK"));
    PushButton1.Default(true);
    PushButton2.Caption(tr("Usual in mmol/L"));
    PushButton2.HelpTag(tr("The limits that doctors have agreed on: a target of 3.9 to 10.0 mmol/L"));
    PushButton3.Caption(tr("Usual in mg/dL"));
    PushButton3.HelpTag(tr("The limits that doctors have agreed on: a target of 70 to 180 mg/dL"));
    focusFirst(CheckBox1); // no field: each key in one takes effect at once
    Timer1.Period(100);
}

void PrefsWindow::wire() {
    for (std::size_t i = 0; i < fields().size(); ++i) {
        fields()[i]->Open = [this, i] { EditField_Open(i); };
        fields()[i]->KeyDown = [this](const std::string& key) { return EditField_KeyDown(key); };
        fields()[i]->TextChange = [this, i] { EditField_TextChange(i); };
    }
    PushButton2.Action = [this] { useLimits(UsualLimits::inMmol); };
    PushButton3.Action = [this] { useLimits(UsualLimits::inMg); };
    Wiring(*this).connect({
        {CheckBox1.Open, &PrefsWindow::CheckBox1_Open},
        {CheckBox1.Action, &PrefsWindow::CheckBox1_Action},
        {PushButton1.Action, &PrefsWindow::PushButton1_Action},
        {Timer1.Action, &PrefsWindow::Timer1_Action},
    });
}

void PrefsWindow::Event_Close() { PrefsModule::savePrefs(); }

void PrefsWindow::EditField_Open(std::size_t field) { fields()[field]->Text(Str(*limits[field])); }

/// Takes figures, the point and the backspace key. Any other key is refused.
bool PrefsWindow::EditField_KeyDown(const std::string& key) {
    if (InStr(".0123456789", key) > 0 || key == Keys::backspace)
        return false;
    Beep();
    return true;
}

void PrefsWindow::EditField_TextChange(std::size_t field) {
    *limits[field] = Val(fields()[field]->Text());
    lightsChanged();
}

void PrefsWindow::CheckBox1_Open() { CheckBox1.Value(Globals::gShowIndicators); }

void PrefsWindow::CheckBox1_Action() {
    Globals::gShowIndicators = CheckBox1.Value();
    lightsChanged();
}

void PrefsWindow::lightsChanged() {
    if (startIndicatorTimer)
        startIndicatorTimer();
}

void PrefsWindow::useLimits(const UsualLimits::Limits& usual) {
    const UsualLimits::Limits before = UsualLimits::present();
    if (before == usual)
        return;
    if (!ownLimits_ || (before != UsualLimits::inMmol && before != UsualLimits::inMg))
        ownLimits_ = before;
    UsualLimits::use(usual);
    showLimits();
    const auto& [over, caution, low, under] = *ownLimits_;
    const auto putBack = [this, own = *ownLimits_] {
        UsualLimits::use(own);
        showLimits();
        LimitsBefore.show("");
    };
    LimitsBefore.show(tr("Before: %1, %2, %3 and %4.", {Str(over), Str(caution), Str(low), Str(under)}),
                      {{tr("Put them back"), putBack}});
}

void PrefsWindow::showLimits() {
    for (std::size_t field = 0; field < fields().size(); ++field)
        EditField_Open(field);
    lightsChanged();
}

void PrefsWindow::PushButton1_Action() { Timer1.Mode(Timer::ModeSingle); }

void PrefsWindow::Timer1_Action() {
    PrefsModule::savePrefs();
    Close();
}

} // namespace tallyvane
