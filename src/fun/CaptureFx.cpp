// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/CaptureFx.h"

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
        [this] { m_panels.clear(); });
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
    auto scene = FxScene::make(plan, stageOn(*display, area, image));
    m_panels.push_back(std::make_unique<FxPanel>(m_surroundings.surfaces, *display,
        std::move(scene), plan.kind == FxKind::Fly ? image : QImage()));
    FxPanel* panel = m_panels.back().get();
    panel->play();
    const auto life = std::chrono::duration<double>(plan.duration + afterglow);
    QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(life),
        Qt::PreciseTimer, panel, [this, panel] {
            m_panels.remove_if([panel](const auto& each) { return each.get() == panel; });
        });
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
