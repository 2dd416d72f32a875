// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

/// The property, a CARDINAL of 1, by which windows of this program are known to every process of
/// it.
inline constexpr char ownWindowProperty[] = "_PIXMALLOW_OWN";
