// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/DesktopPlatform.h"

#include "platform/Diagnosis.h"
#include "platform/freedesktop/DesktopAppearance.h"
#include "platform/freedesktop/DesktopWords.h"
#include "platform/freedesktop/DesktopWorkspace.h"
#include "platform/freedesktop/KernelPowerSource.h"
#include "platform/freedesktop/ModuleFaceDetector.h"
#include "platform/freedesktop/ModuleTextRecognizer.h"
#include "platform/freedesktop/PulseSoundOutput.h"
#include "platform/freedesktop/ToolkitClipboard.h"
#include "platform/x11/OwnWindowMarker.h"
#include "platform/x11/X11ActiveApplication.h"
#include "platform/x11/X11Diagnosis.h"
#include "platform/x11/X11Hotkeys.h"
#include "platform/x11/X11SurfaceTraits.h"

#include <QLocale>

Result<DesktopPlatform> makeDesktopPlatform()
{
    auto capture = makeCapturePlatform(Residency::Resident);
    if (!capture)
        return capture.error();
    auto listening = X11Connection::open();
    if (!listening)
        return listening.error();
    auto surfaces = X11SurfaceTraits::make();
    if (!surfaces)
        return surfaces.error();
    auto keyboard = X11Connection::open();
    if (!keyboard)
        return keyboard.error();
    DesktopPlatform platform;
    static_cast<CapturePlatform&>(platform) = *std::move(capture);
    platform.activeApplication = std::make_unique<X11ActiveApplication>(*listening);
    platform.clipboard = std::make_unique<ToolkitClipboard>();
    platform.workspace = std::make_unique<DesktopWorkspace>();
    platform.surfaces = *std::move(surfaces);
    platform.hotkeys = std::make_unique<X11Hotkeys>(*keyboard);
    platform.appearance
        = std::make_unique<DesktopAppearance>(DesktopAppearance::TextScale::InScreenScale);
    platform.sound = std::make_unique<PulseSoundOutput>();
    platform.power = std::make_unique<KernelPowerSource>();
    platform.words = desktopWords();
    platform.textRecognizer = makeTextRecognizer();
    platform.faceDetector = std::make_shared<ModuleFaceDetector>();
    platform.ownWindows = std::make_unique<OwnWindowMarker>();
    return platform;
}

std::shared_ptr<TextRecognizer> makeTextRecognizer()
{
    return std::make_shared<ModuleTextRecognizer>(QLocale::system().uiLanguages());
}

std::unique_ptr<Diagnosis> makeDiagnosis()
{
    return std::make_unique<X11Diagnosis>(QLocale::system().uiLanguages());
}
