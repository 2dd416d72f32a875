// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditorMeans.h"
#include "editor/FunMenu.h"

class EditorCanvas;

/// Puts captions of memes, covers of faces and stickers on the picture of an editor, and counts
/// them.
class EditorFun final : public QObject {
    Q_OBJECT

public:
    /// @param window what it asks in belongs to it.
    EditorFun(const EditorMeans& means, EditorCanvas& canvas, QWidget& window);

    FunMenu& menu() { return *m_menu; }

    void showStickers(const QWidget& anchor); ///< To pick one, at a control.

Q_SIGNALS:
    void told(const QString& status); ///< What happens and what came of it.

private:
    void pickEmoji(const QString& emoji);
    void pickPhrase(const QString& phrase);
    void askForMeme();
    void addMeme(const QString& top, const QString& bottom);
    void coverFaces(const QString& emoji);
    void cover(const QList<QRectF>& faces, const QString& emoji);

    const EditorMeans& m_means;
    EditorCanvas& m_canvas;
    QWidget& m_window;
    FunMenu* m_menu;
};
