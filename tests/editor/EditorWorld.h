// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditorMeans.h"
#include "platform/fake/FakePlatform.h"
#include "platform/fake/FakeSurfaceTraits.h"

#include <QTemporaryDir>

/// What editors need, real files and a real history among it, in a folder of its own.
struct EditorWorld {
    EditorWorld() { prefs.registerDefaults(); }

    static Folders foldersIn(const QString& home)
    {
        Folders folders;
        folders.configuration = home + QStringLiteral("/config");
        folders.data = home + QStringLiteral("/data");
        folders.cache = home + QStringLiteral("/cache");
        folders.pictures = home + QStringLiteral("/Pictures");
        return folders;
    }

    static QImage plain(QColor colour, QSize size = {40, 30})
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        return image;
    }

    const QTemporaryDir home;
    const Folders folders = foldersIn(home.path());
    FakePlatform platform;
    FakeSurfaceTraits surfaces;
    Prefs prefs {folders, Prefs::Watch::Nothing};
    HistoryStore history {folders, prefs};
    KeptEdits edits {folders, prefs, history};
    Fun fun {folders, prefs};
    Skins skins {prefs, *platform.appearance};
    Themes themes {skins, *platform.appearance};
    const EditorMeans means {{themes, surfaces}, prefs, *platform.clipboard, history, edits, fun,
        {}, platform.faceDetector};
};
