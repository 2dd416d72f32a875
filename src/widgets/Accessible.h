// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

#include <functional>
#include <memory>

class QComboBox;
class QWidget;

/// One of the things that a widget paints without there being a widget for each.
struct AccessiblePart {
    QAccessible::Role role = QAccessible::ListItem;
    QString name;
    QRect box; ///< Points in the widget, y down; perhaps outside of what is seen.
    bool isSelected = false;
};

/// The parts of a widget, as those hear of them who do not see it. The widget's place of the
/// keyboard is one of them.
class AccessibleParts {
public:
    AccessibleParts() = default;
    AccessibleParts(const AccessibleParts&) = delete;
    AccessibleParts& operator=(const AccessibleParts&) = delete;
    virtual ~AccessibleParts() = default;

    virtual int count() const = 0;
    virtual int current() const = 0; ///< Where the keyboard is; −1 where there is none.
    virtual AccessiblePart part(int index) const = 0;
    virtual int partAt(QPoint place) const = 0; ///< −1 where there is none.
    virtual void goTo(int index) = 0; ///< With the keyboard.
    virtual void press(int index) = 0; ///< What a click, or Return, does.
};

/// What widgets that paint themselves tell assistive programs. Names and descriptions are set as
/// for the toolkit's own widgets.
namespace Accessible {

struct Kind {
    QAccessible::Role role;
    std::function<void()> press {}; ///< What a click does; empty where it does nothing.
    std::shared_ptr<AccessibleParts> parts {};
};

/// Before the widget gets a name.
void describe(QWidget& widget, Kind kind);

/// Makes the program's windows known as windows. Once there is an application.
void install();

/// The name of a combo box, which the toolkit tells nobody but by a label beside it. The box has
/// its parent already.
void label(QComboBox& choice, const QString& name);

/// There is nothing to tell of it: it is only for the eye.
void describeAsDecoration(QWidget& widget);

/// Has the widget's name read out at once, wherever the focus is.
void announce(QWidget& widget);

/// Others have come, or some are gone.
void partsChanged(QWidget& widget);
/// The keyboard has gone to another part, or the one that it is on is selected or no longer.
void currentPartChanged(QWidget& widget);

/// Has what is told here heard by somebody besides the desktop's accessibility, for tests: the
/// toolkit offers that only where it has a desktop. Null for nobody.
using Listener = std::function<void(QAccessibleEvent& event)>;
void setListener(Listener listener);

} // namespace Accessible
