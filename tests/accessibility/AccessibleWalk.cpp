// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/accessibility/AccessibleWalk.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMetaEnum>
#include <QScrollArea>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Role = QAccessible::Role;

const QSet<Role> nothingSaid {QAccessible::NoRole, QAccessible::Client};

const QSet<Role> pressed {QAccessible::Button, QAccessible::CheckBox, QAccessible::RadioButton,
    QAccessible::ButtonMenu, QAccessible::ButtonDropDown, QAccessible::ComboBox, QAccessible::Link,
    QAccessible::MenuItem};

const QSet<Role> valued {
    QAccessible::Slider, QAccessible::ProgressBar, QAccessible::SpinBox, QAccessible::ScrollBar};

/// They hold what is to be reached rather than being it.
const QSet<Role> holders {QAccessible::Window, QAccessible::Dialog, QAccessible::Pane,
    QAccessible::Grouping, QAccessible::LayeredPane, QAccessible::ScrollBar,
    QAccessible::ProgressBar, QAccessible::StaticText, QAccessible::Graphic, QAccessible::Canvas,
    QAccessible::Notification};

/// Parts of the toolkit's own controls, which the control around them speaks for.
bool isPart(const QAccessibleInterface& object)
{
    const QObject* self = object.object();
    return self && (self->inherits("QScrollBar") || self->objectName().startsWith("qt_"_L1));
}

QWidget* widgetOf(const QAccessibleInterface& object)
{
    return qobject_cast<QWidget*>(object.object());
}

bool looksClickable(const QAccessibleInterface& object)
{
    const QWidget* widget = widgetOf(object);
    return widget
        && (qobject_cast<const QAbstractButton*>(widget)
            || (widget->testAttribute(Qt::WA_SetCursor)
                && widget->cursor().shape() == Qt::PointingHandCursor));
}

bool isControl(const QAccessibleInterface& object)
{
    if (isPart(object))
        return false;
    return looksClickable(object) || pressed.contains(object.role())
        || valued.contains(object.role()) || object.role() == QAccessible::EditableText
        || (object.state().focusable && object.isValid() && widgetOf(object)
            && widgetOf(object)->focusPolicy() != Qt::NoFocus);
}

QString nameOf(const QAccessibleInterface& object)
{
    return object.text(QAccessible::Name).trimmed();
}

QStringList lackingOf(QAccessibleInterface& control)
{
    QStringList lacking;
    const Role role = control.role();
    if (nameOf(control).isEmpty())
        lacking << u"a name"_s;
    if (nothingSaid.contains(role))
        lacking << u"a role"_s;
    auto* const actions = control.actionInterface();
    const bool acts = actions && !actions->actionNames().isEmpty();
    if ((pressed.contains(role) || looksClickable(control)) && !acts && !control.state().disabled)
        lacking << u"an action"_s;
    // The toolkit tells what is chosen in place of the name.
    if (role == QAccessible::ComboBox && control.relations(QAccessible::Label).isEmpty())
        lacking << u"a label"_s;
    if (valued.contains(role) && !control.valueInterface())
        lacking << u"a value"_s;
    if (role == QAccessible::EditableText && !control.textInterface())
        lacking << u"its text"_s;
    if (const auto* button = qobject_cast<const QAbstractButton*>(control.object())) {
        const auto state = control.state();
        if (bool(state.checkable) != button->isCheckable()
            || bool(state.checked) != button->isChecked()
            || bool(state.disabled) == button->isEnabled())
            lacking << u"its true state"_s;
    }
    return lacking;
}

/// Text painted by a widget itself, which it does not tell.
bool paintsUntold(const QAccessibleInterface& object)
{
    QWidget* widget = widgetOf(object);
    if (!widget || widget->isWindow() || isPart(object) || isControl(object)
        || !nameOf(object).isEmpty() || object.childCount() > 0 || widget->inherits("QFocusFrame"))
        return false;
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image, {}, {}, {});
    QImage empty(image.size(), image.format());
    empty.fill(Qt::transparent);
    return image != empty;
}

/// What is drawn only for the eye, and says nothing that is not said in words beside it.
bool isDecoration(const QAccessibleInterface& object)
{
    const QObject* self = object.object();
    return object.role() == QAccessible::Whitespace || object.role() == QAccessible::Separator
        || (self && self->inherits("QFrame") && !self->inherits("QLabel"));
}

/// Small buttons in a line of text: keys of the line do what they do.
bool isInField(const QWidget& widget)
{
    return widget.parentWidget() && widget.parentWidget()->inherits("QLineEdit");
}

QStringList twins(const QAccessibleInterface& parent)
{
    QStringList lacking;
    QSet<QString> known;
    for (int i = 0; i < parent.childCount(); ++i) {
        const QAccessibleInterface* child = parent.child(i);
        if (!child || child->state().invisible || !isControl(*child))
            continue;
        const QString words = AccessibleWalk::described(*child) + u'\n'
            + child->text(QAccessible::Description) + u'\n' + child->text(QAccessible::Value);
        if (known.contains(words))
            lacking << AccessibleWalk::described(*child) + u": differs from no sibling"_s;
        known.insert(words);
    }
    return lacking;
}

void press(int key, Qt::KeyboardModifiers modifiers = {})
{
    QWidget* target = QApplication::focusWidget();
    if (!target)
        return;
    QKeyEvent down(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(target, &down);
    if (QWidget* after = QApplication::focusWidget()) {
        QKeyEvent up(QEvent::KeyRelease, key, modifiers);
        QApplication::sendEvent(after, &up);
    }
}

QRect boxOf(const QWidget& widget, const QWidget& surface)
{
    return {widget.mapTo(&surface, QPoint()), widget.size()};
}

bool readsBackwards(QRect from, QRect to)
{
    const bool sameLine = from.top() < to.bottom() && to.top() < from.bottom();
    if (sameLine)
        return to.right() <= from.left();
    return to.bottom() <= from.top() && to.left() < from.right();
}

/// Where the Tab key leads, until it comes round, from what is topmost on.
QList<QWidget*> tabStops(QWidget& surface)
{
    QWidget* focused = nullptr;
    for (QWidget* each : surface.findChildren<QWidget*>())
        if (!focused && each->isVisible() && each->isEnabled() && each->focusPolicy() & Qt::TabFocus
            && !each->focusProxy())
            focused = each;
    if (!focused)
        return {};
    focused->setFocus(Qt::TabFocusReason);
    QList<QWidget*> stops;
    while (focused && !stops.contains(focused)) {
        stops << focused;
        press(Qt::Key_Tab);
        focused = QApplication::focusWidget();
    }
    stops = stops.mid(stops.indexOf(focused)); // What led into the circle is not of it.
    const auto first = std::ranges::find_if(stops, [&](QWidget* stop) {
        return std::ranges::none_of(stops, [&](QWidget* other) {
            return readsBackwards(boxOf(*stop, surface), boxOf(*other, surface));
        });
    });
    std::rotate(stops.begin(), first, stops.end());
    return stops;
}

/// Seen, as opposed to what the surface looks like with the focus elsewhere.
bool showsFocus(QWidget& widget, QWidget& surface)
{
    for (QWidget* around = widget.parentWidget(); around; around = around->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(around))
            area->ensureWidgetVisible(&widget);
    const QRect around = boxOf(widget, surface).adjusted(-6, -6, 6, 6).intersected(surface.rect());
    widget.setFocus(Qt::TabFocusReason);
    const QImage with = surface.grab(around).toImage();
    widget.clearFocus();
    const QImage without = surface.grab(around).toImage();
    widget.setFocus(Qt::TabFocusReason);
    return with != without;
}

/// Whether the arrow keys lead there from one that Tab leads to.
bool isNearby(QWidget& widget, const QList<QWidget*>& stops)
{
    QList<QWidget*> reached;
    for (QWidget* stop : stops)
        if (stop->parentWidget() == widget.parentWidget())
            reached << stop;
    for (qsizetype i = 0; i < reached.size(); ++i)
        for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
            reached[i]->setFocus(Qt::TabFocusReason);
            press(key);
            QWidget* const to = QApplication::focusWidget();
            if (to && !reached.contains(to))
                reached << to;
        }
    return reached.contains(&widget);
}

} // namespace

QString AccessibleWalk::described(const QAccessibleInterface& control)
{
    static const auto roles = QMetaEnum::fromType<QAccessible::Role>();
    const QObject* self = control.object();
    return u"%1 “%2” (%3)"_s.arg(QString::fromLatin1(roles.valueToKey(int(control.role()))),
        nameOf(control), self ? QString::fromLatin1(self->metaObject()->className()) : u"-"_s);
}

QList<QAccessibleInterface*> AccessibleWalk::shown(QAccessibleInterface* root)
{
    if (!root || !root->isValid() || root->state().invisible)
        return {};
    QList<QAccessibleInterface*> all {root};
    for (int i = 0; i < root->childCount(); ++i)
        all << shown(root->child(i));
    return all;
}

QStringList AccessibleWalk::lacking(QWidget& surface)
{
    QStringList lines;
    const auto all = shown(QAccessible::queryAccessibleInterface(&surface));
    for (QAccessibleInterface* each : all) {
        if (isControl(*each))
            for (const QString& missing : lackingOf(*each))
                lines << described(*each) + u": lacks "_s + missing;
        else if (paintsUntold(*each) && !isDecoration(*each))
            lines << described(*each) + u": shows what it does not tell"_s;
        lines << twins(*each);
    }
    return lines;
}

QStringList AccessibleWalk::unreachable(QWidget& surface)
{
    QStringList lines;
    const auto stops = tabStops(surface);
    for (qsizetype i = 1; i < stops.size(); ++i)
        if (readsBackwards(boxOf(*stops[i - 1], surface), boxOf(*stops[i], surface)))
            lines << described(*QAccessible::queryAccessibleInterface(stops[i]))
                    + u": gets the focus too late, after "_s
                    + described(*QAccessible::queryAccessibleInterface(stops[i - 1]));
    for (QAccessibleInterface* each : shown(QAccessible::queryAccessibleInterface(&surface))) {
        QWidget* const widget = widgetOf(*each);
        if (!widget || widget == &surface || !isControl(*each) || !widget->isEnabled()
            || holders.contains(each->role()) || isInField(*widget))
            continue;
        if (!stops.contains(widget) && !isNearby(*widget, stops))
            lines << described(*each) + u": is not reached by the keyboard"_s;
    }
    for (QWidget* stop : stops)
        if (!showsFocus(*stop, surface))
            lines << described(*QAccessible::queryAccessibleInterface(stop))
                    + u": does not show that it has the focus"_s;
    return lines;
}
