#include "settings/edit_headings.h"

#include "platform/base/translation.h"
#include "platform/windows/wiring.h"

namespace tallyvane {

namespace {

constexpr int windowWidth = 914;
constexpr int fieldLeft = 16;

/// A column's field stands where the column stands in the table; a group's over the columns of the group.
constexpr int columnWidth = 98;
constexpr int columnLeft(int column) { return fieldLeft + columnWidth * (column - 1); }
constexpr Rect columnField(int column) { return {columnLeft(column), 126, columnWidth - 4, 26}; }
constexpr Rect groupField(int first, int columns) { return {columnLeft(first), 56, columnWidth * columns - 4, 26}; }

/// The bar over the table as the main window has it, with a light edge, so that it stands out on any ground; its
/// columns are where the fields are.
void paintBar(Graphics& g) {
    constexpr Color edge = RGB(150, 152, 158);
    constexpr int lightest = 52; // grey, above
    constexpr int darkest = 18;
    g.ForeColor(edge);
    g.FillRect(0, 0, g.Width(), g.Height());
    for (int row = 1; row < g.Height() - 1; ++row) {
        const int grey = lightest - static_cast<int>((lightest - darkest) * row / g.Height());
        g.ForeColor(RGB(grey, grey, grey));
        g.FillRect(1, row, g.Width() - 2, 1);
    }
    g.ForeColor(edge);
    for (const int column : {3, 5, 7, 8, 9})
        g.FillRect(columnLeft(column) - fieldLeft - 2, 0, 1, g.Height());
}

} // namespace

EditHeadings::EditHeadings() {
    shape(Kind::fixed, windowWidth, 220);
    Title(tr("Headings Editor"));
    place({
        {&StaticText1, {fieldLeft, 16, windowWidth - 32, 24}},
        {&TextField1, groupField(1, 2)},
        {&TextField2, groupField(3, 2)},
        {&TextField3, groupField(5, 2)},
        {&TextField4, groupField(9, 1)},
        {&Canvas1, {fieldLeft, 91, columnWidth * 9 - 4, 26}},
        {&TextField5, columnField(1)},
        {&TextField6, columnField(2)},
        {&TextField7, columnField(3)},
        {&TextField8, columnField(4)},
        {&TextField9, columnField(5)},
        {&TextField10, columnField(6)},
        {&TextField11, columnField(7)},
        {&TextField12, columnField(8)},
        {&TextField13, columnField(9)},
        // By the keyboard the harmless button comes first behind the last field.
        {&PushButton1, {windowWidth - 122, 176, 106, 30}},
        {&PushButton2, {windowWidth - 232, 176, 100, 30}},
        {&PushButton3, {fieldLeft, 176, 230, 30}},
    });
    StaticText1.Text(tr("Enter your custom headings in the boxes below then click the Apply button."));
    Canvas1.Paint = paintBar;
    const Headings headings = defaultHeadings();
    fill(headings);
    for (std::size_t i = 0; i < fields().size(); ++i)
        fields()[i]->AccessibleName(tr(i < headingGroups ? "Group: %1" : "Column: %1", {headings[i]}));
    PushButton1.Caption(tr("Apply"));
    PushButton1.Default(true);
    PushButton2.Caption(tr("Cancel"));
    PushButton2.Cancel(true);
    PushButton3.Caption(tr("Restore Default Headings"));
    Wiring(*this).connect({
        {PushButton1.Action, &EditHeadings::PushButton1_Action},
        {PushButton2.Action, &EditHeadings::PushButton2_Action},
        {PushButton3.Action, &EditHeadings::PushButton3_Action},
    });
}

std::array<TextField*, 13> EditHeadings::fields() {
    return {&TextField1, &TextField2, &TextField3,  &TextField4,  &TextField5,  &TextField6, &TextField7,
            &TextField8, &TextField9, &TextField10, &TextField11, &TextField12, &TextField13};
}

void EditHeadings::fill(const Headings& headings) {
    for (std::size_t i = 0; i < headings.size(); ++i)
        fields()[i]->Text(headings[i]);
}

void EditHeadings::Event_Open() {
    getHeadings();
    setHeadingsBaseline(texts());
}

void EditHeadings::getHeadings() {
    if (const std::optional<Headings> headings = readHeadings())
        fill(*headings);
}

Headings EditHeadings::texts() {
    Headings headings;
    std::size_t i = 0;
    for (const TextField* field : fields())
        headings[i++] = field->Text();
    return headings;
}

void EditHeadings::SaveHeadings() { saveHeadings(texts()); }

void EditHeadings::showAndClose() {
    if (showHeadings)
        showHeadings(texts());
    Close();
}

void EditHeadings::PushButton1_Action() { showAndClose(); }

void EditHeadings::PushButton3_Action() {
    fill(defaultHeadings());
    showAndClose();
}

} // namespace tallyvane
