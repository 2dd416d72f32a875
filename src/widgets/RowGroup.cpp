// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/RowGroup.h"

#include "widgets/Mirrored.h"
#include "widgets/TextLabel.h"
#include "widgets/Tile.h"

#include <QPainter>
#include <QVBoxLayout>

namespace {

/// The ground, with a line above each row that is seen but the first.
class Ground final : public Tile {
public:
    using Tile::Tile;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        Tile::paintEvent(event);
        QPainter painter(this);
        bool isFirst = true;
        for (int i = 0; i < layout()->count(); ++i) {
            const QLayoutItem* row = layout()->itemAt(i);
            if (row->isEmpty()) // Hidden.
                continue;
            if (!std::exchange(isFirst, false))
                painter.fillRect(mirrored(QRectF(Space::group, row->geometry().top(),
                                              width() - Space::group - 1, Extent::hairline),
                                     *this),
                    theme().hairline);
        }
    }
};

} // namespace

RowGroup::RowGroup(const Themes& themes, const QString& heading)
    : m_themes(themes)
    , m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins({});
    m_column->setSpacing(Space::related - 2);
    if (!heading.isEmpty()) {
        auto* label = new TextLabel(m_themes, TextStyle::Headline, TextLabel::Role::Secondary);
        label->setText(heading);
        label->setContentsMargins(mirrored(QMargins(Space::tiny, 0, 0, 0), *this));
        m_column->addWidget(label);
    }
    auto* ground = new Ground(m_themes);
    m_rows = new QVBoxLayout(ground);
    m_rows->setContentsMargins({});
    m_rows->setSpacing(0);
    m_column->addWidget(ground);
}

Row* RowGroup::addRow(const RowText& text, QWidget* control)
{
    auto* row = new Row(m_themes, text, control);
    m_rows->addWidget(row);
    return row;
}

void RowGroup::addContent(QWidget* content)
{
    auto* box = new QWidget;
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(Space::group, Space::inner, Space::group, Space::inner);
    layout->addWidget(content);
    m_rows->addWidget(box);
}

void RowGroup::setFooter(const QString& text)
{
    auto* label = new TextLabel(
        m_themes, TextStyle::Caption, TextLabel::Role::Secondary, TextLabel::Lines::Wrapped);
    label->setText(text);
    label->setContentsMargins(Space::tiny, 0, Space::tiny, 0);
    m_column->addWidget(label);
}
