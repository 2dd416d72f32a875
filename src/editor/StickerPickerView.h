// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/SegmentedControl.h"

#include <functional>

class QStackedWidget;

/// What the sticker popover shows: all emoji in a grid, and on another page short phrases.
class StickerPickerView final : public QWidget {
public:
    using Picked = std::function<void(const QString&)>;

    StickerPickerView(
        const Themes& themes, const Picked& emoji, const Picked& phrase, QWidget* parent = nullptr);

private:
    SegmentedControl* m_tabs;
    QStackedWidget* m_pages;
};
