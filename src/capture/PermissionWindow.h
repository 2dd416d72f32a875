// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "capture/PermissionView.h"

/// The window that greets a newcomer and, where the program may not see the screen, says what to do
/// about it. One window, made when it is first shown and kept from then on. Lives on the main
/// thread.
class PermissionWindow final : public QObject {
    Q_OBJECT

public:
    explicit PermissionWindow(PermissionView::Sources sources);

    /// Brings it to the front.
    void show();

    /// Starts the program again and ends this one, whether or not that has worked.
    void relaunch();

private:
    void make();

    const PermissionView::Sources m_sources;
    std::unique_ptr<PermissionView> m_view; ///< None before it is first shown.
};
