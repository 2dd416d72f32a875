// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/FloatingPanel.h"
#include "widgets/style/FocusRing.h"

class HouseStyle;

/// Gives the toolkit's own widgets, menus and dialogs the theme's looks and letters, and keeps them
/// so when it changes. One at a time; the toolkit's style comes back when it goes.
class ApplicationLook final : public QObject {
    Q_OBJECT

public:
    explicit ApplicationLook(const Surroundings& surroundings);
    ~ApplicationLook() override;

private:
    void adopt();

    const Surroundings m_surroundings;
    HouseStyle* m_style; ///< The application's.
    FocusRing m_ring;
};
