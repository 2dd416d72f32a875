// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QStringList>

/// The clipboard that all programs share.
class Clipboard {
public:
    virtual ~Clipboard() = default;

    /// @param image its device pixel ratio says how many points it measures.
    /// @param png the exact bytes handed to programs that ask for PNG; may be empty, then they are
    /// made from the image.
    virtual void setImage(const QImage& image, const QByteArray& png) = 0;
    virtual void setText(const QString& text) = 0;

    /// Files that a file manager pastes as copies. Absolute paths; the files must outlive this.
    virtual void setFiles(const QStringList& paths) = 0;
};
