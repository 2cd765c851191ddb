/// Fields, picture buttons and lists as the side windows use them, with real events.
#include <QClipboard>
#include <QDragEnterEvent>
#include <QMimeData>

#include "platform/qt/qt_bitmap.h"
#include "platform/qt/text_peers.h"
#include "qt/qt_desk.h"
#include "settings/globals.h"

namespace tallyvane {

namespace {

class SideControlsTest : public QtDesk {};

/// Drops that on a list; gives what was done with it.
Qt::DropAction drop(ListboxPeer& list, QMimeData& data, Qt::DropActions possible) {
    QDragEnterEvent enter({20, 20}, possible, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list.viewport(), &enter);
    QDropEvent event(QPointF(20, 20), possible, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list.viewport(), &event);
    return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
}

TEST_F(SideControlsTest, AFieldRefusesKeysAndTakesAPasteInOneLine) {
    start();
    app_->FilePreferences_Action();
    PrefsWindow& prefs = *app_->windows().prefs;
    auto* field = frameTitled("Preferences")->findChildren<TextFieldPeer*>().value(0);
    ASSERT_NE(field, nullptr);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "1x8,0");
    QTest::keyClick(field, Qt::Key_Home);
    for (const Qt::KeyboardModifier held : {Qt::ShiftModifier, Qt::ControlModifier})
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Delete})
            QTest::keyClick(field, key, held);
    EXPECT_EQ(prefs.EditField1.Text(), "180");
    EXPECT_EQ(field->cursorPosition(), 3) << "the keys were refused";
    EXPECT_FALSE(field->hasSelectedText());
    QTest::keyClick(field, Qt::Key_X, Qt::AltModifier);
    QInputMethodEvent composed;
    composed.setCommitString("\u00e9");
    QCoreApplication::sendEvent(field, &composed);
    EXPECT_EQ(field->text(), "180") << "letters that come another way";
    field->selectAll();
    QGuiApplication::clipboard()->setText("7.5\nx");
    field->paste();
    EXPECT_EQ(prefs.EditField1.Text(), "7.5 x");
    EXPECT_EQ(field->text(), "7.5 x");
    field->setCursorPosition(1);
    QGuiApplication::clipboard()->setText("\n2");
    field->paste();
    EXPECT_EQ(field->text(), "7 2.5 x");
    EXPECT_EQ(field->cursorPosition(), 3) << "typing goes on behind what was pasted";
}

TEST_F(SideControlsTest, APictureButtonByMouseAndByKeys) {
    start();
    journal()->setPlainText("felt so well");
    QTextCursor word = journal()->textCursor();
    word.setPosition(5);
    word.setPosition(7, QTextCursor::KeepAnchor);
    journal()->setTextCursor(word);
    CanvasPeer* date = canvas("Add date to journal");
    ASSERT_NE(date, nullptr);
    QTest::mousePress(date, Qt::LeftButton, {}, {5, 5});
    QTest::mouseMove(date, {50, 5});
    QTest::mouseRelease(date, Qt::LeftButton, {}, {50, 5});
    EXPECT_EQ(journal()->toPlainText(), "felt so well") << "released outside";
    QTest::mouseClick(date, Qt::LeftButton, {}, {5, 5});
    const QString today = toQt(Date().AbbreviatedDate());
    EXPECT_EQ(journal()->toPlainText(), "felt " + today + " well") << "in place of the selection";
    QTest::keyClick(date, Qt::Key_Space);
    EXPECT_EQ(Globals::gJournal, fromQt("felt " + today + today + " well"));
}

TEST_F(SideControlsTest, TheLooksOfAPictureButtonPixelByPixel) {
    start();
    const AutoButton& button = app_->windows().main->AutoButton14;
    const auto imageOf = [](const Picture& picture) { return dynamic_cast<QtBitmap&>(*picture.Bitmap()).image(); };
    const QImage disabled = imageOf(*button.disabledIcon);
    const QImage pressed = imageOf(*button.pressedIcon);
    Picture plain(32, 32, 32);
    plain.Graphics().DrawPicture(*button.enabledIcon, 0, 0);
    const QImage enabled = imageOf(plain);
    ASSERT_EQ(disabled.size(), enabled.size());
    int covered = 0;
    for (int y = 0; y < enabled.height(); ++y)
        for (int x = 0; x < enabled.width(); ++x) {
            const QColor was = enabled.pixelColor(x, y);
            if (was.alpha() < 255 || was == Qt::white) // edges are rounded on the way
                continue;
            ++covered;
            EXPECT_EQ(disabled.pixelColor(x, y).alpha(), 130) << x << ' ' << y;
            EXPECT_EQ(pressed.pixelColor(x, y).alpha(), 255) << x << ' ' << y;
            EXPECT_NEAR(pressed.pixelColor(x, y).value(), std::max(0, was.value() - 51), 1) << x << ' ' << y;
        }
    EXPECT_GT(covered, 200);
}

TEST_F(SideControlsTest, DropsAreCopies) {
    start();
    app_->windows().main->showResources();
    auto* shown = frameTitled("Files")->findChild<ListboxPeer*>();
    Listbox& resources = app_->windows().files->ListBox1;

    QMimeData link;
    link.setText("www.example.org");
    EXPECT_EQ(drop(*shown, link, Qt::MoveAction | Qt::CopyAction), Qt::CopyAction) << "the text is not cut";
    EXPECT_EQ(resources.ListCount(), 1);
    drop(*shown, link, Qt::MoveAction);
    EXPECT_EQ(resources.ListCount(), 1) << "one that can only be moved";

    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(toQt(folder_.string()) + QLatin1Char('/')), QUrl::fromLocalFile("/a b")});
    drop(*shown, files, Qt::CopyAction);
    ASSERT_EQ(resources.ListCount(), 3);
    EXPECT_EQ(resources.Cell(1, 0), folder_.filename().string());
    EXPECT_EQ(resources.Cell(2, 0), "a b");

    const QPoint row = shown->visualRect(shown->model()->index(0, 0)).center();
    QTest::mouseClick(shown->viewport(), Qt::LeftButton, Qt::ControlModifier, row);
    EXPECT_EQ(resources.openRow(), 0) << "opened for another name";
    EXPECT_FALSE(table_->acceptDrops() && app_->windows().main->ListBox1.DropObject) << "the table of days takes none";
}

TEST_F(SideControlsTest, TextThatIsTooLongIsElidedAndShownInAToolTip) {
    const QString longName = "After the second breakfast";
    Texts headings(13, fromQt(longName));
    std::string file;
    for (const std::string& heading : headings)
        file += heading + "\n";
    write(applicationFile("7VXHeadings"), file);
    start();
    QLabel* meal = nullptr;
    for (auto* label : frame_->findChildren<QLabel*>())
        if (label->accessibleName() == longName)
            meal = label;
    ASSERT_NE(meal, nullptr);
    EXPECT_TRUE(meal->text().endsWith(QChar(0x2026))) << meal->text().toStdString();
    EXPECT_EQ(meal->toolTip(), longName);
    const auto heading = [&](int column, Qt::ItemDataRole role) {
        return table_->model()->headerData(column, Qt::Horizontal, role).toString();
    };
    EXPECT_TRUE(heading(1, Qt::DisplayRole).endsWith(QChar(0x2026)));
    EXPECT_EQ(heading(1, Qt::ToolTipRole), longName);
    EXPECT_EQ(heading(1, Qt::AccessibleTextRole), longName);
    EXPECT_EQ(heading(0, Qt::DisplayRole), "Date");
    EXPECT_EQ(heading(0, Qt::ToolTipRole), "");
}

TEST_F(SideControlsTest, TheToolTipOfElidedTextStaysUntilTheTextFits) {
    StaticText label;
    CheckBox box;
    label.size(60, 20);
    box.size(60, 20);
    QWidget window;
    const StaticTextPeer shownLabel(label, &window);
    const CheckBoxPeer shownBox(box, &window);
    const std::string longText = "After the second breakfast of the day";
    label.Text(longText);
    box.Caption(longText);
    for (const auto& change : std::vector<std::function<void(Control&)>>{
             [](Control& control) { control.Enabled(false); }, [](Control& control) { control.Visible(false); },
             [&](Control&) { box.Value(true); }, [](Control& control) { control.HelpTag("Whose meal"); },
             [](Control& control) { control.HelpTag(""); }}) {
        change(label);
        change(box);
        const bool hasOwnTip = !box.HelpTag().empty();
        EXPECT_EQ(fromQt(shownLabel.toolTip()), hasOwnTip ? label.HelpTag() : longText);
        EXPECT_EQ(fromQt(shownBox.toolTip()), hasOwnTip ? box.HelpTag() : longText);
    }
    label.Text("Lunch");
    box.Caption("x");
    EXPECT_EQ(shownLabel.toolTip() + shownBox.toolTip(), "");
    EXPECT_EQ(shownLabel.accessibleName(), "");
}

TEST_F(SideControlsTest, ALongListShowsTheRowThatIsSelectedAndItsWholeWidth) {
    write(applicationFile("QVXContacts"), "Nurse@#@Jane@#@@#@@#@\n");
    start();
    app_->windows().main->showTeamAndMedications();
    auto* shown = frameTitled("Information")->findChild<ListboxPeer*>();
    Listbox& contacts = app_->windows().info->ListBox1;
    EXPECT_EQ(contacts.ListIndex(), 0) << "as the window has selected it";
    EXPECT_TRUE(shown->selectionModel()->isRowSelected(0));
    EXPECT_EQ(shown->columnWidth(0), shown->viewport()->width());
    for (int contact = 0; contact < 100; ++contact)
        contacts.AddRow("someone");
    QCoreApplication::processEvents();
    EXPECT_LT(shown->viewport()->width(), contacts.WidthActual(0)) << "there is a scroll bar";
    EXPECT_EQ(shown->columnWidth(0), shown->viewport()->width()) << "which covers nothing";
    const int last = contacts.LastIndex();
    contacts.ListIndex(last);
    EXPECT_TRUE(shown->viewport()->rect().contains(shown->visualRect(shown->model()->index(last, 0)).center()));
    EXPECT_GT(shown->fontInfo().pixelSize(), table_->fontInfo().pixelSize()) << "higher rows, larger letters";
}

} // namespace

} // namespace tallyvane
