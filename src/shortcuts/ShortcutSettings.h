// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CaptureKind.h"
#include "shortcuts/ShortcutRecorder.h"
#include "widgets/RowGroup.h"

/// The shortcuts of all kinds of captures, a row each, and what there is to know about them.
class ShortcutSettings final : public QWidget {
    Q_OBJECT

public:
    struct Means {
        const Themes& themes;
        ShortcutRecorder::Means recording;
        std::function<bool(CaptureKind)> isRefused; ///< By the system, when last registered.
        QString footer;
    };

    explicit ShortcutSettings(Means means);

    /// Looks anew which shortcuts do not work, and marks them.
    void mark();

private:
    struct Line {
        CaptureKind kind;
        Row* row;
        QWidget* mark;
        ShortcutRecorder* recorder;
    };

    Line line(RowGroup& tile, const CaptureKindInfo& info);
    QString title(const CaptureKindInfo& info) const;
    QString problem(CaptureKind kind) const; ///< As a sentence; empty where all is well.
    void stopOthers(const ShortcutRecorder* starting);

    const Means m_means;
    QList<Line> m_lines;
};
