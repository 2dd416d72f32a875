// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/keeping/ReopenView.h"

#include "base/Words.h"
#include "widgets/Icons.h"
#include "widgets/Mirrored.h"
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
    return edits == 1 ? Words::tr("Reopen your edit?")
                      : Words::tr("Reopen your %n edits?", nullptr, Words::count(edits));
}

QString messageFor(qsizetype edits)
{
    return edits == 1
        ? Words::tr(
            "Pixmallow ended while you were editing. Your picture and all its marks were kept.")
        : Words::tr(
            "Pixmallow ended while you were editing. Your pictures and all their marks were kept.");
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
    column->setContentsMargins(
        mirrored(QMargins(textLeft, Space::group, Space::group, Space::group), *this));
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
    connect(add(tr("Not Now"), tr("Ask again at the next start"), Look::Plain),
        &GlassButton::clicked, this, &ReopenView::laterWanted);
    connect(add(tr("Discard"), tr("Remove what was kept for good"), Look::Glass),
        &GlassButton::clicked, this, &ReopenView::discardWanted);
    auto* reopen = add(tr("Reopen"), tr("Go on where you were"), Look::Prominent);
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
        mirrored(QRectF(Space::group, Space::group, symbolSize, line), *this), symbolSize,
        theme.accentSymbol);
}
