// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/PopUps.h"

#include "fun/Confetti.h"
#include "fun/PopUpView.h"
#include "widgets/Accessible.h"

#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

constexpr int pieces = 70;
constexpr double flight = 2; // Seconds.
constexpr std::chrono::milliseconds landed(2100);
constexpr QMargins aroundCard(90, 70, 90, 210); // Points that paper flies beyond it.

const DisplayInfo* displayOf(const QScreen& screen, const QList<DisplayInfo>& displays)
{
    for (const auto& display : displays)
        if (display.native.topLeft() == screen.geometry().topLeft()) // The same in both units.
            return &display;
    return nullptr;
}

} // namespace

PopUps::PopUps(Means means)
    : m_means(std::move(means))
{
    // From the event loop: whoever counts a deed goes on first, and may begin something.
    connect(
        &m_means.fun, &Fun::popUpQueued, this,
        [this] {
            if (!m_panel)
                later(between);
        },
        Qt::QueuedConnection);
    connect(&m_means.surroundings.surfaces, &SurfaceTraits::blendingChanged, this,
        [this] { m_confetti.reset(); }); // What was blended would be black now.
}

PopUps::~PopUps() = default;

void PopUps::captureBegins()
{
    m_isCapturing = true;
    ++m_turn;
    m_confetti.reset();
    m_panel.reset();
}

void PopUps::captureEnded()
{
    m_isCapturing = false;
    later(between);
}

void PopUps::later(std::chrono::milliseconds time)
{
    m_means.wait(time, this, [this, turn = ++m_turn] {
        if (turn == m_turn)
            next();
    });
}

void PopUps::next()
{
    if (m_isCapturing || m_panel)
        return;
    if (m_means.isFullScreen())
        return later(patience);
    if (!m_current)
        m_current = m_means.fun.takePopUp();
    if (m_current)
        show(*m_current);
}

void PopUps::show(const FunPopUp& popUp)
{
    const QString spoken = u"%1: %2. %3"_s.arg(popUp.title, popUp.text, popUp.detail).trimmed();
    auto panel = std::make_unique<FloatingPanel>(m_means.surroundings, spoken);
    auto* view = new PopUpView(m_means.surroundings.themes, popUp);
    connect(
        view, &PopUpView::clicked, this,
        [this] {
            Q_EMIT galleryWanted();
            close();
        },
        Qt::QueuedConnection); // The panel is busy with the click.
    connect(panel.get(), &FloatingPanel::escaped, this, &PopUps::close, Qt::QueuedConnection);
    panel->host(view);
    panel->presentTopRight(Space::group);
    celebrate(panel->card());
    m_panel = std::move(panel);
    m_panel->raise(); // Above the paper.
    Accessible::announce(*m_panel);
    m_means.sounds.play(u"Sparkle"_s);
    m_means.wait(shown, this, [this, turn = ++m_turn] {
        if (turn == m_turn)
            close();
    });
}

void PopUps::celebrate(QRect card)
{
    const auto& [themes, surfaces] = m_means.surroundings;
    const QScreen* screen = QGuiApplication::screenAt(card.center());
    const auto displays = m_means.displays.list();
    const DisplayInfo* display = screen ? displayOf(*screen, displays) : nullptr;
    if (!display || themes.current().reducedMotion || !surfaces.blendsWindows())
        return;
    const QRectF stage = card.marginsAdded(aroundCard).translated(-screen->geometry().topLeft());
    auto confetti = std::make_unique<Confetti>(
        Confetti::Options {stage, pieces, flight, Confetti::Mode::Burst, ++m_celebrated},
        themes.current());
    m_confetti = std::make_unique<FxPanel>(surfaces, *display, std::move(confetti), QImage());
    m_confetti->play();
    m_means.wait(landed, this, [this, number = m_celebrated] {
        if (number == m_celebrated)
            m_confetti.reset();
    });
}

void PopUps::close()
{
    if (!m_panel)
        return;
    m_current.reset();
    ++m_turn;
    m_panel->fadeOut([this] {
        m_confetti.reset();
        if (m_panel)
            m_panel.release()->deleteLater();
        later(between);
    });
}
