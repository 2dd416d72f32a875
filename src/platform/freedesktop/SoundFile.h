// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QFile>
#include <QUrl>

#include <sndfile.h>

#include <memory>
#include <span>

/// A sound that is being decoded, of any format that libsndfile knows.
class SoundFile final {
public:
    /// Fails with a sentence that names the file. Whatever is no regular file is refused, since
    /// reading it might never end.
    static Result<std::unique_ptr<SoundFile>> open(const QUrl& url);

    int channels() const { return m_info.channels; }
    int rate() const { return m_info.samplerate; } ///< Frames per second.

    /// Fills in the next samples, channels interleaved, and returns how many; 0 at the end.
    /// @param samples room for a whole number of frames.
    std::size_t read(std::span<float> samples);

private:
    struct Close {
        void operator()(SNDFILE* sound) const { sf_close(sound); }
    };

    explicit SoundFile(const QString& path)
        : m_file(path)
    {
    }

    QFile m_file; // Before what reads it.
    SF_INFO m_info {};
    std::unique_ptr<SNDFILE, Close> m_sound;
};
