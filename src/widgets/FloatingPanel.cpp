// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/FloatingPanel.h"

#include "widgets/Accessible.h"
#include "widgets/Motion.h"
#include "widgets/PanelPlacement.h"

#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

namespace {

PanelPlacement::Screen screenUnderPointer()
{
    return PanelPlacement::under(QCursor::pos(), PanelPlacement::screens());
}

} // namespace

FloatingPanel::FloatingPanel(const Surroundings& surroundings, const QString& name)
    : m_surroundings(surroundings)
{
    Accessible::describe(*this, {QAccessible::Notification});
    setAccessibleName(name);
    setWindowTitle(name);
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    create();
    m_surroundings.surfaces.makeFloating(*windowHandle());
    windowHandle()->installEventFilter(this);
    connect(&m_surroundings.themes, &Themes::changed, this, qOverload<>(&QWidget::update));
    connect(&m_surroundings.surfaces, &SurfaceTraits::blendingChanged, this,
        &FloatingPanel::followBlending);
}

FloatingPanel::~FloatingPanel()
{
    if (m_hasFocus)
        m_surroundings.surfaces.returnFocus();
}

void FloatingPanel::host(QWidget* content)
{
    m_content = content;
    content->setParent(this);
    content->adjustSize();
    content->move(CardFrame::shadowMargins().left(), CardFrame::shadowMargins().top());
    resize(content->size().grownBy(CardFrame::shadowMargins()));
    content->installEventFilter(this);
    content->show();
}

QRect FloatingPanel::card() const
{
    return geometry().marginsRemoved(CardFrame::shadowMargins());
}

void FloatingPanel::presentBottomRight(int margin)
{
    glide(PanelPlacement::bottomRight(screenUnderPointer(), card().size(), margin),
        Motion::riseHeight);
}

void FloatingPanel::presentTopRight(int margin)
{
    glide(
        PanelPlacement::topRight(screenUnderPointer(), card().size(), margin), -Motion::riseHeight);
}

void FloatingPanel::glide(QRect target, int fromBelow)
{
    const int way = theme().reducedMotion ? 0 : fromBelow;
    const auto step = [this, target, way](double done) {
        placeCard(target.translated(0, int(way * (1 - done))));
        setOpacity(done);
    };
    m_motion.disconnect();
    m_motion.setStartValue(0.0);
    m_motion.setEndValue(1.0);
    m_motion.setDuration(int(Motion::rise.count()));
    m_motion.setEasingCurve(Motion::riseCurve);
    connect(&m_motion, &QVariantAnimation::valueChanged, this,
        [step](const QVariant& value) { step(value.toDouble()); });
    step(0);
    show();
    m_motion.start();
}

void FloatingPanel::presentCentered()
{
    placeCard(PanelPlacement::centred(screenUnderPointer(), card().size()));
    show();
}

void FloatingPanel::fadeOut(std::function<void()> hidden)
{
    m_motion.stop();
    m_motion.disconnect();
    m_motion.setStartValue(windowOpacity());
    m_motion.setEndValue(0.0);
    m_motion.setDuration(int(Motion::fadeOut.count()));
    m_motion.setEasingCurve(Motion::fadeCurve);
    connect(&m_motion, &QVariantAnimation::valueChanged, this,
        [this](const QVariant& value) { setOpacity(value.toDouble()); });
    connect(&m_motion, &QVariantAnimation::finished, this, [this, hidden = std::move(hidden)] {
        hide();
        hidden();
    });
    m_motion.start();
}

void FloatingPanel::placeCard(QRect card)
{
    setGeometry(card.marginsAdded(CardFrame::shadowMargins()));
}

void FloatingPanel::setOpacity(double opacity)
{
    if (m_surroundings.surfaces.blendsWindows())
        setWindowOpacity(opacity);
}

void FloatingPanel::followBlending()
{
    const QRect inside = QRect(QPoint(), size()).marginsRemoved(CardFrame::shadowMargins());
    if (m_surroundings.surfaces.blendsWindows()) {
        clearMask();
    } else {
        setWindowOpacity(1);
        setMask(QRegion(CardFrame::outline(inside).toFillPolygon().toPolygon()));
    }
    if (isVisible())
        m_surroundings.surfaces.setInputRegion(*windowHandle(), inside);
    update();
}

void FloatingPanel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect(), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    CardFrame::paint(painter, QRectF(rect()).marginsRemoved(CardFrame::shadowMargins()), theme(),
        m_surroundings.surfaces.blendsWindows() ? CardFrame::Ground::Blended
                                                : CardFrame::Ground::Opaque);
}

void FloatingPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    followBlending();
}

void FloatingPanel::hideEvent(QHideEvent* event)
{
    if (std::exchange(m_hasFocus, false))
        m_surroundings.surfaces.returnFocus();
    QWidget::hideEvent(event);
}

void FloatingPanel::takeFocus()
{
    m_hasFocus = true;
    m_surroundings.surfaces.takeFocus(*windowHandle());
}

void FloatingPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT escaped();
    else
        QWidget::keyPressEvent(event);
}

void FloatingPanel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_grip = event->position().toPoint();
}

void FloatingPanel::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_grip)
        return;
    m_motion.stop();
    setOpacity(1);
    move(event->globalPosition().toPoint() - *m_grip);
}

void FloatingPanel::mouseReleaseEvent(QMouseEvent*)
{
    m_grip.reset();
}

bool FloatingPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == windowHandle() && event->type() == QEvent::MouseButtonPress)
        takeFocus(); // Whatever part of it was clicked.
    // What it shows may change its mind about its size; the bottom right corner stays.
    if (watched == m_content && event->type() == QEvent::LayoutRequest
        && m_content->sizeHint() != m_content->size()) {
        const QPoint corner = card().bottomRight();
        m_content->adjustSize();
        QRect changed(QPoint(), m_content->size());
        changed.moveBottomRight(corner);
        placeCard(changed);
        followBlending();
    }
    return QWidget::eventFilter(watched, event);
}
