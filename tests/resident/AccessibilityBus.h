// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/VirtualDesktop.h"

#include <QDBusConnection>
#include <QSet>

/// The accessibility bus of a virtual desktop, as screen readers see it. Programs that start after
/// it offer their surfaces there.
class AccessibilityBus final {
public:
    /// One thing on the screen.
    struct Object {
        QString service, path;
        QString role, name;
        QSet<QString> states; ///< Of those that tests ask for: "focused", "checked", "selected".
        int parent = -1; ///< In the list.
    };

    static bool isInstalled();

    /// Null with a reason where it does not start.
    static Result<std::unique_ptr<AccessibilityBus>> start(const VirtualDesktop& desktop);
    ~AccessibilityBus();

    /// Everything that programs show now, a parent before its children.
    QList<Object> objects() const;

    /// Does the first action of an object, as a screen reader's user would.
    bool press(const Object& object) const;

    static const Object* find(
        const QList<Object>& objects, const QString& role, const QString& name);

private:
    AccessibilityBus(std::unique_ptr<Client> launcher, QDBusConnection bus);

    void collect(
        QList<Object>& objects, const QString& service, const QString& path, int parent) const;

    std::unique_ptr<Client> m_launcher;
    QDBusConnection m_bus;
};
