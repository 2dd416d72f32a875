// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "skins/Skins.h"
#include "widgets/Theme.h"

#include <QAbstractButton>

/// A skin in its own colours, with its emoji and name.
class SkinButton final : public QAbstractButton {
    Q_OBJECT

public:
    SkinButton(const Themes& themes, const Skin& skin);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Themes& m_themes;
    const Skin& m_skin;
};
