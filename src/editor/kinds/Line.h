// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/kinds/Segment.h"

class Line final : public Segment {
public:
    void draw(QPainter& painter, const Annotation& it, const QImage& base) const override;
};
