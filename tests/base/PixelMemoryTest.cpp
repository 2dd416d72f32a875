// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PixelMemory.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <array>
#include <thread>

using namespace std::chrono_literals;

namespace {

constexpr std::size_t mebibyte = 1 << 20;

class PixelMemoryTest : public testing::Test {
protected:
    bool isEmptySoon() const
    {
        const QDeadlineTimer deadline(5s);
        while (m_memory.bytesWaiting() > 0 && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        return m_memory.bytesWaiting() == 0;
    }

    static inline char s_name[] = "PixelMemoryTest";
    static inline std::array<char*, 2> s_arguments {s_name, nullptr};
    static inline int s_count = 1;
    const QCoreApplication m_application {s_count, s_arguments.data()};
    PixelMemory m_memory {50ms};
};

} // namespace

TEST_F(PixelMemoryTest, lendsWhatCameBackToTheNextPictureThatFits)
{
    auto large = m_memory.take(32 * mebibyte), small = m_memory.take(9 * mebibyte);
    const auto* const largeAt = large.get();
    const auto* const smallAt = small.get();
    large.get()[8 * mebibyte - 1] = 7; // The last pixel is there.
    const auto other = m_memory.take(9 * mebibyte);
    EXPECT_NE(other.get(), smallAt) << "still lent";
    large.reset();
    small.reset();
    EXPECT_EQ(m_memory.take(8 * mebibyte).get(), smallAt);
    EXPECT_NE(m_memory.take(12 * mebibyte).get(), largeAt) << "much memory for a small picture";
    EXPECT_EQ(m_memory.take(31 * mebibyte).get(), largeAt);
}

TEST_F(PixelMemoryTest, givesTheSystemBackWhatNobodyWants)
{
    m_memory.take(32 * mebibyte);
    EXPECT_EQ(m_memory.bytesWaiting(), 32 * mebibyte);
    EXPECT_TRUE(isEmptySoon());
    {
        std::array several {m_memory.take(30 * mebibyte), m_memory.take(30 * mebibyte),
            m_memory.take(30 * mebibyte)};
        std::thread([&several] { several[0].reset(); }).join(); // As encoding may be what ends it.
    }
    EXPECT_EQ(m_memory.bytesWaiting(), 60 * mebibyte) << "a bound";
    EXPECT_TRUE(isEmptySoon());
    m_memory.take(1000);
    EXPECT_EQ(m_memory.bytesWaiting(), 0U);
}

TEST_F(PixelMemoryTest, isLentBeyondItsEnd)
{
    std::shared_ptr<std::uint32_t> pixels;
    {
        PixelMemory memory {50ms};
        pixels = memory.take(4 * mebibyte);
    }
    *pixels = 5;
    pixels.reset();
    QCoreApplication::processEvents();
}
