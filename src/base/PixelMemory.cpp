// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PixelMemory.h"

#include <QCoreApplication>
#include <QTimer>

#include <sys/mman.h>

#include <algorithm>
#include <mutex>
#include <new>
#include <numeric>
#include <vector>

namespace {

constexpr std::size_t hugePage = std::size_t(2) << 20;
constexpr std::size_t mostWaiting = std::size_t(64) << 20;

/// A mapping of its own.
struct Block {
    static Block ofBytes(std::size_t bytes)
    {
        // Aligned by hand: the kernel gives a huge page only to a whole aligned 2 MiB of one
        // mapping.
        const std::size_t usable = (bytes + hugePage - 1) / hugePage * hugePage;
        const std::size_t length = usable + hugePage;
        void* mapping = mmap(nullptr, length, PROT_READ | PROT_WRITE,
            MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (mapping == MAP_FAILED)
            throw std::bad_alloc();
        madvise(mapping, length, MADV_HUGEPAGE); // Refused on some systems: then pages stay small.
        return {mapping, length, usable};
    }

    std::uint32_t* pixels() const
    {
        const auto address
            = (reinterpret_cast<std::uintptr_t>(mapping) + hugePage - 1) & ~(hugePage - 1);
        return reinterpret_cast<std::uint32_t*>(address);
    }
    void unmap() const { munmap(mapping, length); }

    void* mapping;
    std::size_t length;
    std::size_t usable;
};

} // namespace

/// Blocks that nobody uses.
class PixelMemory::Shelf final : public std::enable_shared_from_this<Shelf> {
public:
    explicit Shelf(std::chrono::milliseconds kept)
        : m_kept(kept)
    {
    }
    ~Shelf()
    {
        for (const auto& each : m_waiting)
            each.block.unmap();
    }
    Shelf(const Shelf&) = delete;
    Shelf& operator=(const Shelf&) = delete;

    /// The smallest that holds as much; a new one where what waits is too small, or so large that a
    /// small picture would keep much memory.
    Block take(std::size_t bytes)
    {
        const std::lock_guard lock(m_mutex);
        auto best = m_waiting.end();
        for (auto each = m_waiting.begin(); each != m_waiting.end(); ++each)
            if (each->block.usable >= bytes && each->block.usable / 2 <= bytes
                && (best == m_waiting.end() || each->block.usable < best->block.usable))
                best = each;
        if (best == m_waiting.end())
            return Block::ofBytes(bytes);
        const Block block = best->block;
        m_waiting.erase(best);
        return block;
    }

    void giveBack(const Block& block)
    {
        {
            const std::lock_guard lock(m_mutex);
            if (!qApp || bytesWaiting() + block.usable > mostWaiting) {
                block.unmap();
                return;
            }
            m_waiting.push_back({block, Clock::now() + m_kept});
        }
        const auto clearOut = [shelf = weak_from_this()] {
            if (const auto still = shelf.lock())
                still->clearOut();
        };
        QMetaObject::invokeMethod(qApp, [kept = m_kept, clearOut] {
            QTimer::singleShot(kept, Qt::PreciseTimer, qApp, clearOut);
        });
    }

    std::size_t bytes() const
    {
        const std::lock_guard lock(m_mutex);
        return bytesWaiting();
    }

private:
    using Clock = std::chrono::steady_clock;
    struct Waiting {
        Block block;
        Clock::time_point end;
    };

    std::size_t bytesWaiting() const
    {
        return std::accumulate(m_waiting.begin(), m_waiting.end(), std::size_t(0),
            [](std::size_t sum, const Waiting& each) { return sum + each.block.usable; });
    }

    /// Removes what has waited long enough.
    void clearOut()
    {
        const std::lock_guard lock(m_mutex);
        const auto over = std::partition(m_waiting.begin(), m_waiting.end(),
            [now = Clock::now()](const Waiting& each) { return each.end > now; });
        std::for_each(over, m_waiting.end(), [](const Waiting& each) { each.block.unmap(); });
        m_waiting.erase(over, m_waiting.end());
    }

    const std::chrono::milliseconds m_kept;
    mutable std::mutex m_mutex;
    std::vector<Waiting> m_waiting;
};

PixelMemory& PixelMemory::shared()
{
    static PixelMemory memory {std::chrono::seconds(30)};
    return memory;
}

PixelMemory::PixelMemory(std::chrono::milliseconds kept)
    : m_shelf(std::make_shared<Shelf>(kept))
{
}

std::shared_ptr<std::uint32_t> PixelMemory::take(std::size_t bytes)
{
    if (bytes < hugePage) // Nothing to gain.
        return {new std::uint32_t[(bytes + 3) / 4], std::default_delete<std::uint32_t[]>()};
    const Block block = m_shelf->take(bytes);
    return {block.pixels(), [block, shelf = m_shelf](std::uint32_t*) { shelf->giveBack(block); }};
}

std::size_t PixelMemory::bytesWaiting() const
{
    return m_shelf->bytes();
}
