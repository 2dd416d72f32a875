// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SoundOutput.h"

#include <QThreadPool>

#include <atomic>
#include <memory>

/// Plays through PulseAudio, or PipeWire in its place. Every sound has a thread and a stream of its
/// own; the server mixes them. Destroyed, it cuts off what still plays.
class PulseSoundOutput final : public SoundOutput {
public:
    PulseSoundOutput();
    ~PulseSoundOutput() override;

    void play(const QUrl& file, double volume) override;
    Result<void> check(const QUrl& file) const override;

private:
    std::unique_ptr<QThreadPool> m_threads;
    std::shared_ptr<std::atomic<bool>> m_stopped;
};
