// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/ToastView.h"

#include "widgets/Enlarged.h"
#include "widgets/Icons.h"
#include "widgets/Mirrored.h"
#include "widgets/TextLines.h"

#include <QPainter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize leastSize(320, 80);
constexpr int symbolSize = 22; // As tall as a title's line.
constexpr int textLeft = Space::group + symbolSize + Space::inner;
constexpr int mostLines = 4;

const QString failureSymbol = u"exclamationmark.triangle.fill"_s;

} // namespace

ToastView::ToastView(const Themes& themes, const ToastMessage& toast, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
    , m_toast(toast)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(
        mirrored(QMargins(textLeft, Space::group, Space::group, Space::group), *this));
    column->setSpacing(Space::tiny / 2);
    column->addStretch();
    auto* title = new TextLabel(themes, TextStyle::Headline);
    title->setText(toast.title);
    column->addWidget(title);
    if (!toast.message.isEmpty()) {
        m_message = new TextLabel(
            themes, TextStyle::Callout, TextLabel::Role::Secondary, TextLabel::Lines::Wrapped);
        column->addWidget(m_message);
        fitMessage();
        connect(&themes, &Themes::changed, this, &ToastView::fitMessage);
    }
    column->addStretch();
    connect(&themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

QSize ToastView::sizeHint() const
{
    const int width = enlarged(leastSize.width(), m_themes.current());
    const int height = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width)
                                                     : layout()->sizeHint().height();
    return {width, std::max(leastSize.height(), height)};
}

void ToastView::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    const QRectF box = mirrored(QRectF(Space::group, 0, symbolSize, height()), *this);
    QPainter painter(this);
    Icons::paint(painter, m_toast.symbol, box, symbolSize,
        m_toast.symbol == failureSymbol ? theme.failure : theme.accentSymbol);
}

void ToastView::fitMessage()
{
    const QFont font = m_themes.current().font(TextStyle::Callout);
    const int width = enlarged(leastSize.width(), m_themes.current()) - textLeft - Space::group;
    const auto lines = TextLines::fitting(m_toast.message, font, width, mostLines);
    m_message->setText(lines.join(u'\n'));
    const bool isWhole = lines.join(u' ') == m_toast.message;
    m_message->setToolTip(isWhole ? QString() : m_toast.message);
}
