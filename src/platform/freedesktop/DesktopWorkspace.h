// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Workspace.h"

/// The file manager by its D-Bus interface, mail and the choice of a program by the desktop's
/// portal; where these are missing, and for everything else, the desktop's associations.
class DesktopWorkspace final : public Workspace {
public:
    Pending<void> reveal(const QString& path) override;
    Pending<void> open(const QString& fileOrFolder) override;
    Pending<void> mail(const QString& path) override;
    Pending<void> openWith(const QString& path) override;
    Pending<void> openPermissionSettings() override;
    bool startsAtLogin() const override;
    Result<void> setStartsAtLogin(bool starts) override;
    void relaunch() override;
};
