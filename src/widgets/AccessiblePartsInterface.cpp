// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/AccessiblePartsInterface.h"

#include <QPointer>
#include <QWidget>

namespace {

/// One part. It may be asked for after its widget has gone, or has fewer of them.
class PartInterface final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    PartInterface(QWidget& widget, std::shared_ptr<AccessibleParts> parts, int index)
        : m_widget(&widget)
        , m_parts(std::move(parts))
        , m_index(index)
    {
    }

    int index() const { return m_index; }

    bool isValid() const override { return m_widget && m_index < m_parts->count(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_widget);
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    QString text(QAccessible::Text text) const override
    {
        return isValid() && text == QAccessible::Name ? m_parts->part(m_index).name : QString();
    }
    void setText(QAccessible::Text, const QString&) override { }
    QAccessible::Role role() const override
    {
        return isValid() ? m_parts->part(m_index).role : QAccessible::NoRole;
    }
    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect box = m_parts->part(m_index).box;
        return {m_widget->mapToGlobal(box.topLeft()), box.size()};
    }
    QAccessible::State state() const override;

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override
    {
        if (!isValid())
            return;
        if (name == setFocusAction())
            m_widget->setFocus(Qt::OtherFocusReason);
        m_parts->goTo(m_index);
        if (name == pressAction())
            m_parts->press(m_index);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    const QPointer<QWidget> m_widget;
    const std::shared_ptr<AccessibleParts> m_parts;
    const int m_index;
};

QAccessible::State PartInterface::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const AccessiblePart part = m_parts->part(m_index);
    state.focusable = state.selectable = true;
    state.selected = part.isSelected;
    state.focused = m_widget->hasFocus() && m_parts->current() == m_index;
    state.invisible = !m_widget->isVisible();
    state.offscreen = !part.box.intersects(m_widget->rect());
    state.disabled = !m_widget->isEnabled();
    return state;
}

} // namespace

AccessiblePartsInterface::AccessiblePartsInterface(
    QWidget& widget, QAccessible::Role role, std::shared_ptr<AccessibleParts> parts)
    : QAccessibleWidget(&widget, role)
    , m_parts(std::move(parts))
{
}

void AccessiblePartsInterface::forget()
{
    for (const QAccessible::Id id : std::exchange(m_made, {}))
        QAccessible::deleteAccessibleInterface(id);
}

QAccessible::State AccessiblePartsInterface::state() const
{
    auto state = QAccessibleWidget::state();
    state.multiSelectable = role() == QAccessible::List;
    return state;
}

QAccessibleInterface* AccessiblePartsInterface::child(int index) const
{
    if (index < 0 || index >= m_parts->count())
        return nullptr;
    if (const auto known = m_made.constFind(index); known != m_made.cend())
        return QAccessible::accessibleInterface(*known);
    auto* part = new PartInterface(*widget(), m_parts, index);
    m_made.insert(index, QAccessible::registerAccessibleInterface(part));
    return part;
}

int AccessiblePartsInterface::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* part = dynamic_cast<const PartInterface*>(child);
    return part && part->parent() == this ? part->index() : -1;
}

QAccessibleInterface* AccessiblePartsInterface::childAt(int x, int y) const
{
    return child(m_parts->partAt(widget()->mapFromGlobal(QPoint(x, y))));
}

QAccessibleInterface* AccessiblePartsInterface::focusChild() const
{
    return widget()->hasFocus() ? child(m_parts->current()) : nullptr;
}
