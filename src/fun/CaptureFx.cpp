// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/CaptureFx.h"

#include "fun/FxOutline.h"
#include "fun/FxPanel.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

namespace {

/// After the last frame, in seconds.
constexpr double afterglow = 0.1;

FxRules::Movement movementOf(const Theme& theme)
{
    return theme.reducedMotion ? FxRules::Movement::Reduced : FxRules::Movement::Full;
}

FxRules::Windows windowsOf(const SurfaceTraits& surfaces)
{
    return surfaces.blendsWindows() ? FxRules::Windows::Blended : FxRules::Windows::Opaque;
}

/// The corner of a screen is the same in points and in pixels.
const QScreen* screenOf(const DisplayInfo& display)
{
    for (const QScreen* screen : QGuiApplication::screens())
        if (screen->geometry().topLeft() == display.native.topLeft())
            return screen;
    return QGuiApplication::primaryScreen();
}

} // namespace

CaptureFx::CaptureFx(const Surroundings& surroundings)
    : m_surroundings(surroundings)
{
    // What was blended would be black now.
    connect(&m_surroundings.surfaces, &SurfaceTraits::blendingChanged, this,
        [this] { m_running.clear(); });
}

QString CaptureFx::current() const
{
    return FxRules::known(m_surroundings.prefs.get(Prefs::keys.captureAnimation));
}

void CaptureFx::play(const QString& kind, QRectF area, const QImage& image)
{
    const auto plan = FxRules::adapted(FxRules::planOf(kind),
        movementOf(m_surroundings.themes.current()), windowsOf(m_surroundings.surfaces));
    const auto displays = m_surroundings.displays.list();
    const DisplayInfo* display = FxRules::displayOf(area, displays);
    if (plan.kind == FxKind::None || !FxRules::isLargeEnough(area) || !display)
        return;
    m_running.push_back(begin(plan, *display, area, image));
    const QObject* effect = m_running.back().get();
    const auto life = std::chrono::duration<double>(plan.duration + afterglow);
    QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(life),
        Qt::PreciseTimer, effect, [this, effect] {
            m_running.remove_if([effect](const auto& each) { return each.get() == effect; });
        });
}

std::unique_ptr<QObject> CaptureFx::begin(
    FxRules::Plan plan, const DisplayInfo& display, QRectF area, const QImage& image)
{
    const FxStage stage = stageOn(display, area, image);
    if (plan.kind == FxKind::Outline)
        return std::make_unique<FxOutline>(
            m_surroundings.surfaces, display, stage.area, plan.duration, stage.theme.accent);
    auto panel = std::make_unique<FxPanel>(m_surroundings.surfaces, display,
        FxScene::make(plan, stage), plan.kind == FxKind::Fly ? image : QImage());
    panel->play();
    return panel;
}

FxStage CaptureFx::stageOn(const DisplayInfo& display, QRectF area, const QImage& image)
{
    FxStage stage;
    stage.area = FxRules::onDisplay(area, display);
    stage.screen = display.points.size();
    stage.picture = image;
    stage.theme = m_surroundings.themes.current();
    stage.seed = ++m_played;
    if (const QScreen* screen = screenOf(display))
        stage.landing = FxRules::landing(screen->geometry(), screen->availableGeometry(),
            m_trayIcon ? m_trayIcon() : std::nullopt);
    return stage;
}
