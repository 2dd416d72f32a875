// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/Rooms.h"

using namespace Qt::StringLiterals;

Rooms::Rooms(DesktopPlatform& platform, Prefs& prefs, const Folders& folders)
    : m_platform(platform)
    , m_prefs(prefs)
    , m_history(folders, prefs)
    , m_fun(folders, prefs)
    , m_skins(prefs, *platform.appearance)
    , m_themes(m_skins, *platform.appearance)
    , m_synthesisedSounds(folders, prefs, *platform.sound)
    , m_sounds(prefs, m_synthesisedSounds, *platform.sound)
    , m_overlayPool(*platform.surfaces)
    , m_operations(platform, prefs, folders)
    , m_pins({m_themes, *platform.surfaces}, actions())
    , m_preview({m_themes, *platform.surfaces}, prefs, m_fun, actions(), u"Show in Folder"_s)
    , m_effects({*platform.displays, *platform.surfaces, m_themes, prefs})
{
    m_history.install();
    m_fun.install();
    m_skins.install();
    m_synthesisedSounds.install();
    m_sounds.install();
    m_skins.apply();
}

ShotActions Rooms::actions()
{
    ShotActions actions = m_operations.actions();
    actions.pin = [this](const FinishedCapture& capture) { m_pins.show(capture.shot); };
    return actions;
}

CaptureStages Rooms::stages()
{
    CaptureStages stages;
    stages.selectRegion = [this](const RegionQuestion& question) { return selectRegion(question); };
    stages.playShutter = [this] { m_sounds.playShutter(); };
    stages.playEffect = [this](QRectF area, const QImage& image) {
        m_effects.play(m_effects.current(), area, image);
    };
    stages.countCapture = [this] { m_fun.capture(); };
    stages.countTextCapture = [this] { m_fun.record(FunDeed::TextCopied); };
    stages.addToHistory = [this](const Shot& shot, const QByteArray& png, const QString& path) {
        return m_history.add(shot.image, shot.scale, path, shot.app, png);
    };
    stages.closePreviews = [this] { m_preview.closeAll(); };
    stages.showPreview = [this](const FinishedCapture& capture, const QString& info) {
        m_preview.show(capture, info);
    };
    return stages;
}

Pending<RegionResult> Rooms::selectRegion(const RegionQuestion& question)
{
    OverlayStyle style;
    if (const auto accent = m_skins.current().accent())
        style.accent = *accent;
    else if (const auto desktop = m_platform.appearance->current().accent)
        style.accent = *desktop;
    style.crosshair = m_prefs.get(Prefs::keys.showCrosshair);
    style.magnifier = m_prefs.get(Prefs::keys.showMagnifier);
    m_overlay = std::make_unique<RegionOverlay>(m_overlayPool, *m_platform.displays, style);
    return m_overlay->select(question);
}
