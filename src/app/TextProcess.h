// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Pending.h"
#include "capture/OCR.h"

#include <QProcess>

/// Reads the text of picture files, one at a time, in a process that gets only what nobody else
/// wants of the processor. It shares neither memory nor locks with this program, which so can give
/// it up at any moment and is never held up by it. Main thread only.
class TextProcess final : public QObject {
    Q_OBJECT

public:
    /// @param program the one that understands `--text`.
    explicit TextProcess(QString program);
    ~TextProcess() override { giveUp(); }

    /// A picture without text is no failure.
    Pending<OCR::Result> read(const QString& path);

    /// Whoever waits hears Cancelled at once.
    void giveUp();

private:
    void finish();

    const QString m_program;
    QProcess* m_process = nullptr; ///< Null while nothing is being read.
    Pending<OCR::Result>::Answer m_answer;
};
