// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Accessible.h"

#include <QAccessibleWidget>
#include <QHash>

/// The accessibility interface of a widget with parts: they are its children, and there are no
/// others. Those that nobody asks for are not made.
class AccessiblePartsInterface final : public QAccessibleWidget {
public:
    AccessiblePartsInterface(
        QWidget& widget, QAccessible::Role role, std::shared_ptr<AccessibleParts> parts);
    ~AccessiblePartsInterface() override { forget(); }

    void forget(); ///< The parts that were asked for: they are others now.

    QAccessible::State state() const override;
    int childCount() const override { return m_parts->count(); }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    const std::shared_ptr<AccessibleParts> m_parts;
    mutable QHash<int, QAccessible::Id> m_made; ///< By their index.
};
