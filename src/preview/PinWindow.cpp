// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/PinWindow.h"

#include "preview/PinRules.h"
#include "widgets/Icons.h"
#include "widgets/PanelPlacement.h"

#include <QContextMenuEvent>
#include <QCursor>
#include <QMenu>
#include <QPainter>
#include <QWindow>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QList<QRect> screenFrames()
{
    QList<QRect> frames;
    for (const auto& screen : PanelPlacement::screens())
        frames << screen.frame;
    return frames;
}

/// The whole points around a frame, and around its shadow.
QRect outerOf(QRectF frame)
{
    return frame.toAlignedRect().marginsAdded(CardFrame::shadowMargins());
}

} // namespace

PinWindow::PinWindow(const Surroundings& surroundings, ShotActions actions, Shot shot)
    : m_surroundings(surroundings)
    , m_actions(std::move(actions))
    , m_shot(std::move(shot))
    , m_size(QSizeF(m_shot.image.size()) / m_shot.scale)
    , m_view(surroundings.themes, m_shot.image, this)
{
    setWindowTitle(tr("Pinned capture"));
    setAccessibleName(windowTitle());
    m_view.setAccessibleName(m_shot.app.isEmpty() ? windowTitle() : m_shot.app);
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    create();
    m_surroundings.surfaces.makeFloating(*windowHandle());
    windowHandle()->installEventFilter(this);
    connect(&m_surroundings.surfaces, &SurfaceTraits::blendingChanged, this,
        &PinWindow::followBlending);
    connect(&m_surroundings.themes, &Themes::changed, this, qOverload<>(&QWidget::update));
    connect(&m_view, &PinImageView::grabbed, this, [this] { m_grabbed = m_frame; });
    connect(&m_view, &PinImageView::dragged, this, &PinWindow::drag);
    connect(&m_view, &PinImageView::dropped, this,
        [this] { place(PinRules::reachable(m_frame, screenFrames())); });
    connect(&m_view, &PinImageView::doubleClicked, this, &PinWindow::closePin);
}

PinWindow::~PinWindow()
{
    if (m_hasFocus)
        m_surroundings.surfaces.returnFocus();
}

void PinWindow::open(QPoint shift)
{
    const QRect area = PanelPlacement::under(QCursor::pos(), PanelPlacement::screens()).workArea;
    m_zoom = PinRules::initialZoom(m_size, area.size());
    QRectF frame({}, m_size * m_zoom);
    frame.moveCenter(QRectF(area).center() + shift);
    frame.moveTopLeft(frame.topLeft().toPoint());
    place(frame);
    show();
    followBlending();
    takeFocus();
}

void PinWindow::resizeTo(double zoom)
{
    m_zoom = PinRules::clampedZoom(zoom);
    place(PinRules::reachable(PinRules::zoomed(m_frame, m_size, m_zoom), screenFrames()));
}

void PinWindow::copyImage()
{
    if (m_actions.copy)
        std::ignore = m_actions.copy({m_shot});
}

void PinWindow::edit()
{
    if (m_actions.edit)
        m_actions.edit({m_shot});
    closePin();
}

void PinWindow::closePin()
{
    if (std::exchange(m_hasFocus, false))
        m_surroundings.surfaces.returnFocus(); // Before the keyboard is nobody's for a moment.
    hide();
    Q_EMIT closed();
}

/// A picture enlarged beyond the desktop would take a window of gigabytes, so that one is cut.
void PinWindow::place(QRectF frame)
{
    m_frame = frame;
    QRect desktop;
    for (const QRect& screen : screenFrames())
        desktop |= screen;
    QRect outer = outerOf(frame);
    if (outer.width() > desktop.width() || outer.height() > desktop.height())
        outer &= desktop;
    setGeometry(outer);
    m_view.setExtent(frame.size());
    m_view.move(frame.topLeft().toPoint() - outer.topLeft());
    if (isVisible())
        followBlending();
}

void PinWindow::drag(QPointF by, Qt::Edges edges)
{
    if (!edges)
        return place(m_grabbed.translated(by.toPoint()));
    QRectF frame = PinRules::resized(m_grabbed, edges, by, m_size);
    m_zoom = frame.width() / m_size.width();
    frame.moveTopLeft(frame.topLeft().toPoint());
    place(frame);
}

void PinWindow::followBlending()
{
    const QRect inside = m_view.geometry();
    if (m_surroundings.surfaces.blendsWindows()) {
        clearMask();
    } else {
        QPainterPath path;
        path.addRoundedRect(inside, Radius::cell, Radius::cell);
        setMask(QRegion(path.toFillPolygon().toPolygon()) & rect());
    }
    m_surroundings.surfaces.setInputRegion(*windowHandle(), inside & rect());
    update();
}

void PinWindow::takeFocus()
{
    m_hasFocus = true;
    m_surroundings.surfaces.takeFocus(*windowHandle());
}

void PinWindow::paintEvent(QPaintEvent*)
{
    if (!m_surroundings.surfaces.blendsWindows())
        return;
    QPainter painter(this);
    const QRectF picture(m_view.pos(), m_frame.size());
    CardFrame::paintShadow(painter, picture, Radius::cell, m_surroundings.themes.current().shadow);
}

void PinWindow::hideEvent(QHideEvent* event)
{
    if (std::exchange(m_hasFocus, false))
        m_surroundings.surfaces.returnFocus();
    QWidget::hideEvent(event);
}

void PinWindow::wheelEvent(QWheelEvent* event)
{
    const auto step = PinRules::wheelStep(event->angleDelta(), event->modifiers());
    const double zoom = PinRules::zoomAfter(m_zoom, step);
    if (zoom != m_zoom)
        resizeTo(zoom);
    setWindowOpacity(PinRules::opacityAfter(windowOpacity(), step));
    event->accept();
}

void PinWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        closePin();
    else
        QWidget::keyPressEvent(event);
}

void PinWindow::contextMenuEvent(QContextMenuEvent* event)
{
    const Theme& theme = m_surroundings.themes.current();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setPalette(theme.palette());
    menu->setFont(theme.font(TextStyle::Body));
    const auto add = [&](const QString& symbol, const QString& text, auto slot) {
        menu->addAction(Icons::icon(symbol, theme.text), text, this, slot);
    };
    if (m_actions.copy)
        add(u"doc.on.doc"_s, tr("Copy"), &PinWindow::copyImage);
    if (m_actions.edit)
        add(u"pencil"_s, tr("Open in Editor"), &PinWindow::edit);
    add(u"arrow.up.left.and.down.right.magnifyingglass"_s, tr("Actual Size"),
        &PinWindow::actualSize);
    add(u"xmark"_s, tr("Close"), &PinWindow::closePin);
    menu->popup(event->globalPos());
}

bool PinWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == windowHandle() && event->type() == QEvent::MouseButtonPress)
        takeFocus(); // Whatever part of it was clicked.
    return QWidget::eventFilter(watched, event);
}
