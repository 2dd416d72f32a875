// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CaptureKind.h"
#include "doctor/TestPattern.h"
#include "platform/Diagnosis.h"
#include "shortcuts/KeyCombo.h"

/// What was found when the program was examined on this desktop.
struct DoctorFacts {
    struct Screen {
        QString name;
        QSize size; ///< Device pixels.
        double scale = 1; ///< Device pixels per point.
        Result<PatternComparison> captured {PatternComparison {}};
    };
    struct Shortcut {
        CaptureKind kind = CaptureKind::Region;
        std::optional<KeyCombo> combo {}; ///< None where the user has cleared it.
        bool isRefused = false; ///< By the system.
    };
    struct Folder {
        QString id, title;
        QString path;
        QString problem {}; ///< Why nothing can be written there; empty if something can.
    };
    struct Sound {
        bool isWanted = true; ///< By the user.
        Result<QString> server {QString()};
    };
    struct Updates {
        QString feed {}; ///< The address as it is written.
        bool areWanted = true; ///< By the user.
        std::optional<Result<QString>> published {}; ///< A version; none where nobody asked.
    };
    /// What there is only with a desktop.
    struct Desktop {
        bool isPermitted = true; ///< To capture the screen.
        QList<Screen> screens {};
        QList<Shortcut> shortcuts {}; ///< Of all kinds.
        bool isResident = false; ///< Whether the program runs already.
        QString residentProblem {}; ///< Why that one did not tell of shortcuts; empty if it did.
        Result<void> copies {}; ///< Whether what is copied gets through.
        bool keepsCopies = false;
        bool hasTray = true;
        bool isComposited = true;
    };

    Result<Desktop> desktop {Desktop {}};
    Result<TextLanguages> languages {TextLanguages {}};
    Result<void> reading {}; ///< Whether a picture without text can be read.
    Result<void> faces {}; ///< Whether faces can be looked for.
    Sound sound {};
    QList<Folder> folders {};
    QString saveFolder {};
    qint64 freeBytes = -1; ///< For the save folder; -1 where that is not known.
    Updates updates {};
};
