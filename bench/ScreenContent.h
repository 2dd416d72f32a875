// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <optional>

/// Screens as people have them, drawn for measuring: a mixed desktop with a photo, a wide code
/// editor, a terminal with smooth grey letters, a photo over the whole screen.
enum class ScreenContent { Desk, Editor, Term, Photo };

inline constexpr ScreenContent allScreenContents[] {
    ScreenContent::Desk, ScreenContent::Editor, ScreenContent::Term, ScreenContent::Photo};

QString nameOf(ScreenContent content);
std::optional<ScreenContent> screenContentNamed(const QString& name);

/// An RGB32 picture, the same on every run; letters grow with its width, in pixels. Needs the fonts
/// DejaVu Sans, Sans Mono and Serif, and a QGuiApplication.
QImage drawScreen(ScreenContent content, QSize size);
