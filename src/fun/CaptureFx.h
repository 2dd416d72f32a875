// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "fun/FxScene.h"
#include "platform/SurfaceTraits.h"

#include <functional>
#include <list>

/// Plays a short effect over the place where a capture was taken. Effects run by themselves, side
/// by side if need be, and end by themselves.
class CaptureFx final : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        const Displays& displays;
        SurfaceTraits& surfaces;
        const Themes& themes;
        const Prefs& prefs;
    };

    explicit CaptureFx(const Surroundings& surroundings);

    /// @param kind a text of fxKinds; any other one plays for a second and flies
    /// @param area global points, y up; nothing is played on one of 2 points or less
    void play(const QString& kind, QRectF area, const QImage& image);

    /// The kind that the user has chosen.
    QString current() const;

    /// How many effects are on screen.
    int running() const { return int(m_running.size()); }

    /// Where the tray's icon is, in points of the toolkit's desktop, y down; none while unknown.
    void setTrayIcon(std::function<std::optional<QPointF>()> where)
    {
        m_trayIcon = std::move(where);
    }

private:
    /// What shows an effect as long as it lives.
    std::unique_ptr<QObject> begin(
        FxRules::Plan plan, const DisplayInfo& display, QRectF area, const QImage& image);
    FxStage stageOn(const DisplayInfo& display, QRectF area, const QImage& image);

    Surroundings m_surroundings;
    std::function<std::optional<QPointF>()> m_trayIcon;
    std::list<std::unique_ptr<QObject>> m_running;
    quint32 m_played = 0;
};
