// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/OCR.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

/// How long the end of the program waits for a recogniser that was cancelled, in milliseconds.
/// Reading ends within some of them, but making out where the lines of a large page are may take
/// more than a second.
constexpr int longestEnd = 300;

/// Ends the process, when it ends, without destroying what a thread that still runs stands on.
void endAbruptly()
{
    on_exit(
        [](int status, void*) {
            std::fflush(nullptr);
            _exit(status);
        },
        nullptr);
}

OCR::Result resultOf(const RecognisedText& recognised)
{
    QStringList lines;
    for (const auto& line : recognised.lines)
        lines << line.text;
    if (lines.isEmpty())
        for (const auto& code : recognised.codes)
            lines << code.split(u'\n', Qt::SkipEmptyParts);
    return {lines.join(u'\n'), int(lines.size())};
}

} // namespace

struct OCR::Job {
    std::atomic<bool> cancelled = false;
    Pending<Result>::Answer answer;
};

OCR::OCR(std::shared_ptr<TextRecognizer> recognizer, std::chrono::milliseconds keptReady)
    : m_recognizer(std::move(recognizer))
    , m_thread(std::make_unique<QThreadPool>())
{
    m_thread->setMaxThreadCount(1);
    m_pause.setSingleShot(true);
    m_pause.setInterval(keptReady);
    QObject::connect(&m_pause, &QTimer::timeout,
        [this] { m_thread->start([recognizer = m_recognizer] { recognizer->release(); }); });
}

OCR::~OCR()
{
    cancel();
    m_thread->clear();
    if (m_thread->waitForDone(longestEnd))
        return;
    std::ignore = m_thread.release();
    endAbruptly();
}

Pending<OCR::Result> OCR::recognize(const QImage& image, double scale)
{
    auto [pending, answer] = Pending<Result>::ask();
    auto job = std::make_shared<Job>();
    job->answer = std::move(answer);
    std::erase_if(m_jobs, [](const auto& each) { return each.expired(); });
    m_jobs.push_back(job);
    m_pause.start();
    m_thread->start([job, image, scale, recognizer = m_recognizer] {
        auto read = recognizer->recognise(image, scale, job->cancelled);
        if (job->cancelled) // It was told so already, by a program that may be ending.
            return;
        auto result = std::make_shared<::Result<Result>>(
            read ? ::Result<Result>(resultOf(*read)) : read.error());
        QMetaObject::invokeMethod(
            qApp, [job, result] { job->answer(std::move(*result)); }, Qt::QueuedConnection);
    });
    return std::move(pending);
}

void OCR::cancel()
{
    for (const auto& each : m_jobs)
        if (const auto job = each.lock()) {
            job->cancelled = true;
            job->answer = {};
        }
    m_jobs.clear();
}
