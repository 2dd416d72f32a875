// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "capture/ShotActions.h"
#include "platform/DesktopPlatform.h"

/// Does with a capture what the surfaces offer, as far as no other room is needed for it.
class ShotOperations final {
public:
    ShotOperations(DesktopPlatform& platform, const Prefs& prefs, const Folders& folders);

    /// What is of this object's making; the rest is empty.
    ShotActions actions();

private:
    ShotActions::Told copy(const FinishedCapture& capture);
    ShotActions::Told saveAs(const FinishedCapture& capture);
    std::optional<QString> file(const FinishedCapture& capture) const;

    DesktopPlatform& m_platform;
    const Prefs& m_prefs;
    const Folders m_folders;
};
