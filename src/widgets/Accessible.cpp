// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Accessible.h"

#include "widgets/AccessiblePartsInterface.h"

#include <QAccessibleWidget>
#include <QComboBox>
#include <QLabel>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

/// Stays with the widget that it is about.
class Description final : public QObject {
public:
    Description(QWidget& widget, Accessible::Kind told)
        : QObject(&widget)
        , kind(std::move(told))
    {
    }

    Accessible::Kind kind;
};

Description* descriptionOf(const QObject& object)
{
    for (QObject* child : object.children())
        if (auto* description = dynamic_cast<Description*>(child))
            return description;
    return nullptr;
}

/// A widget without parts.
class WholeInterface final : public QAccessibleWidget {
public:
    WholeInterface(QWidget& widget, const Description& description)
        : QAccessibleWidget(&widget)
        , m_description(&description)
    {
    }

    QAccessible::Role role() const override
    {
        if (!m_description)
            return QAccessible::Client;
        const auto role = m_description->kind.role;
        return widget()->isWindow() && role == QAccessible::Grouping ? QAccessible::Window : role;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (canPress())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name == pressAction() && canPress())
            m_description->kind.press();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    bool canPress() const
    {
        return m_description && m_description->kind.press && widget()->isEnabled();
    }

    const QPointer<const Description> m_description; ///< Null while the widget goes.
};

Accessible::Listener also;

bool isHeard()
{
    return also || QAccessible::isActive();
}

void tell(QAccessibleEvent& event)
{
    if (also)
        also(event);
    QAccessible::updateAccessibility(&event);
}

/// Asked for each class of an object, the most special one first.
QAccessibleInterface* interfaceOf(const QString& kindOfObject, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget)
        return nullptr;
    const Description* description = descriptionOf(*widget);
    if (!description && kindOfObject == "QWidget"_L1 && widget->isWindow())
        return new QAccessibleWidget(
            widget, widget->windowType() == Qt::Popup ? QAccessible::Dialog : QAccessible::Window);
    if (!description)
        return nullptr;
    const auto& kind = description->kind;
    if (kind.parts)
        return new AccessiblePartsInterface(*widget, kind.role, kind.parts);
    return new WholeInterface(*widget, *description);
}

} // namespace

void Accessible::setListener(Listener listener)
{
    also = std::move(listener);
}

void Accessible::install()
{
    QAccessible::installFactory(interfaceOf); // Does nothing if it is.
}

void Accessible::label(QComboBox& choice, const QString& name)
{
    const QString known = u"accessibleLabel"_s;
    choice.setAccessibleName(name);
    for (auto* label :
        choice.parentWidget()->findChildren<QLabel*>(known, Qt::FindDirectChildrenOnly))
        if (label->buddy() == &choice)
            return label->setText(name);
    auto* label = new QLabel(name, choice.parentWidget());
    label->setObjectName(known);
    label->setBuddy(&choice);
    label->hide();
}

void Accessible::describe(QWidget& widget, Kind kind)
{
    install();
    if (Description* known = descriptionOf(widget))
        known->kind = std::move(kind);
    else
        new Description(widget, std::move(kind));
}

void Accessible::describeAsDecoration(QWidget& widget)
{
    describe(widget, {QAccessible::Whitespace});
}

void Accessible::announce(QWidget& widget)
{
    QAccessibleEvent alert(&widget, QAccessible::Alert);
    tell(alert);
}

void Accessible::partsChanged(QWidget& widget)
{
    if (!isHeard())
        return;
    if (auto* parts
        = dynamic_cast<AccessiblePartsInterface*>(QAccessible::queryAccessibleInterface(&widget)))
        parts->forget();
    QAccessibleEvent reordered(&widget, QAccessible::ObjectReorder);
    tell(reordered);
}

void Accessible::currentPartChanged(QWidget& widget)
{
    const Description* description = isHeard() ? descriptionOf(widget) : nullptr;
    if (!description || !description->kind.parts || !widget.hasFocus())
        return;
    const int current = description->kind.parts->current();
    if (current < 0)
        return;
    QAccessibleEvent focused(&widget, QAccessible::Focus);
    focused.setChild(current);
    tell(focused);
    QAccessible::State selected;
    selected.selected = true;
    QAccessibleStateChangeEvent changed(&widget, selected);
    changed.setChild(current);
    tell(changed);
}
