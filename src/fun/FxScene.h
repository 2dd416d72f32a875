// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FxRules.h"
#include "fun/FxSprite.h"
#include "widgets/Theme.h"

#include <QImage>

#include <memory>

/// What an effect plays on. Points of one screen, from its top left corner, y down.
struct FxStage {
    QRectF area; ///< Where the capture was taken.
    QSizeF screen;
    QImage picture; ///< What was captured, at any resolution.
    QPointF landing; ///< Where a picture flies to.
    Theme theme;
    quint32 seed = 1; ///< Equal seeds, equal effects.
};

/// An effect: what is to be seen follows from the time since its start and nothing else.
class FxScene {
public:
    virtual ~FxScene() = default;

    virtual FxSprites at(double seconds) const = 0; ///< Lowest first.
    virtual QRectF bounds() const = 0; ///< All sprites of all times lie within, or off the screen.

    /// Null for FxKind::None, and for FxKind::Outline, which FxOutline shows.
    static std::unique_ptr<FxScene> make(FxRules::Plan plan, const FxStage& stage);
};
