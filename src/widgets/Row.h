// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QWidget>

class TextLabel;

/// What a row says at its left: what it is about, and where that is not self-evident, one line that
/// explains it.
struct RowText {
    QString label;
    QString explanation {};
    QString symbol {}; ///< In front; may be empty.
};

/// A row of settings: words at the left, a control at the right, which gets the words for screen
/// readers.
class Row final : public QWidget {
    Q_OBJECT

public:
    /// @param control taken over; null for a row that only tells something. Where it is made of
    /// several, its focus proxy is the one that the row is about.
    Row(const Themes& themes, const RowText& text, QWidget* control);

    void setLabel(const QString& text);
    void setExplanation(const QString& text); ///< Empty leaves it away.

private:
    QWidget* m_control; ///< That has the focus.
    TextLabel* m_label;
    TextLabel* m_explanation;
};
