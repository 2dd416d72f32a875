// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/CaptureStages.h"
#include "app/ShotOperations.h"
#include "app/TextProcess.h"
#include "base/CaptureReport.h"
#include "capture/Countdown.h"
#include "capture/OCR.h"
#include "capture/PermissionWindow.h"
#include "capture/Toast.h"
#include "editor/Editors.h"
#include "editor/keeping/ReopenOffer.h"
#include "fun/CaptureFx.h"
#include "fun/GalleryWindow.h"
#include "fun/PopUps.h"
#include "history/HistoryWindow.h"
#include "history/TextIndexer.h"
#include "overlay/RegionOverlay.h"
#include "platform/DesktopPlatform.h"
#include "preview/Pins.h"
#include "preview/PreviewPanel.h"
#include "skins/Skins.h"
#include "skins/Sounds.h"
#include "update/UpdatePanel.h"
#include "widgets/ApplicationLook.h"

/// The rooms along a capture's way, each made once, and how the coordinator reaches them.
class Rooms final {
public:
    Rooms(DesktopPlatform& platform, Prefs& prefs, const Folders& folders);

    CaptureStages stages();

    // For the surfaces that lead to them.
    const Surroundings& surroundings() const { return m_surroundings; }
    HistoryStore& history() { return m_history; }
    Fun& fun() { return m_fun; }
    Skins& skins() { return m_skins; }
    Sounds& sounds() { return m_sounds; }
    CaptureFx& effects() { return m_effects; }
    Pins& pins() { return m_pins; }
    Editors& editors() { return m_editors; }
    ShotActions actions(); ///< All that can be done with a capture.
    HistoryWindow& historyWindow() { return m_historyWindow; }
    Updater& updater() { return m_updater; }
    void showUpdate(); ///< That was found, if any.

    /// What happens by itself keeps still while a capture is being taken.
    void captureBegins();
    void captureEnded();

    /// Shows a newcomer, once, where the program is and how to begin. Whether it did.
    bool welcome();

    /// Offers edits that were left behind when the program ended last.
    void offerLeftBehind() { m_reopenOffer.show(); }

    /// Opens image files in editors. Done when all of them were.
    Pending<CaptureReport> editFiles(const QStringList& paths);

    /// Takes back what the user is being asked and what is being read; whoever waits for it hears
    /// Cancelled.
    void cancelQuestions();

private:
    void connectEditors();
    Pending<RegionResult> selectRegion(const RegionQuestion& question);
    QString regionShortcut() const; ///< As sentences call it; may be empty.

    DesktopPlatform& m_platform;
    Prefs& m_prefs;
    HistoryStore m_history; ///< Before all that makes the data folder, which it may have to move.
    KeptEdits m_keptEdits;
    Fun m_fun;
    Skins m_skins;
    Themes m_themes;
    const Surroundings m_surroundings;
    ApplicationLook m_look {m_surroundings};
    SynthSounds m_synthesisedSounds;
    Sounds m_sounds;
    OverlayPool m_overlayPool;
    std::unique_ptr<RegionOverlay> m_overlay; ///< Of the last selection.
    ShotOperations m_operations;
    Pins m_pins;
    Editors m_editors;
    ReopenOffer m_reopenOffer;
    PreviewPanel m_preview;
    CaptureFx m_effects;
    Toast m_toast {m_surroundings};
    Countdown m_countdown {m_surroundings};
    PermissionWindow m_permission;
    OCR m_ocr;
    TextProcess m_idleReader {QCoreApplication::applicationFilePath()};
    TextIndex m_texts;
    TextIndexer m_textIndexer;
    HistoryWindow m_historyWindow;
    GalleryWindow m_galleryWindow;
    PopUps m_popUps;
    Updater m_updater;
    UpdatePanel m_updatePanel {m_themes, m_updater};
};
