#include "platform/qt/canvas_accessible.h"

#include <QAccessibleWidget>
#include <QKeyEvent>

#include "platform/qt/simple_peers.h"

namespace tallyvane {

namespace {

QAccessible::Role roleOf(const CanvasPeer& canvas) {
    if (canvas.isDivider())
        return QAccessible::Splitter;
    return canvas.isButton() ? QAccessible::Button : QAccessible::Graphic;
}

class CanvasAccessible : public QAccessibleWidget {
public:
    explicit CanvasAccessible(CanvasPeer* canvas) : QAccessibleWidget(canvas, roleOf(*canvas)) {}

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (role() == QAccessible::Button)
            names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& name) override {
        if (name == pressAction())
            static_cast<CanvasPeer*>(widget())->press();
        else
            QAccessibleWidget::doAction(name);
    }
};

QAccessibleInterface* interfaceOf(const QString& /*className*/, QObject* object) {
    auto* canvas = dynamic_cast<CanvasPeer*>(object);
    return canvas == nullptr ? nullptr : new CanvasAccessible(canvas);
}

} // namespace

void installCanvasAccessibility() { QAccessible::installFactory(interfaceOf); }

} // namespace tallyvane
