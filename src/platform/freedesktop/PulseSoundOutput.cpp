// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/PulseSoundOutput.h"

#include "platform/freedesktop/SoundFile.h"

#include <pulse/simple.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

/// More at once than this is noise; what comes on top is left out.
constexpr int mostAtOnce = 16;

/// How far ahead of the loudspeakers the server is kept, in microseconds. Little enough to be heard
/// at once, enough for a busy machine.
constexpr pa_usec_t ahead = 80'000;

/// How often a sound looks whether it is to stop, per second.
constexpr int blocksPerSecond = 50;

/// How long the end of the program waits for sounds to stop, in milliseconds. A server that answers
/// stops them at once; one that hangs does not hold the program up.
constexpr int longestStop = 300;

class Stream final {
public:
    explicit Stream(const SoundFile& sound)
    {
        const pa_sample_spec format {
            PA_SAMPLE_FLOAT32NE, std::uint32_t(sound.rate()), std::uint8_t(sound.channels())};
        if (sound.channels() > int(PA_CHANNELS_MAX) || !pa_sample_spec_valid(&format))
            return;
        pa_channel_map map;
        pa_channel_map_init_extend(&map, format.channels, PA_CHANNEL_MAP_WAVEEX);
        const auto whatServerLikes = std::uint32_t(-1);
        const pa_buffer_attr buffer {.maxlength = whatServerLikes,
            .tlength = std::uint32_t(pa_usec_to_bytes(ahead, &format)),
            .prebuf = whatServerLikes,
            .minreq = whatServerLikes,
            .fragsize = whatServerLikes};
        m_stream.reset(pa_simple_new(nullptr, "Pixmallow", PA_STREAM_PLAYBACK, nullptr, "Sound",
            &format, &map, &buffer, nullptr));
    }

    explicit operator bool() const { return m_stream != nullptr; }

    /// Waits until the server takes the samples; false when it is gone.
    bool write(std::span<const float> samples)
    {
        return pa_simple_write(m_stream.get(), samples.data(), samples.size_bytes(), nullptr) == 0;
    }
    void playOut() { pa_simple_drain(m_stream.get(), nullptr); }

private:
    struct Free {
        void operator()(pa_simple* stream) const { pa_simple_free(stream); }
    };
    std::unique_ptr<pa_simple, Free> m_stream;
};

void playToEnd(const QUrl& file, float volume, const std::atomic<bool>& stopped)
{
    const auto sound = SoundFile::open(file);
    if (!sound)
        return;
    Stream stream(**sound);
    if (!stream)
        return;
    const int frames = std::max(1, (*sound)->rate() / blocksPerSecond);
    std::vector<float> block(std::size_t(frames) * std::size_t((*sound)->channels()));
    while (!stopped) {
        const auto samples = std::span(block).first((*sound)->read(block));
        if (samples.empty()) {
            stream.playOut();
            return;
        }
        for (float& sample : samples) // A damaged file may hold anything.
            sample = std::isfinite(sample) ? std::clamp(sample, -1.0F, 1.0F) * volume : 0;
        if (!stream.write(samples))
            return;
    }
}

} // namespace

PulseSoundOutput::PulseSoundOutput()
    : m_threads(std::make_unique<QThreadPool>())
    , m_stopped(std::make_shared<std::atomic<bool>>(false))
{
    m_threads->setMaxThreadCount(mostAtOnce);
}

PulseSoundOutput::~PulseSoundOutput()
{
    *m_stopped = true;
    if (!m_threads->waitForDone(longestStop))
        std::ignore = m_threads.release(); // Its threads sit in the server's hands until the end.
}

void PulseSoundOutput::play(const QUrl& file, double volume)
{
    const auto level = std::isfinite(volume) ? float(std::clamp(volume, 0.0, 1.0)) : 0;
    m_threads->tryStart([=, stopped = m_stopped] { playToEnd(file, level, *stopped); });
}

Result<void> PulseSoundOutput::check(const QUrl& file) const
{
    const auto sound = SoundFile::open(file);
    return sound ? Result<void>() : sound.error();
}
