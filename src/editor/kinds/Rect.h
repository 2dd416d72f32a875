// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/kinds/Box.h"

class Rect final : public Box {
public:
    void draw(QPainter& painter, const Annotation& it, const QImage& base) const override;
};
