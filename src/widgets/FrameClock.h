// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

/// Calls sixty times a second with the time since start(), for pictures that follow from that time
/// alone. It rests while its owner tells that nothing of it is seen.
class FrameClock final {
public:
    using Frame = std::function<void(double seconds)>;

    explicit FrameClock(Frame frame);

    void start(); ///< From zero.
    void stop() { m_timer.stop(); }
    bool isRunning() const { return m_timer.isActive(); }
    double seconds() const; ///< Since start(); 0 before.

private:
    Frame m_frame;
    QElapsedTimer m_elapsed;
    QTimer m_timer;
};
