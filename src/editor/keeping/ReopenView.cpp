// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/keeping/ReopenView.h"

#include "widgets/Icons.h"
#include "widgets/TextLabel.h"

#include <QHBoxLayout>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int cardWidth = 380; // As wide as a few lines are read well.
constexpr int symbolSize = 22; // As tall as the title's line.
constexpr int textLeft = Space::group + symbolSize + Space::inner;

QString titleFor(qsizetype edits)
{
    return edits == 1 ? u"Reopen your edit?"_s : u"Reopen your %1 edits?"_s.arg(edits);
}

QString messageFor(qsizetype edits)
{
    return edits == 1
        ? u"Pixmallow ended while you were editing. Your picture and all its marks were kept."_s
        : u"Pixmallow ended while you were editing. Your pictures and all their marks were kept."_s;
}

} // namespace

ReopenView::ReopenView(const Themes& themes, qsizetype edits, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
{
    auto* title = new TextLabel(themes, TextStyle::Headline);
    title->setText(titleFor(edits));
    auto* message = new TextLabel(
        themes, TextStyle::Callout, TextLabel::Role::Secondary, TextLabel::Lines::Wrapped);
    message->setText(messageFor(edits));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(textLeft, Space::group, Space::group, Space::group);
    column->setSpacing(Space::tiny / 2);
    column->addWidget(title);
    column->addWidget(message);
    column->addSpacing(Space::inner);
    column->addLayout(buttons());
    connect(&themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

QLayout* ReopenView::buttons()
{
    using Look = GlassButton::Look;
    auto* row = new QHBoxLayout;
    row->setSpacing(Space::related);
    row->addStretch();
    const auto add = [&](const QString& text, const QString& help, Look look) {
        auto* button = GlassButton::ofText(m_themes, text, look);
        button->setToolTip(help);
        row->addWidget(button);
        return button;
    };
    connect(add(u"Not Now"_s, u"Ask again at the next start"_s, Look::Plain), &GlassButton::clicked,
        this, &ReopenView::laterWanted);
    connect(add(u"Discard"_s, u"Remove what was kept for good"_s, Look::Glass),
        &GlassButton::clicked, this, &ReopenView::discardWanted);
    auto* reopen = add(u"Reopen"_s, u"Go on where you were"_s, Look::Prominent);
    connect(reopen, &GlassButton::clicked, this, &ReopenView::reopenWanted);
    setFocusProxy(reopen);
    return row;
}

QSize ReopenView::sizeHint() const
{
    return {cardWidth, layout()->totalHeightForWidth(cardWidth)};
}

void ReopenView::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    const int line = theme.lineHeight(TextStyle::Headline);
    QPainter painter(this);
    Icons::paint(painter, u"clock.arrow.circlepath"_s,
        QRectF(Space::group, Space::group, symbolSize, line), symbolSize, theme.accentSymbol);
}
