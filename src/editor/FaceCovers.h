// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/Annotation.h"

#include <random>
#include <vector>

/// Emoji that hide faces.
namespace FaceCovers {

/// A sticker on each face, somewhat larger than it and a little turned.
/// @param faces forehead to chin, in pixels of the picture, y down.
/// @param emoji on all of them; empty: each gets one by chance.
std::vector<Annotation> on(const QList<QRectF>& faces, const QString& emoji, std::mt19937& random);

/// What a status line says of it.
QString told(qsizetype faces);

} // namespace FaceCovers
