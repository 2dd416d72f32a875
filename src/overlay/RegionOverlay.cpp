// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/RegionOverlay.h"

#include "base/ArrowKeys.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>

namespace {

constexpr int arrowStep = 1, longArrowStep = 10; // Device pixels.

std::optional<OverlayKey> meaningOf(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return OverlayKey::Take;
    case Qt::Key_Space:
        return OverlayKey::WholeScreen;
    case Qt::Key_Escape:
        return OverlayKey::Cancel;
    case Qt::Key_A:
        return OverlayKey::FirstCorner;
    case Qt::Key_Tab:
        return OverlayKey::NextWindow;
    case Qt::Key_Backtab:
        return OverlayKey::PreviousWindow;
    }
    return std::nullopt;
}

} // namespace

RegionOverlay::RegionOverlay(OverlayPool& pool, const Displays& displays, const OverlayStyle& style)
    : m_pool(pool)
    , m_displays(displays)
    , m_style(style)
{
}

RegionOverlay::~RegionOverlay()
{
    finish(Error::cancelled());
}

Pending<RegionResult> RegionOverlay::select(const RegionQuestion& question)
{
    auto [pending, answer] = Pending<RegionResult>::ask();
    m_answer = std::move(answer);
    show(question);
    return std::move(pending);
}

void RegionOverlay::show(const RegionQuestion& question)
{
    m_model.emplace(question, m_displays.pointer());
    for (const auto& screen : question.screens) {
        m_windows.push_back(m_pool.take(screen.display));
        m_windows.back()->installEventFilter(this);
    }
    // Of screens that show the same, the first one comes to lie above: it is the one that counts.
    for (qsizetype i = question.screens.size() - 1; i >= 0; --i) {
        auto view = std::make_unique<OverlayView>(question.screens[i], m_style, question.purpose);
        m_windows[std::size_t(i)]->present(std::move(view), m_model->scene(i));
    }
    m_pool.surfaces().grabKeyboard(*m_windows[std::size_t(m_model->activeScreen())]);
    watchScreens();
}

void RegionOverlay::watchScreens()
{
    const auto cancel = [this] { finish(Error::cancelled()); };
    connect(qGuiApp, &QGuiApplication::screenAdded, this, cancel);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, cancel);
    for (const QScreen* screen : QGuiApplication::screens())
        connect(screen, &QScreen::geometryChanged, this, cancel);
}

bool RegionOverlay::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        handleMouse(static_cast<QMouseEvent&>(*event), static_cast<QWindow&>(*object));
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return handleKey(static_cast<QKeyEvent&>(*event));
    default:
        return false;
    }
}

void RegionOverlay::handleMouse(const QMouseEvent& event, const QWindow& window)
{
    const QPoint pointer = m_pool.surfaces().nativePosition(event, window);
    m_model->setSquare(event.modifiers() & Qt::ShiftModifier);
    if (event.type() == QEvent::MouseMove)
        m_model->move(pointer);
    else if (event.button() == Qt::LeftButton)
        event.type() == QEvent::MouseButtonRelease ? m_model->release(pointer)
                                                   : m_model->press(pointer);
    else if (event.button() == Qt::RightButton && event.type() != QEvent::MouseButtonRelease)
        m_model->pressRight();
    showScenes();
}

bool RegionOverlay::handleKey(const QKeyEvent& event)
{
    const bool pressed = event.type() == QEvent::KeyPress;
    // Keys mean where the pointer is now, whatever moves of it are yet to be heard of. If it is
    // where it was, that is no move.
    if (const QPoint now = m_displays.pointer(); pressed && now != m_model->pointer())
        m_model->move(now);
    if (event.key() == Qt::Key_Shift) {
        m_model->setSquare(pressed);
    } else if (const QPoint direction = directionOf(event.key()); !direction.isNull()) {
        if (pressed) {
            const bool far = event.modifiers() & Qt::ShiftModifier;
            const QPoint to = m_model->stepped(direction * (far ? longArrowStep : arrowStep));
            m_pool.surfaces().movePointer(to);
            m_model->move(to);
        }
    } else if (const auto key = meaningOf(event.key())) {
        if (pressed)
            m_model->key(*key);
    } else {
        return false;
    }
    showScenes();
    return true;
}

void RegionOverlay::showScenes()
{
    if (m_model->outcome()) {
        finish(*m_model->outcome());
        return;
    }
    for (std::size_t i = 0; i < m_windows.size(); ++i)
        m_windows[i]->setScene(m_model->scene(qsizetype(i)));
}

void RegionOverlay::finish(Result<RegionResult> result)
{
    if (!m_answer)
        return;
    QObject::disconnect(qGuiApp, nullptr, this, nullptr);
    m_pool.surfaces().releaseKeyboard();
    for (auto& window : m_windows) {
        window->removeEventFilter(this);
        m_pool.giveBack(std::move(window));
    }
    m_windows.clear();
    m_answer(std::move(result));
}
