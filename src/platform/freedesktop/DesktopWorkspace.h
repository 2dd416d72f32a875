// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Workspace.h"

/// The file manager by its D-Bus interface; everything else by the desktop's associations.
class DesktopWorkspace final : public Workspace {
public:
    void reveal(const QString& path) override;
    void open(const QString& fileOrFolder) override;
    void relaunch() override;
};
