// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Pending.h"
#include "base/Rows.h"
#include "platform/Displays.h"

#include <QHash>

using WindowId = std::uint32_t;

/// A program that owns windows.
struct Application {
    /// The name of its desktop entry, else its window class; ownApplicationId for this program.
    QString id;
    QString name; ///< As the user knows it; may be empty.
    qint64 processId = 0; ///< 0 when unknown.

    friend bool operator==(const Application&, const Application&) = default;
};

/// What Application::id says of every window of ours, whichever process of ours owns it.
inline constexpr QLatin1String ownApplicationId {"pixmallow"};

struct Window {
    WindowId id = 0;
    QString title;
    QRect frame; ///< Device pixels of the whole desktop, y down, with title bar, without shadow.
    int layer
        = 0; ///< 0: ordinary windows, dialogs, utilities; below: the desktop; above: the rest.
    bool onScreen = false;
    Application application;
};

enum class Pointer { Hidden, Drawn };
enum class WindowShadow { Dropped, Kept };

/// Those of this program, in any of its processes: no menu, toast or panel of ours is ever
/// captured.
QList<WindowId> ownWindows(const QList<Window>& windows);

/// A picture that stays as it was at one instant, held by whoever reads it.
using Frozen = std::shared_ptr<RowSource>;

/// Pictures of what is on screen. A failure's message is a sentence for the user.
class ScreenCapture {
public:
    virtual ~ScreenCapture() = default;

    /// Whether capturing is permitted; never asks the user.
    virtual bool permitted() const = 0;

    /// All windows that the desktop knows of, front first, hidden ones included.
    virtual Result<QList<Window>> windows() = 0;

    /// Position among everything on screen, menus and panels included; 0 is the front-most.
    virtual QHash<WindowId, int> frontToBackOrder() = 0;

    /// A part of the desktop, in device pixels y down and cut to where there are screens, without
    /// the given windows.
    virtual Pending<Frozen> area(QRect native, QList<WindowId> excluded, Pointer pointer) = 0;

    /// One window by itself, whatever lies in front of it, with true alpha. Its shadow, its own or
    /// a drawn one, lies outside Window::frame.
    virtual Pending<Frozen> window(WindowId id, WindowShadow shadow, Pointer pointer) = 0;
};
