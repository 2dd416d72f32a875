// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ActiveApplication.h"
#include "platform/Appearance.h"
#include "platform/Clipboard.h"
#include "platform/FaceDetector.h"
#include "platform/Hotkeys.h"
#include "platform/Platform.h"
#include "platform/PlatformWords.h"
#include "platform/PowerSource.h"
#include "platform/SoundOutput.h"
#include "platform/SurfaceTraits.h"
#include "platform/TextRecognizer.h"
#include "platform/Workspace.h"

/// All seams to the operating system, for the resident program.
struct DesktopPlatform : CapturePlatform {
    std::unique_ptr<ActiveApplication> activeApplication;
    std::unique_ptr<Clipboard> clipboard;
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<SurfaceTraits> surfaces;
    std::unique_ptr<Hotkeys> hotkeys;
    std::unique_ptr<Appearance> appearance;
    std::unique_ptr<SoundOutput> sound;
    std::unique_ptr<PowerSource> power;
    PlatformWords words;
    std::shared_ptr<TextRecognizer> textRecognizer; ///< Shared with the thread that reads.
    std::shared_ptr<FaceDetector> faceDetector; ///< Shared with the workers that look.
    std::unique_ptr<QObject> ownWindows; ///< Marks windows of ours, so that no capture shows them.
};

/// Needs a QGuiApplication. Fails with a sentence for the user.
Result<DesktopPlatform> makeDesktopPlatform();

/// For the languages of the user. Needs no desktop.
std::shared_ptr<TextRecognizer> makeTextRecognizer();
