// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QEasingCurve>

#include <chrono>

/// How long things take to move, and how. Under reduced motion nothing moves: it fades.
namespace Motion {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds press = 90ms;
constexpr std::chrono::milliseconds hover = 120ms;
constexpr std::chrono::milliseconds fadeOut = 180ms;
constexpr std::chrono::milliseconds numberChange = 200ms;
constexpr std::chrono::milliseconds rise = 220ms;
constexpr std::chrono::milliseconds popUp = 350ms;

constexpr int riseHeight = 24; ///< Points that a panel rises when it appears.
constexpr double pressedScale = 0.98;

constexpr QEasingCurve::Type riseCurve = QEasingCurve::OutCubic;
constexpr QEasingCurve::Type fadeCurve = QEasingCurve::InOutSine;
constexpr QEasingCurve::Type popUpCurve = QEasingCurve::OutBack;

} // namespace Motion
