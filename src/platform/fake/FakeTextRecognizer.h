// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/TextRecognizer.h"

#include <QThread>

/// Answers as told, or holds back until it may.
class FakeTextRecognizer final : public TextRecognizer {
public:
    Result<RecognisedText> recognise(
        const QImage& picture, double scale, const std::atomic<bool>& cancelled) override
    {
        readIn = QThread::currentThread();
        readSize = picture.size();
        readScale = scale;
        ++reading;
        while (holdsBack && (isStubborn || !cancelled))
            QThread::msleep(1);
        return answer;
    }
    void release() override { ++releases; }

    Result<RecognisedText> answer = RecognisedText {};
    std::atomic<bool> holdsBack = false;
    bool isStubborn = false; ///< Does not let itself be cancelled.
    std::atomic<int> reading = 0, releases = 0;
    QThread* readIn = nullptr;
    QSize readSize;
    double readScale = 0;
};
