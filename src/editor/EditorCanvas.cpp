// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EditorCanvas.h"

#include "editor/AccessibleMarks.h"
#include "editor/AnnotationKind.h"
#include "editor/CanvasKeys.h"
#include "editor/TextField.h"
#include "editor/Tools.h"
#include "widgets/CardFrame.h"
#include "widgets/style/FocusRing.h"

#include <QGestureEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <chrono>
#include <cmath>

namespace {

constexpr double stepsPerDoubling = 4; // Of a wheel.
constexpr int wheelStep = 120; // Of QWheelEvent::angleDelta().
constexpr std::chrono::milliseconds stillness(150); // After which the view has come to rest.
constexpr int around = 2; // Points beyond what changed, for what smoothing touches.

/// The pointer's shape while a tool is in hand.
Qt::CursorShape cursorOf(Tool tool)
{
    const AnnotationKind* const kind = infoOf(tool).kind;
    if (kind && kind->making() == AnnotationKind::Making::Typing)
        return Qt::IBeamCursor;
    return tool == Tool::Select ? Qt::ArrowCursor : Qt::CrossCursor;
}

} // namespace

EditorCanvas::EditorCanvas(const QImage& image, QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_model(image)
    , m_shownTool(m_model.tool())
{
    Accessible::describe(
        *this, {QAccessible::Canvas, {}, std::make_shared<AccessibleMarks>(*this)});
    FocusRing::wantedBy(*this);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setLayoutDirection(Qt::LeftToRight); // A picture is no text.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->grabGesture(Qt::PinchGesture);
    m_still.setSingleShot(true);
    m_still.setInterval(stillness);
    m_still.callOnTimeout(viewport(), qOverload<>(&QWidget::update));
    m_model.document().setOnChange([this] {
        Accessible::partsChanged(*this);
        Q_EMIT changed();
    });
    m_model.setOnSticker([this] { Q_EMIT stickerPlaced(); });
    m_view.setPicture(std::as_const(m_model).document().base().size());
    placeView();
    updateCursor();
}

EditorCanvas::~EditorCanvas() = default;

QImage EditorCanvas::flattened()
{
    edit([](CanvasModel& model) { model.document(); });
    return std::as_const(m_model).document().flattened();
}

void EditorCanvas::magnify(double magnification)
{
    magnify(magnification, QRectF(viewport()->rect()).center());
}

void EditorCanvas::magnify(double magnification, QPointF keeping)
{
    m_view.magnify(magnification, keeping);
    placeView();
    viewMoved();
    viewport()->update();
    Q_EMIT magnified();
}

/// Enlarged, what comes into sight is drawn from pixels first, sharp a moment later.
void EditorCanvas::viewMoved()
{
    if (m_view.magnification() * m_view.devicePixelRatio() > 1)
        m_still.start();
}

/// After an event: what differs from what is shown is painted.
void EditorCanvas::refresh()
{
    const CanvasDocument& document = std::as_const(m_model).document();
    if (const QRegion damage = m_model.takeDamage(); !damage.isEmpty()) {
        m_damage += damage;
        for (const QRect& rect : damage)
            viewport()->update(m_view.toView(QRectF(rect))
                                   .toAlignedRect()
                                   .adjusted(-around, -around, around, around));
    }
    if (m_view.picture() != document.base().size()) {
        m_view.setPicture(document.base().size());
        placeView();
        viewport()->update();
    }
    if (auto decorations = CanvasDecorations::of(m_model); decorations != m_decorations) {
        viewport()->update(m_decorations.region(m_view) + decorations.region(m_view));
        m_decorations = std::move(decorations);
    }
    if (const auto selected = document.selectedIndex();
        std::exchange(m_toldSelected, selected) != selected)
        Accessible::currentPartChanged(*this);
    showTyping();
    if (m_shownTool != m_model.tool()) {
        m_shownTool = m_model.tool();
        updateCursor();
        Q_EMIT toolChanged(m_shownTool);
    }
}

void EditorCanvas::showTyping()
{
    const auto& prompt = m_model.textPrompt();
    if (!prompt || m_field)
        return;
    m_field = new TextField(viewport(), prompt->annotation);
    connect(m_field, &TextField::done, this, &EditorCanvas::finishTyping);
    connect(m_field, &TextField::cancelled, this, [this] { answer({}); });
    m_field->place(m_view);
    m_field->show();
    m_field->setFocus();
}

void EditorCanvas::finishTyping()
{
    if (m_field)
        answer(m_field->toPlainText());
}

void EditorCanvas::answer(const std::optional<QString>& text)
{
    m_field->deleteLater(); // It may be what is calling.
    m_field->hide();
    m_field.clear();
    m_model.answerPrompt(text);
    setFocus();
    refresh();
}

void EditorCanvas::paintEvent(QPaintEvent* event)
{
    const auto marks = m_model.visible();
    const CanvasDocument& document = std::as_const(m_model).document();
    m_picture.update(document.base(), marks, std::exchange(m_damage, {}));
    QPainter painter(viewport());
    painter.setClipRegion(event->region());
    const QRect picture = m_view.toView(QRectF({}, m_view.picture())).toAlignedRect();
    const QRect inside = picture.adjusted(1, 1, -1, -1); // Its edges may cover half a pixel.
    const bool opaque = !document.base().hasAlphaChannel();
    for (const QRect& rect : event->region() - (opaque ? QRegion(inside) : QRegion()))
        painter.fillRect(rect, palette().base());
    paintFrame(painter, picture, event->region() - inside);
    using enum CanvasPicture::Detail;
    for (const QRect& rect : event->region()) { // Clipped to several, the toolkit rounds otherwise.
        painter.setClipRect(rect);
        m_picture.draw(painter, m_view, marks, isStill() ? Sharp : Fast);
    }
    painter.setClipRegion(event->region());
    m_decorations.draw(painter, m_view, palette().color(QPalette::Highlight));
}

void EditorCanvas::resizeEvent(QResizeEvent*)
{
    placeView();
}

/// The scroll bars, and what lies over the picture, follow the view.
void EditorCanvas::placeView()
{
    m_view.setView(viewport()->size(), devicePixelRatioF());
    m_placing = true;
    const auto follow = [](QScrollBar* bar, double range, double page, double at) {
        bar->setRange(0, int(std::ceil(range)));
        bar->setPageStep(int(page));
        bar->setSingleStep(std::max(1, int(page / 20)));
        bar->setValue(qRound(at));
    };
    const QPointF offset = m_view.offset();
    follow(horizontalScrollBar(), m_view.range().width(), m_view.view().width(), offset.x());
    follow(verticalScrollBar(), m_view.range().height(), m_view.view().height(), offset.y());
    m_placing = false;
    if (m_field)
        m_field->place(m_view);
}

void EditorCanvas::scrollContentsBy(int, int)
{
    if (m_placing)
        return;
    const QPointF before = m_view.origin();
    m_view.scrollTo(QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value()));
    viewMoved();
    const QPointF by = m_view.origin() - before;
    const QPoint points = by.toPoint();
    if (by == points && !m_model.cropRect()) // The pixels that stay in sight are moved.
        viewport()->scroll(points.x(), points.y(), viewport()->rect());
    else
        viewport()->update();
    if (m_field)
        m_field->place(m_view);
}

/// What sets the picture off from its ground.
void EditorCanvas::paintFrame(QPainter& painter, QRect picture, const QRegion& wanted) const
{
    if (wanted.isEmpty())
        return;
    painter.setClipRegion(wanted);
    CardFrame::paintShadow(painter, picture, 0, palette().color(QPalette::Shadow));
    painter.fillRect(picture.adjusted(-1, -1, 1, 1), palette().color(QPalette::Mid));
}

void EditorCanvas::mousePressEvent(QMouseEvent* event)
{
    press(event, CanvasModel::Click::Single);
}

void EditorCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    press(event, CanvasModel::Click::Double);
}

void EditorCanvas::press(QMouseEvent* event, CanvasModel::Click click)
{
    const bool panning
        = event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && m_spaceHeld);
    if (panning && !m_model.isPressed()) {
        m_panFrom = event->position().toPoint();
        return updateCursor();
    }
    if (event->button() != Qt::LeftButton)
        return;
    if (m_field) // To click elsewhere ends it, and nothing more.
        return finishTyping();
    setFocus(Qt::MouseFocusReason);
    m_model.press(m_view.toPicture(event->position()), m_view.magnification(), click);
    refresh();
}

void EditorCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_panFrom)
        return pan(event->position().toPoint());
    if (!m_model.isPressed() || !event->buttons()) // Or the keyboard is at work.
        return;
    m_model.drag(m_view.toPicture(event->position()), event->modifiers());
    refresh();
}

void EditorCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_panFrom && event->button() != Qt::RightButton) {
        m_panFrom.reset();
        return updateCursor();
    }
    if (event->button() != Qt::LeftButton)
        return;
    m_model.release(m_view.toPicture(event->position()));
    refresh();
}

void EditorCanvas::pan(QPoint to)
{
    const QPoint by = to - std::exchange(*m_panFrom, to);
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - by.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - by.y());
}

void EditorCanvas::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier))
        return QAbstractScrollArea::wheelEvent(event);
    const double steps = double(event->angleDelta().y()) / wheelStep;
    magnify(m_view.magnification() * std::exp2(steps / stepsPerDoubling), event->position());
    event->accept();
}

bool EditorCanvas::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::NativeGesture) { // A touch pad.
        const auto* const gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            magnify(m_view.magnification() * (1 + gesture->value()), gesture->position());
            return true;
        }
    } else if (event->type() == QEvent::Gesture) { // A touch screen.
        auto* const pinch = static_cast<QPinchGesture*>(
            static_cast<QGestureEvent*>(event)->gesture(Qt::PinchGesture));
        if (pinch && pinch->changeFlags() & QPinchGesture::ScaleFactorChanged) {
            const QPointF centre = viewport()->mapFromGlobal(pinch->centerPoint());
            magnify(m_view.magnification() * pinch->scaleFactor(), centre);
            return true;
        }
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void EditorCanvas::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && !event->modifiers()) {
        m_spaceHeld = true;
        return updateCursor();
    }
    const QRectF picture({}, m_view.picture());
    const QRectF inSight(m_view.toPicture(QPointF()),
        m_view.toPicture(QPointF(viewport()->width(), viewport()->height())));
    if (CanvasKeys::take(m_model, event->key(), event->modifiers(), inSight & picture))
        return refresh();
    const auto answered = m_model.key(event->key(), event->modifiers(), event->text());
    refresh();
    if (answered == CanvasModel::KeyAnswer::Close)
        Q_EMIT closeRequested();
    else if (answered == CanvasModel::KeyAnswer::Ignored)
        QAbstractScrollArea::keyPressEvent(event);
}

void EditorCanvas::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space || event->isAutoRepeat())
        return QAbstractScrollArea::keyReleaseEvent(event);
    m_spaceHeld = false;
    updateCursor();
}

void EditorCanvas::focusOutEvent(QFocusEvent* event)
{
    m_spaceHeld = false; // Nobody will tell when it is released.
    updateCursor();
    QAbstractScrollArea::focusOutEvent(event);
}

void EditorCanvas::updateCursor()
{
    if (m_panFrom)
        viewport()->setCursor(Qt::ClosedHandCursor);
    else
        viewport()->setCursor(m_spaceHeld ? Qt::OpenHandCursor : cursorOf(m_model.tool()));
}
