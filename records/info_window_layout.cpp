#include "records/info_window.h"

#include "platform/base/translation.h"
#include "platform/windows/undo_items.h"
#include "platform/windows/wiring.h"
#include "settings/list_colors.h"

#include <array>

namespace tallyvane {

namespace {

constexpr unsigned fixedPlace = lockLeft | lockTop;
constexpr int detailLeft = 380;
constexpr int rowHeight = 22;

} // namespace

InfoWindow::InfoWindow() {
    shape(Kind::fixed, 700, 480);
    Title(tr("Information"));
    layOut();
    build();
    wire();
}

void InfoWindow::layOut() {
    place({
        {&TabPanel1, {14, 14, 672, 414}},
        {&ListBox1, {30, 58, 260, 318}, fixedPlace, &TabPanel1, 0},
        {&BevelButton1, {30, 384, 28, 28}, fixedPlace, &TabPanel1, 0},
        {&BevelButton2, {64, 384, 28, 28}, fixedPlace, &TabPanel1, 0},
        {&StaticText1, {294, 58, 82, 28}, fixedPlace, &TabPanel1, 0},
        {&EditField2, {detailLeft, 58, 292, 28}, fixedPlace, &TabPanel1, 0},
        {&StaticText2, {294, 96, 82, 28}, fixedPlace, &TabPanel1, 0},
        {&EditField3, {detailLeft, 96, 292, 28}, fixedPlace, &TabPanel1, 0},
        {&StaticText3, {294, 134, 82, 28}, fixedPlace, &TabPanel1, 0},
        {&EditField4, {detailLeft, 134, 260, 28}, fixedPlace, &TabPanel1, 0},
        {&Canvas2, {648, 136, 24, 24}, fixedPlace, &TabPanel1, 0},
        {&StaticText4, {294, 172, 82, 28}, fixedPlace, &TabPanel1, 0},
        {&EditField5, {detailLeft, 172, 292, 204}, fixedPlace, &TabPanel1, 0},
        {&ListBox2, {30, 58, 640, 318}, fixedPlace, &TabPanel1, 1},
        {&AutoButton3, {30, 386, 24, 24}, fixedPlace, &TabPanel1, 1},
        {&AutoButton4, {62, 386, 24, 24}, fixedPlace, &TabPanel1, 1},
        {&Canvas1, {638, 382, 32, 32}, fixedPlace, &TabPanel1, 1},
        {&PushButton1, {580, 438, 106, 30}},
    });
}

void InfoWindow::build() {
    TabPanel1.Captions({tr("Support Team Contacts"), tr("Medication Schedule")});
    for (Listbox* list : {&ListBox1, &ListBox2})
        list->Colors(listColors);
    ListBox1.ColumnWidths("100%");
    ListBox1.Heading(0, tr("Role"));
    ListBox1.ColumnType(0, Listbox::TypeEditable);
    ListBox1.AccessibleName(tr("Contacts"));
    for (const char* role : {"Primary Care Provider (Doctor)", "Dietician", "Diabetes Nurse"})
        ListBox1.AddRow(tr(role));
    ListBox2.ColumnWidths("30%,20%,50%");
    ListBox2.AccessibleName(tr("Medications"));
    const std::array<const char*, 3> headings{"Medication", "Dosage", "Schedule"};
    for (int column = 0; column < 3; ++column) {
        ListBox2.Heading(column, tr(headings[static_cast<std::size_t>(column)]));
        ListBox2.ColumnType(column, Listbox::TypeEditable);
    }
    for (Listbox* list : {&ListBox1, &ListBox2}) {
        list->DefaultRowHeight(rowHeight);
        list->TextSize(14);
        list->Border(true);
    }

    BevelButton1.Caption("+");
    BevelButton1.HelpTag(tr("Add a contact"));
    BevelButton2.Caption("\u2212");
    BevelButton2.HelpTag(tr("Remove the selected contact"));
    for (BevelButton* button : {&BevelButton1, &BevelButton2})
        button->AccessibleName(button->HelpTag());
    StaticText1.Text(tr("Name"));
    StaticText2.Text(tr("Phone"));
    StaticText3.Text(tr("Email"));
    StaticText4.Text(tr("Address"));
    for (StaticText* label : {&StaticText1, &StaticText2, &StaticText3, &StaticText4})
        label->Align(TextAlign::right);
    EditField2.AccessibleName(tr("Name"));
    EditField3.AccessibleName(tr("Phone"));
    EditField4.AccessibleName(tr("Email"));
    EditField5.AccessibleName(tr("Address"));
    enableDetails(false);

    Canvas2.Backdrop(Picture("emailpng_24x24.png"));
    Canvas2.HelpTag(tr("Send e-mail"));
    AutoButton3.ButtonType = AutoButton::addButton;
    AutoButton3.HelpTag(tr("Add a medication"));
    AutoButton4.ButtonType = AutoButton::removeButton;
    AutoButton4.HelpTag(tr("Remove the selected medication"));
    AutoButton4.Enabled(false);
    Canvas1.Backdrop(Picture("printItem3.png"));
    Canvas1.HelpTag(tr("Print the medications"));
    for (AutoButton* button : {&Canvas2, &AutoButton3, &AutoButton4, &Canvas1})
        button->AccessibleName(button->HelpTag());
    PushButton1.Caption(tr("OK"));
    focusFirst(ListBox1);
}

void InfoWindow::wire() {
    ListBox1.CellTextChange = [this](int, int) { detailColumn_ = 0; }; // a step of its own
    handleUndoItems(
        *this, [this]() -> ListHistory& { return historyInFront(); }, [this] { showListsAnew(); });
    ListBox2.CellKeyDown = [this](int row, int column, const std::string& key) {
        return ListBox2_CellKeyDown(row, column, key);
    };
    EditField2.TextChange = [this] { storeDetail(1, EditField2.Text()); };
    EditField3.TextChange = [this] { storeDetail(2, EditField3.Text()); };
    EditField4.TextChange = [this] { storeDetail(3, EditField4.Text()); };
    EditField5.TextChange = [this] { storeDetail(4, EditField5.Text()); };
    Wiring(*this).connect({
        {ListBox1.Change, &InfoWindow::ListBox1_Change},
        {ListBox2.Change, &InfoWindow::ListBox2_Change},
        {BevelButton1.Action, &InfoWindow::BevelButton1_Action},
        {BevelButton2.Action, &InfoWindow::BevelButton2_Action},
        {Canvas2.Action, &InfoWindow::Canvas2_Action},
        {AutoButton3.Action, &InfoWindow::AutoButton3_Action},
        {AutoButton4.Action, &InfoWindow::AutoButton4_Action},
        {Canvas1.Action, &InfoWindow::Canvas1_Action},
        {PushButton1.Action, &InfoWindow::PushButton1_Action},
    });
}

} // namespace tallyvane
