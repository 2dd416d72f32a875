// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

/// Gives the toolkit's own menus and dialogs the theme's colours and letters, and keeps them so
/// when it changes.
class ApplicationLook final : public QObject {
    Q_OBJECT

public:
    explicit ApplicationLook(const Themes& themes);

private:
    void adopt();

    const Themes& m_themes;
};
