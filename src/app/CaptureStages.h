// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Pending.h"
#include "capture/FinishedCapture.h"
#include "capture/OCR.h"
#include "capture/Region.h"
#include "capture/ToastMessage.h"

#include <functional>

/// What the rooms along a capture's way do when it comes by. A room that is not connected is an
/// empty function: its step is left out, and a kind of capture that cannot do without is not
/// available.
struct CaptureStages {
    std::function<void()> closePreviews;
    std::function<void()> showPermissionWindow;
    std::function<Pending<RegionResult>(RegionQuestion)> selectRegion;
    std::function<Pending<void>(int seconds)> countDown; ///< Cancelled by the user.
    std::function<Pending<OCR::Result>(Shot)> recogniseText;

    std::function<void()> playShutter;
    std::function<void(QRectF area, QImage)> playEffect; ///< Over an area in global points, y up.
    std::function<void()> countCapture;
    std::function<void()> countTextCapture;
    std::function<QString(const Shot&, const QByteArray& png, const QString& path)> addToHistory;
    std::function<void(FinishedCapture)> openEditor;
    std::function<void(FinishedCapture, QString info)> showPreview;
    std::function<void()> showHistory;
    std::function<void()> showGallery; ///< Achievements, streaks and the pet.
    std::function<void(ToastMessage)> showToast;
};
