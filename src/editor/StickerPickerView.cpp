// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/StickerPickerView.h"

#include "base/Words.h"
#include "editor/EmojiCell.h"
#include "editor/FlowChips.h"
#include "editor/Stickers.h"

#include <QGridLayout>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr int columns = 10;
constexpr int pageHeight = 180; // Points.

QWidget* emojiGrid(const Themes& themes, const StickerPickerView::Picked& picked)
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins({});
    grid->setSpacing(Space::tiny);
    grid->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    int index = 0;
    for (const QString& emoji : Stickers::emoji()) {
        auto* cell = new EmojiCell(themes, emoji, picked);
        cell->setFocusPolicy(index == 0 ? Qt::StrongFocus : Qt::ClickFocus);
        grid->addWidget(cell, index / columns, index % columns);
        if (index == 0)
            page->setFocusProxy(cell);
        ++index;
    }
    return page;
}

} // namespace

StickerPickerView::StickerPickerView(
    const Themes& themes, const Picked& emoji, const Picked& phrase, QWidget* parent)
    : QWidget(parent)
    , m_tabs(new SegmentedControl(
          themes, Words::tr("Stickers"), {{{}, Words::tr("Emoji")}, {{}, Words::tr("Text")}}))
    , m_pages(new QStackedWidget)
{
    m_pages->addWidget(emojiGrid(themes, emoji));
    m_pages->addWidget(new FlowChips(themes, Stickers::text(), phrase));
    m_pages->setFixedHeight(pageHeight);
    m_tabs->setCurrent(0);
    connect(m_tabs, &SegmentedControl::chosen, m_pages, &QStackedWidget::setCurrentIndex);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(Space::inner);
    column->addWidget(m_tabs, 0, Qt::AlignHCenter);
    column->addWidget(m_pages);
    m_pages->widget(0)->setFocus(); // A proxy of the whole would keep Tab from the choice of pages.
}
