// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/SegmentedControl.h"

#include "widgets/Enlarged.h"
#include "widgets/Icons.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int inset = 2; // Between the ground and what is filled on it.

class SegmentButton final : public QAbstractButton {
public:
    SegmentButton(const Themes& themes, const SegmentedControl::Segment& segment, bool chooses)
        : m_themes(themes)
        , m_symbol(segment.symbol)
    {
        setText(segment.text);
        setToolTip(segment.help);
        setAccessibleName(segment.help.isEmpty() ? segment.text : segment.help);
        setCheckable(chooses);
        setAutoExclusive(chooses);
        setFocusPolicy(Qt::TabFocus);
        setAttribute(Qt::WA_Hover);
        setSizePolicy(
            m_symbol.isEmpty() ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override
    {
        if (!m_symbol.isEmpty())
            return {enlarged(Extent::toolbar, m_themes.current()),
                enlarged(Extent::control, m_themes.current())};
        const QFontMetrics metrics(m_themes.current().font(TextStyle::Body));
        return {metrics.horizontalAdvance(text()) + 2 * Space::group,
            std::max(Extent::control, metrics.height() + Space::related)};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = m_themes.current();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF box = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground());
        painter.drawRoundedRect(box, Radius::cell - inset, Radius::cell - inset);
        if (hasFocus()) {
            const double in = Extent::focusRing / 2;
            painter.setPen(
                QPen(isChecked() ? theme.onAccent : theme.accentSymbol, Extent::focusRing));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(
                box.adjusted(in, in, -in, -in), Radius::cell - inset, Radius::cell - inset);
        }
        const QColor ink = isChecked() ? theme.onAccent : theme.text;
        if (!m_symbol.isEmpty())
            return Icons::paint(painter, m_symbol, box, enlarged(Extent::smallSymbol, theme), ink);
        painter.setFont(theme.font(TextStyle::Body));
        painter.setPen(ink);
        painter.drawText(box, Qt::AlignCenter, text());
    }

    /// The toolkit lets the arrow keys choose; Return is to do what Space does.
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QAbstractButton::keyPressEvent(event);
    }

private:
    QColor ground() const
    {
        const Theme& theme = m_themes.current();
        if (isChecked())
            return isDown() ? theme.accentPressed : theme.accent;
        if (isDown())
            return theme.fillPressed;
        return underMouse() && isEnabled() ? theme.fillHover : QColor(Qt::transparent);
    }

    const Themes& m_themes;
    const QString m_symbol;
};

} // namespace

SegmentedControl::SegmentedControl(const Themes& themes, const QString& name,
    const QList<Segment>& segments, Mode mode, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
{
    setAccessibleName(name);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(0);
    for (const Segment& segment : segments) {
        const int index = int(m_buttons.size());
        auto* button = new SegmentButton(m_themes, segment, mode == Mode::ChooseOne);
        connect(button, &QAbstractButton::clicked, this, [this, index] { Q_EMIT chosen(index); });
        connect(button, &QAbstractButton::toggled, button,
            [button](bool on) { button->setFocusPolicy(on ? Qt::TabFocus : Qt::NoFocus); });
        row->addWidget(button);
        m_buttons << button;
    }
    setSizePolicy(layout()->expandingDirections() ? QSizePolicy::Preferred : QSizePolicy::Fixed,
        QSizePolicy::Fixed);
    connect(&m_themes, &Themes::changed, this, [this] {
        for (QAbstractButton* button : m_buttons)
            button->updateGeometry();
        update();
    });
}

int SegmentedControl::current() const
{
    for (int index = 0; index < m_buttons.size(); ++index)
        if (m_buttons[index]->isChecked())
            return index;
    return -1;
}

void SegmentedControl::setCurrent(int index)
{
    m_buttons[index]->setChecked(true);
}

void SegmentedControl::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_themes.current().fill);
    painter.drawRoundedRect(rect(), Radius::cell, Radius::cell);
}
