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

class SideControlsTest : public QtDesk {
protected:
    void drop(QMimeData& data, Qt::DropActions possible) {
        QDragEnterEvent enter({20, 20}, possible, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list_->viewport(), &enter);
        QDropEvent event(QPointF(20, 20), possible, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list_->viewport(), &event);
        accepted_ = event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }

    ListboxPeer* list_ = nullptr;
    Qt::DropAction accepted_ = Qt::IgnoreAction;
};

TEST_F(SideControlsTest, AFieldRefusesKeysAndTakesAPasteInOneLine) {
    start();
    app_->FilePreferences_Action();
    PrefsWindow& prefs = *app_->prefsWindow();
    auto* field = frameTitled(QStringLiteral("Preferences"))->findChildren<TextFieldPeer*>().value(0);
    ASSERT_NE(field, nullptr);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("1x8,0"));
    QTest::keyClick(field, Qt::Key_Home);
    EXPECT_EQ(prefs.EditField1.Text(), "180");
    EXPECT_EQ(Globals::gOver, 180);
    EXPECT_EQ(field->cursorPosition(), 3) << "the key was refused";
    QTest::keyClick(field, Qt::Key_X, Qt::AltModifier);
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("\u00e9"));
    QCoreApplication::sendEvent(field, &composed);
    EXPECT_EQ(field->text(), QStringLiteral("180")) << "letters that come another way";
    field->selectAll();
    QGuiApplication::clipboard()->setText(QStringLiteral("7.5\nx"));
    field->paste();
    EXPECT_EQ(prefs.EditField1.Text(), "7.5 x");
    EXPECT_EQ(field->text(), QStringLiteral("7.5 x"));
    field->setCursorPosition(1);
    QGuiApplication::clipboard()->setText(QStringLiteral("\n2"));
    field->paste();
    EXPECT_EQ(field->text(), QStringLiteral("7 2.5 x"));
    EXPECT_EQ(field->cursorPosition(), 3) << "typing goes on behind what was pasted";
}

TEST_F(SideControlsTest, APictureButtonByMouseAndByKeys) {
    start();
    auto* journal = frame_->findChild<QPlainTextEdit*>();
    journal->setPlainText(QStringLiteral("felt so well"));
    QTextCursor word = journal->textCursor();
    word.setPosition(5);
    word.setPosition(7, QTextCursor::KeepAnchor);
    journal->setTextCursor(word);
    CanvasPeer* date = nullptr;
    for (auto* canvas : frame_->findChildren<CanvasPeer*>())
        if (canvas->toolTip() == QStringLiteral("Add date to journal"))
            date = canvas;
    ASSERT_NE(date, nullptr);
    QTest::mousePress(date, Qt::LeftButton, {}, {5, 5});
    QTest::mouseMove(date, {50, 5});
    QTest::mouseRelease(date, Qt::LeftButton, {}, {50, 5});
    EXPECT_EQ(journal->toPlainText(), QStringLiteral("felt so well")) << "released outside";
    QTest::mouseClick(date, Qt::LeftButton, {}, {5, 5});
    const QString today = toQt(Date().AbbreviatedDate());
    EXPECT_EQ(journal->toPlainText(), QStringLiteral("felt ") + today + QStringLiteral(" well"))
        << "in place of the selection";
    QTest::keyClick(date, Qt::Key_Space);
    EXPECT_EQ(Globals::gJournal, fromQt(QStringLiteral("felt ") + today + today + QStringLiteral(" well")));
}

TEST_F(SideControlsTest, TheLooksOfAPictureButtonPixelByPixel) {
    start();
    const AutoButton& button = app_->window1()->AutoButton14;
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
    app_->window1()->showResources();
    list_ = frameTitled(QStringLiteral("Files"))->findChild<ListboxPeer*>();
    Listbox& resources = app_->files()->ListBox1;

    QMimeData link;
    link.setText(QStringLiteral("www.example.org"));
    drop(link, Qt::MoveAction | Qt::CopyAction);
    EXPECT_EQ(accepted_, Qt::CopyAction) << "a move would cut the text from where it stands";
    EXPECT_EQ(resources.ListCount(), 1);
    drop(link, Qt::MoveAction);
    EXPECT_EQ(resources.ListCount(), 1) << "one that can only be moved";

    QMimeData files;
    files.setUrls(
        {QUrl::fromLocalFile(toQt(folder_.string()) + QLatin1Char('/')), QUrl::fromLocalFile(QStringLiteral("/a b"))});
    drop(files, Qt::CopyAction);
    ASSERT_EQ(resources.ListCount(), 3);
    EXPECT_EQ(resources.Cell(1, 0), folder_.filename().string());
    EXPECT_EQ(resources.Cell(2, 0), "a b");

    const QPoint row = list_->visualRect(list_->model()->index(0, 0)).center();
    QTest::mouseClick(list_->viewport(), Qt::LeftButton, Qt::ControlModifier, row);
    EXPECT_EQ(resources.openRow(), 0) << "opened for another name";
    EXPECT_FALSE(table_->acceptDrops() && app_->window1()->ListBox1.DropObject) << "the table of days takes none";
}

TEST_F(SideControlsTest, ALongListShowsTheRowThatIsSelectedAndItsWholeWidth) {
    start();
    app_->window1()->showTeamAndMedications();
    list_ = frameTitled(QStringLiteral("Information"))->findChild<ListboxPeer*>();
    Listbox& contacts = app_->infoWindow()->ListBox1;
    EXPECT_EQ(list_->columnWidth(0), list_->viewport()->width());
    for (int contact = 0; contact < 100; ++contact)
        contacts.AddRow("someone");
    QCoreApplication::processEvents();
    EXPECT_LT(list_->viewport()->width(), contacts.WidthActual(0)) << "there is a scroll bar";
    EXPECT_EQ(list_->columnWidth(0), list_->viewport()->width()) << "which covers nothing";
    const int last = contacts.LastIndex();
    contacts.ListIndex(last);
    EXPECT_TRUE(list_->viewport()->rect().contains(list_->visualRect(list_->model()->index(last, 0)).center()));
    EXPECT_GT(list_->fontInfo().pixelSize(), table_->fontInfo().pixelSize()) << "higher rows, larger letters";
}

} // namespace

} // namespace tallyvane
