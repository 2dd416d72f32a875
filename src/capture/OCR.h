// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Pending.h"
#include "platform/TextRecognizer.h"

#include <QThreadPool>
#include <QTimer>

#include <chrono>
#include <memory>

/// Reads the text of pictures on a thread of its own, one picture after the other. The recogniser
/// is kept ready for a while after each, then gives its memory back. Main thread only.
class OCR final {
public:
    struct Result {
        QString text; ///< Lines joined by newlines, none at the end; empty if there is no text.
        int lines = 0;
    };

    /// How long the next picture is likely to follow.
    static constexpr std::chrono::milliseconds usualPause = std::chrono::minutes(1);

    explicit OCR(std::shared_ptr<TextRecognizer> recognizer,
        std::chrono::milliseconds keptReady = usualPause);
    /// Waits for nobody, not even for a recogniser that does not let itself be cancelled soon.
    ~OCR();

    /// The text of a picture; where there is none, what its QR and bar codes say. Fails with the
    /// recogniser's sentence.
    /// @param scale pixels per point.
    Pending<Result> recognize(const QImage& image, double scale = 1);

    /// Whoever waits hears Cancelled at once.
    void cancel();

private:
    struct Job;

    std::shared_ptr<TextRecognizer> m_recognizer;
    std::unique_ptr<QThreadPool> m_thread;
    std::vector<std::weak_ptr<Job>> m_jobs; ///< Some of them done.
    QTimer m_pause;
};
