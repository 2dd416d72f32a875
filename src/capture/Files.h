// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Folders.h"
#include "platform/Clipboard.h"
#include "platform/Workspace.h"

#include <QDateTime>
#include <QImage>

enum class ImageType { Png, Jpeg };

/// From images to bytes, on disk and on the clipboard. What encodes or writes takes values only and
/// may run on any thread. Scales are device pixels per point; files tell scale × 72 dots per inch.
namespace Files {

/// "jpg" and "jpeg" in any case mean JPEG, all else PNG. Takes an extension.
ImageType imageType(const QString& extension);

/// The first free name for a new file: the prefix with the time, numbered from (2) where taken.
/// Nothing is reserved; save() is what writes safely.
QString nextURL(
    const QString& folder, const QString& extension, const QString& prefix, const QDateTime& time);

/// Makes the folder and those above it. That it cannot is told by the write that follows.
void ensureFolder(const QString& folder);

/// A PNG, or a JPEG of quality 0.92 on white.
Result<QByteArray> encode(const QImage& image, ImageType type, double scale);

/// Encodes by the path's extension, and replaces the file there as a whole or not at all.
Result<void> write(const QImage& image, const QString& path, double scale);

/// Writes encoded bytes to a new file, and tells its path. A name that another program took
/// meanwhile is left to it.
Result<QString> save(const QByteArray& bytes, const QString& folder, const QString& extension,
    const QString& prefix, const QDateTime& time);

/// The same under the first free name of "BASE.EXT", "BASE (2).EXT" and so forth.
/// @param base a path without its extension
Result<QString> saveNew(const QByteArray& bytes, const QString& base, const QString& extension);

/// @param png what encode() made of the image; may be empty.
void copy(Clipboard& clipboard, const QImage& image, double scale, const QByteArray& png);

/// A PNG to drag or share, in a folder that only the user can read. Gone at the next start.
std::optional<QString> tempPNG(
    const QImage& image, double scale, const Folders& folders, const QDateTime& time);
void cleanTemporaries(const Folders& folders);

/// Shows a file in the file manager, or opens the save folder when there is none.
Pending<void> reveal(Workspace& workspace, const QString& path, const QString& saveFolder);

} // namespace Files
