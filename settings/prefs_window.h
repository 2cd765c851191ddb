#pragma once

#include <array>
#include <functional>
#include <optional>

#include "platform/windows/window.h"
#include "settings/usual_limits.h"

namespace tallyvane {

/// The dialog of the four personal limits and the switch of the lights. Every change takes effect at once and stays.
class PrefsWindow : public Window {
public:
    PrefsWindow();

    TabPanel TabPanel1; // one page: "Test Result Indicators"
    StaticText StaticText1; // what to do
    CheckBox CheckBox1; // Show Indicator Lights
    // From above: a zone, then the limit between it and the next
    Canvas Canvas1, Canvas2, Canvas3, Canvas4, Canvas5;
    StaticText StaticText2, StaticText3, StaticText4, StaticText5, StaticText6;
    TextField EditField1, EditField2, EditField3, EditField4;
    Canvas IndicatorBackground; // behind the marks of the zones, whose colours are made for it
    StaticText StaticText7; // the units
    PushButton PushButton1; // OK
    PushButton PushButton2, PushButton3; // the usual limits in mmol/L, in mg/dL
    LinkLine LimitsBefore; // the user's own, once a press of the last two has replaced them
    Timer Timer1; // saves and closes

    /// Starts the main window's timer, which repaints the lights a moment later.
    std::function<void()> startIndicatorTimer;

    /// Throws IOException when the disk fails, and stays open.
    void Event_Close() override;

    /// Replaces all four limits by usual ones, and offers a way back to the user's own.
    void useLimits(const UsualLimits::Limits& usual);

    void EditField_Open(std::size_t field);
    bool EditField_KeyDown(const std::string& key);
    void EditField_TextChange(std::size_t field);
    void CheckBox1_Open();
    void CheckBox1_Action();
    void PushButton1_Action();
    void Timer1_Action();

private:
    std::array<TextField*, 4> fields() { return {&EditField1, &EditField2, &EditField3, &EditField4}; }
    void build();
    void wire();
    void lightsChanged();
    void showLimits();

    std::optional<UsualLimits::Limits> ownLimits_; // that the usual ones have replaced
};

} // namespace tallyvane
