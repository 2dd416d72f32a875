// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/FlowChips.h"

#include "editor/GridFocus.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr qsizetype perRow = 4;

class Chip final : public QAbstractButton {
public:
    Chip(const Themes& themes, const QString& phrase)
        : m_themes(themes)
    {
        setText(phrase);
        setAccessibleName(phrase);
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::StrongFocus);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override
    {
        const QFontMetrics metrics(m_themes.current().font(TextStyle::Headline));
        return {metrics.horizontalAdvance(text()) + 2 * Space::inner,
            std::max(Extent::toolbar, metrics.height() + Space::related)};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = m_themes.current();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const double round = height() / 2.;
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? theme.fillPressed
                : underMouse()    ? theme.fillHover
                                  : theme.fill);
        painter.drawRoundedRect(rect(), round, round);
        if (hasFocus()) {
            const double half = Extent::focusRing / 2;
            painter.setPen(QPen(theme.accentSymbol, Extent::focusRing));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(
                QRectF(rect()).adjusted(half, half, -half, -half), round, round);
        }
        painter.setFont(theme.font(TextStyle::Headline));
        painter.setPen(theme.text);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else if (!GridFocus::move(*this, event->key()))
            QAbstractButton::keyPressEvent(event);
    }

private:
    const Themes& m_themes;
};

} // namespace

FlowChips::FlowChips(
    const Themes& themes, const QStringList& items, const Action& action, QWidget* parent)
    : QWidget(parent)
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(Space::related);
    for (qsizetype first = 0; first < items.size(); first += perRow) {
        auto* row = new QHBoxLayout;
        row->setSpacing(Space::related);
        for (const QString& item : items.mid(first, perRow)) {
            auto* chip = new Chip(themes, item);
            connect(chip, &QAbstractButton::clicked, this, [action, item] { action(item); });
            row->addWidget(chip);
            if (focusProxy())
                chip->setFocusPolicy(Qt::ClickFocus);
            else
                setFocusProxy(chip);
        }
        rows->addLayout(row);
    }
    rows->addStretch();
}
