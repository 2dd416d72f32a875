// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/kinds/Stroke.h"

/// As a marker pen leaves it: wide, and what lies below shines through.
class Highlighter final : public Stroke {
protected:
    QPen pen(const Annotation& it) const override;
    double margin(const Annotation& it) const override { return it.width * 4; }
};
