// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "capture/ShotActions.h"
#include "fun/Fun.h"
#include "platform/DesktopPlatform.h"
#include "widgets/Theme.h"

/// Does with a capture what the surfaces offer, as far as no other room is needed for it.
class ShotOperations final {
public:
    struct Means {
        DesktopPlatform& platform;
        const Prefs& prefs;
        Folders folders;
        const Themes& themes;
        Fun& fun; ///< Counts what was shared.
    };

    explicit ShotOperations(Means means);

    /// What is of this object's making; the rest is empty.
    ShotActions actions();

private:
    ShotActions::Told copy(const FinishedCapture& capture);
    ShotActions::Told saveAs(const FinishedCapture& capture);
    ShotActions::Told share(const FinishedCapture& capture, const QWidget& button);
    void reveal(const FinishedCapture& capture);
    std::optional<QString> file(const FinishedCapture& capture) const;

    const Means m_means;
};
