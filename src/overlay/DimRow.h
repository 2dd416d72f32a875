// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Darkens pixels 0xAARRGGBB as black at an alpha of 0.42 over them does; the results are opaque.
void dimRow(const std::uint32_t* row, std::uint32_t* out, int width);
