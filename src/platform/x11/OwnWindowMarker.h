// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

/// Marks every window that the toolkit makes for this program, menus and tooltips included, with
/// ownWindowProperty before it is shown, so that no capture of any process of ours shows it.
class OwnWindowMarker final : public QObject {
public:
    OwnWindowMarker();
    bool eventFilter(QObject* object, QEvent* event) override;
};
