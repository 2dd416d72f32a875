// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/kinds/Box.h"

/// Nothing of what lies below can be seen.
class Redact final : public Box {
public:
    void draw(QPainter& painter, const Annotation& it, const QImage& base) const override;
};
