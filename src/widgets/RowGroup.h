// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Row.h"

class QVBoxLayout;

/// Rows that belong together, on one rounded ground with lines between them, a heading above and
/// perhaps some words below.
class RowGroup final : public QWidget {
    Q_OBJECT

public:
    explicit RowGroup(const Themes& themes, const QString& heading = {});

    Row* addRow(const RowText& text, QWidget* control);
    void addContent(QWidget* content); ///< As wide as the tile, with a margin. Takes it over.
    void setFooter(const QString& text);

private:
    const Themes& m_themes;
    QVBoxLayout* m_column;
    QVBoxLayout* m_rows;
};
