// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/PopupCard.h"

#include "widgets/PanelPlacement.h"

#include <QMouseEvent>
#include <QPainter>

PopupCard::PopupCard(const Surroundings& surroundings, const QString& name)
    : m_surroundings(surroundings)
{
    setAccessibleName(name);
    setWindowTitle(name);
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    connect(&m_surroundings.themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

void PopupCard::host(QWidget* content)
{
    m_content = content;
    content->setParent(this);
    content->installEventFilter(this);
    content->show();
    setFocusProxy(content);
}

QRect PopupCard::card() const
{
    return geometry().marginsRemoved(CardFrame::shadowMargins());
}

void PopupCard::openAt(QPoint place)
{
    m_place = place;
    fit();
    show();
    activateWindow();
    m_content->setFocus(Qt::PopupFocusReason);
}

void PopupCard::fit()
{
    m_content->adjustSize();
    m_content->move(CardFrame::shadowMargins().left(), CardFrame::shadowMargins().top());
    const auto screen = PanelPlacement::under(m_place, PanelPlacement::screens());
    setGeometry(PanelPlacement::beside(screen, m_content->size(), m_place)
                    .marginsAdded(CardFrame::shadowMargins()));
    if (m_surroundings.surfaces.blendsWindows()) {
        clearMask();
    } else {
        const QRect inside = QRect({}, size()).marginsRemoved(CardFrame::shadowMargins());
        setMask(QRegion(CardFrame::outline(inside).toFillPolygon().toPolygon()));
    }
}

void PopupCard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    CardFrame::paint(painter, QRectF(rect()).marginsRemoved(CardFrame::shadowMargins()),
        m_surroundings.themes.current(),
        m_surroundings.surfaces.blendsWindows() ? CardFrame::Ground::Blended
                                                : CardFrame::Ground::Opaque);
}

void PopupCard::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    Q_EMIT closed();
}

void PopupCard::mousePressEvent(QMouseEvent* event)
{
    // The shadow is not the card; a click beside the window closes it likewise.
    const QRect inside = rect().marginsRemoved(CardFrame::shadowMargins());
    if (!inside.contains(event->position().toPoint()))
        close();
}

bool PopupCard::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_content && event->type() == QEvent::LayoutRequest && isVisible()
        && m_content->sizeHint() != m_content->size())
        fit();
    return QWidget::eventFilter(watched, event);
}
