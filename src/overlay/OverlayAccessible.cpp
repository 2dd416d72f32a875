// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/OverlayAccessible.h"

#include <QAccessibleObject>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* description = "accessibleDescription";

class WindowInterface final : public QAccessibleObject {
public:
    explicit WindowInterface(QWindow& window)
        : QAccessibleObject(&window)
    {
    }

    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(qApp);
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Dialog; }
    QRect rect() const override { return asWindow().geometry(); }

    QString text(QAccessible::Text text) const override
    {
        if (text == QAccessible::Name)
            return asWindow().title();
        return text == QAccessible::Description ? asWindow().property(description).toString()
                                                : QString();
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.active = state.focused = asWindow().isActive();
        state.focusable = state.modal = true;
        state.invisible = !asWindow().isVisible();
        return state;
    }

private:
    const QWindow& asWindow() const { return static_cast<const QWindow&>(*object()); }
};

QAccessibleInterface* make(const QString& kind, QObject* object)
{
    auto* window = qobject_cast<QWindow*>(object);
    const bool isOurs = window && window->property(description).isValid();
    return isOurs && kind == "QWindow"_L1 ? new WindowInterface(*window) : nullptr;
}

} // namespace

QString OverlayAccessible::told(const OverlayScene& scene)
{
    if (!scene.selection.isEmpty())
        return QCoreApplication::translate("RegionOverlay", "%1 × %2 at %3, %4")
            .arg(scene.selection.width())
            .arg(scene.selection.height())
            .arg(scene.selection.x())
            .arg(scene.selection.y());
    return scene.pointer ? u"%1, %2"_s.arg(scene.pointer->x()).arg(scene.pointer->y()) : QString();
}

QAccessibleInterface* OverlayAccessible::interfaceOf(QWindow& window)
{
    QAccessible::installFactory(make); // Does nothing if it is.
    if (!window.property(description).isValid())
        window.setProperty(description, QString());
    return QAccessible::queryAccessibleInterface(&window);
}

void OverlayAccessible::tell(QWindow& window, const OverlayScene& scene)
{
    if (!QAccessible::isActive() || !interfaceOf(window))
        return;
    const QString text = told(scene);
    if (window.property(description).toString() == text)
        return;
    window.setProperty(description, text);
    for (const auto type : {QAccessible::DescriptionChanged, QAccessible::Alert}) {
        QAccessibleEvent event(&window, type);
        QAccessible::updateAccessibility(&event);
    }
}
