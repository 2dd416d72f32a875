// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

/// Sizes and words of an editor's window.
namespace EditorLayout {

/// Of the window's content, in points.
/// @param picture pixels. @param scale pixels per point. @param workArea of the screen, in points.
QSize contentSize(QSize picture, double scale, QSize workArea);

/// How many points a pixel takes where all of the picture shows, never larger than its own size in
/// points.
/// @param view points.
double fittingMagnification(QSize picture, QSize view, double scale);

/// "2880 × 1800", or "2880 × 1800 — Edited".
QString subtitle(QSize picture, bool isEdited);

} // namespace EditorLayout
