// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QWidget>

class TextLabel;

/// Fills a place where there is nothing yet: what it is, in one sentence, and the next sensible
/// thing to do.
class EmptyState final : public QWidget {
    Q_OBJECT

public:
    struct Content {
        QString symbol;
        QString title;
        QString text;
        QString action; ///< Of the button; none where empty.
    };

    EmptyState(const Themes& themes, const Content& content, QWidget* parent = nullptr);

    void setText(const QString& text);

Q_SIGNALS:
    void actionWanted();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Themes& m_themes;
    const QString m_symbol;
    QWidget* m_place; ///< Of the symbol.
    TextLabel* m_text;
};
