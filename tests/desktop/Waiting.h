// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

/// How long anything may take before it counts as failed: far more than a busy machine needs.
constexpr std::chrono::milliseconds patience(15'000);

/// Runs the event loop until the condition holds; false when it did not within `most`.
[[nodiscard]] bool waitFor(
    const std::function<bool()>& condition, std::chrono::milliseconds most = patience);
