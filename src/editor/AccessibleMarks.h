// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Accessible.h"

class EditorCanvas;

/// The annotations on a canvas, told by their kind, their text and where they are.
class AccessibleMarks final : public AccessibleParts {
public:
    explicit AccessibleMarks(EditorCanvas& canvas)
        : m_canvas(canvas)
    {
    }

    int count() const override;
    int current() const override;
    AccessiblePart part(int index) const override;
    int partAt(QPoint place) const override;
    void goTo(int index) override;
    void press(int) override { } ///< To be selected is all that a click does.

private:
    EditorCanvas& m_canvas;
};
