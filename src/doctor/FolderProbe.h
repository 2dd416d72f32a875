// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Finds out by trying whether something can be kept in a folder. Leaves nothing behind.
namespace FolderProbe {

/// Why no file can be written in a folder, or it could not be made where it is missing: a sentence;
/// empty if it can.
QString problemOf(const QString& path);

/// Bytes that this user can still write there, or where the folder would be made; -1 if unknown.
qint64 freeBytes(const QString& path);

} // namespace FolderProbe
