// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>

/// Memory for the pixels of large pictures. Fresh memory comes in huge pages where the system has
/// them: at 3840 × 2160 the page faults of ordinary ones cost four times the copy of the picture.
/// Even so the kernel clears it first, so what is given back waits a while for the next picture.
/// For all threads.
class PixelMemory final {
public:
    /// The one that pictures are made of. Memory waits there for half a minute, while events are
    /// handled; never more than two screens of 3840 × 2160.
    static PixelMemory& shared();

    explicit PixelMemory(std::chrono::milliseconds kept);
    PixelMemory(const PixelMemory&) = delete;
    PixelMemory& operator=(const PixelMemory&) = delete;

    /// Holds anything until it is written. Goes back when nobody has it any more.
    std::shared_ptr<std::uint32_t> take(std::size_t bytes);

    std::size_t bytesWaiting() const;

private:
    class Shelf;
    std::shared_ptr<Shelf> m_shelf; ///< Shared with what is lent.
};
