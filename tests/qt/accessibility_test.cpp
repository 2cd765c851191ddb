/// What assistive programs see of the windows.
#include <QAccessible>
#include <QTabWidget>
#include <QToolTip>

#include "qt/qt_desk.h"

namespace tallyvane {

namespace {

class AccessibilityTest : public QtDesk {
protected:
    /// "role: name" of each control of a window that takes keys or is pressed, and of its pictures.
    std::vector<std::string> controls(QWidget* frame) {
        std::vector<std::string> all;
        walk(interfaceOf(frame), all);
        return all;
    }
    static QAccessibleInterface* interfaceOf(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); }

private:
    static void walk(QAccessibleInterface* item, std::vector<std::string>& all) {
        if (item == nullptr || item->state().invisible)
            return;
        static const std::map<QAccessible::Role, const char*> roles{
            {QAccessible::Button, "button"},      {QAccessible::CheckBox, "check box"},
            {QAccessible::RadioButton, "choice"}, {QAccessible::EditableText, "field"},
            {QAccessible::PageTab, "tab"},        {QAccessible::Table, "table"},
            {QAccessible::Graphic, "picture"},    {QAccessible::Client, "something without a role"},
        };
        const auto role = roles.find(item->role());
        const auto* widget = qobject_cast<QWidget*>(item->object());
        const bool takesKeys = widget != nullptr && widget->focusPolicy() != Qt::NoFocus &&
                               qobject_cast<const QTabWidget*>(widget) == nullptr; // its bar has the tabs
        const bool isOurs = item->role() != QAccessible::Client || takesKeys;
        if (item->role() == QAccessible::Button && !isWithinQt(widget))
            EXPECT_TRUE(takesKeys) << "out of reach of the keyboard: " << fromQt(item->text(QAccessible::Name));
        if (role != roles.end() && isOurs)
            all.push_back(std::string(role->second) + ": " + fromQt(item->text(QAccessible::Name)));
        if (item->role() == QAccessible::Table)
            return; // its cells are looked at by themselves
        for (int i = 0; i < item->childCount(); ++i)
            walk(item->child(i), all);
    }
};

TEST_F(AccessibilityTest, EveryControlOfEveryWindowHasARoleAndAName) {
    openEveryWindow();
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (dynamic_cast<WindowFrame*>(widget) == nullptr || !widget->isVisible())
            continue;
        const std::string title = fromQt(widget->windowTitle());
        const std::vector<std::string> all = controls(widget);
        EXPECT_FALSE(all.empty()) << title;
        for (const std::string& control : all) {
            const bool isDecoration = control == "picture: ";
            EXPECT_TRUE(isDecoration || !control.ends_with(": ")) << title << ": " << control;
            EXPECT_FALSE(control.starts_with("something")) << title << ": " << control;
        }
    }
}

TEST_F(AccessibilityTest, CellsAreReadWithAllThatBelongsToThem) {
    startOn("1/1/2026@#@12.4@#@5,6\n");
    QAccessibleTableInterface* table = interfaceOf(table_)->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->cellAt(0, 1)->text(QAccessible::Name), "Before Breakfast, 1/1/2026, 12.4, high");
    EXPECT_EQ(table_->model()->index(0, 2).data(Qt::ToolTipRole).toString(), "counts as 5");
    EXPECT_TRUE(table_->model()->index(0, 1).data(Qt::ToolTipRole).toString().isEmpty());

    const QImage shown = table_->viewport()->grab().toImage();
    const auto isMarked = [&](int column) {
        const QRect cell = table_->visualRect(table_->model()->index(0, column));
        int dots = 0;
        for (int x = cell.left(); x < cell.right(); ++x)
            dots += shown.pixelColor(x, cell.bottom() - 1) == QColor(178, 24, 24);
        return dots > 5;
    };
    EXPECT_TRUE(isMarked(2));
    EXPECT_FALSE(isMarked(1));

    list().EditCell(0, 1);
    list().ActiveCell().SelectAll();
    QTest::keyClicks(editor(), "1O");
    EXPECT_EQ(editor()->accessibleName(), "Before Breakfast, 1/1/2026, 1O, counts as 1, too low");
    QCoreApplication::processEvents(); // the window has come to the front
    QTest::keyClick(editor(), Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::text() == "counts as 1"; }))
        << "also when no pointer rests on the cell";
}

TEST_F(AccessibilityTest, APictureButtonCanBePressedFromOutside) {
    start();
    QAccessibleInterface* button = interfaceOf(canvas("Add date to journal"));
    EXPECT_EQ(button->role(), QAccessible::Button);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(app_->windows().main->JournalFld.Text(), Date().AbbreviatedDate());
}

} // namespace

} // namespace tallyvane
