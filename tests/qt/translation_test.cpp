#include <QAbstractButton>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>

#include "qt/qt_desk.h"
#include "support/pseudo_locale.h"

namespace tallyvane {

namespace {

/// Every text on and behind a widget: what it shows, what its tool tip says and what a screen reader says.
QStringList textsOf(const QWidget* widget) {
    QStringList texts{widget->toolTip(), widget->accessibleName()};
    if (widget->isWindow())
        texts << widget->windowTitle();
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        texts << label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        texts << button->text();
    if (const auto* box = qobject_cast<const QGroupBox*>(widget))
        texts << box->title();
    if (const auto* tabs = qobject_cast<const QTabBar*>(widget))
        for (int i = 0; i < tabs->count(); ++i)
            texts << tabs->tabText(i);
    if (const auto* head = qobject_cast<const QHeaderView*>(widget); head && head->orientation() == Qt::Horizontal)
        for (int i = 0; i < head->count(); ++i)
            texts << head->model()->headerData(i, Qt::Horizontal).toString();
    for (const QAction* action : widget->actions())
        texts << action->text();
    return texts;
}

class TranslationTest : public QtDesk {
protected:
    PseudoLocale pseudo_;
};

TEST_F(TranslationTest, EveryTextOfEveryWindowCameOutOfTheLookup) {
    openEveryWindow();
    int windows = 0;
    for (QWidget* frame : QApplication::topLevelWidgets()) {
        if (dynamic_cast<WindowFrame*>(frame) == nullptr || !frame->isVisible())
            continue;
        ++windows;
        QList<QWidget*> widgets = frame->findChildren<QWidget*>();
        widgets << frame;
        for (const QWidget* widget : widgets)
            for (const QString& text : isWithinQt(widget) ? QStringList() : textsOf(widget))
                if (text != QStringLiteral("Tallyvane"))
                    EXPECT_EQ(PseudoLocale::untranslated(fromQt(text)), "") << fromQt(frame->windowTitle());
    }
    EXPECT_EQ(windows, 14);
    EXPECT_NE(frameTitled(QStringLiteral("{Graph}")), nullptr);
}

} // namespace

} // namespace tallyvane
