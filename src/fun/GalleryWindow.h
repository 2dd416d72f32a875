// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/GalleryView.h"

#include <QPointer>

/// The one window of achievements, streaks and the pet. Lives on the main thread.
class GalleryWindow final {
public:
    GalleryWindow(const Themes& themes, Fun& fun);
    ~GalleryWindow();

    void show(); ///< Opens it, or brings it to the front.

private:
    const Themes& m_themes;
    Fun& m_fun;
    QPointer<GalleryView> m_view; ///< None while it is closed.
};
