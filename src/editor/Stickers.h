// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// What the editor has to offer as stickers, in the order in which it is shown.
namespace Stickers {

const QStringList& emoji();
const QStringList& text();
const QStringList& faceCovers(); ///< Emoji that hide a face.

} // namespace Stickers
