// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "fun/Fun.h"
#include "platform/fake/FakePlatform.h"
#include "platform/fake/FakeSurfaceTraits.h"
#include "widgets/ApplicationLook.h"

#include <QLocale>
#include <QTemporaryDir>

/// What surfaces need to be made, with nothing of the user's in it.
struct GalleryWorld {
    GalleryWorld();

    /// @param dark where the skin leaves that open
    /// @param textScale what the desktop enlarges letters by
    void wear(const QString& skin, bool dark, double textScale = 1);

    QTemporaryDir home;
    Folders folders;
    FakePlatform platform;
    FakeSurfaceTraits surfaces;
    Prefs prefs;
    Fun fun;
    Skins skins;
    Themes themes;
    ApplicationLook look {{themes, surfaces}};

    static QLocale locale(); ///< The same for whoever looks, unless another language is asked for.
    static QImage picture(QSize size); ///< Something like a screen with windows.
};

/// One surface, or one state of one, that can be looked at by itself.
struct Scene {
    enum class Ground { Card, Window, None };

    QString name;
    Ground ground;
    std::function<std::unique_ptr<QWidget>(GalleryWorld&)> make;
};

/// All of them, in the order in which they are shown. The list grows with the surfaces.
const QList<Scene>& scenes();

/// How a scene looks: on its ground, above a wallpaper. Its pixel ratio is that of the application.
QImage rendered(const Scene& scene, GalleryWorld& world);
