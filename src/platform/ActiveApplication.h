// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ScreenCapture.h"

#include <QObject>

/// Which program the user works in.
class ActiveApplication : public QObject {
    Q_OBJECT

public:
    /// The program in front now; none when no window has the focus.
    virtual std::optional<Application> current() = 0;

    /// Whether the window in front has a screen to itself, as a presentation or a film does.
    virtual bool isFullScreen() = 0;

Q_SIGNALS:
    /// Another window came to the front, perhaps of the same program, perhaps of ours.
    void activated(const Application& application);
};
