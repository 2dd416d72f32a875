// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/Rooms.h"

#include "app/OpenPictures.h"
#include "base/Words.h"
#include "shortcuts/KeyCombo.h"

#include <QSystemTrayIcon>

using namespace Qt::StringLiterals;

Rooms::Rooms(DesktopPlatform& platform, Prefs& prefs, const Folders& folders)
    : m_platform(platform)
    , m_prefs(prefs)
    , m_history(folders, prefs)
    , m_keptEdits(folders, prefs, m_history)
    , m_fun(folders, prefs)
    , m_skins(prefs, *platform.appearance)
    , m_themes(m_skins, *platform.appearance)
    , m_surroundings {m_themes, *platform.surfaces}
    , m_synthesisedSounds(folders, prefs, *platform.sound)
    , m_sounds(prefs, m_synthesisedSounds, *platform.sound)
    , m_overlayPool(*platform.surfaces)
    , m_operations({platform, prefs, folders, m_themes, m_fun})
    , m_pins(m_surroundings, actions())
    , m_editors({m_surroundings, prefs, *platform.clipboard, m_history, m_keptEdits, m_fun,
          actions(), platform.faceDetector})
    , m_reopenOffer(m_surroundings, m_keptEdits,
          [this](const KeptEdit& edit, std::unique_ptr<EditJournal> journal) {
              m_editors.reopen(edit, std::move(journal));
          })
    , m_preview(m_surroundings, prefs, m_fun, actions(), platform.words.showInFolder)
    , m_effects({*platform.displays, *platform.surfaces, m_themes, prefs})
    , m_permission({m_themes, *platform.capture, *platform.workspace, platform.words,
          [this] { return regionShortcut(); }, &QSystemTrayIcon::isSystemTrayAvailable})
    , m_ocr(platform.textRecognizer)
    , m_texts(folders)
    , m_textIndexer({m_history, m_texts, prefs,
          [this](const HistoryItem& item) { return m_idleReader.read(item.path); },
          [this] { m_idleReader.giveUp(); }, [this] { return m_platform.power->isPlugged(); }})
    , m_historyWindow(
          {m_themes, prefs, m_history, *platform.clipboard, *platform.workspace, platform.words,
              actions(), [this](const ToastMessage& message) { m_toast.show(message); }},
          m_texts)
    , m_galleryWindow(m_themes, m_fun)
    , m_popUps({m_surroundings, *platform.displays, m_synthesisedSounds, m_fun,
          [this] { return m_platform.activeApplication->isFullScreen(); }})
    , m_updater({prefs, *platform.workspace, platform.words, folders.downloads})
{
    connectEditors();
    m_history.install();
    m_fun.install();
    m_skins.install();
    m_synthesisedSounds.install();
    m_sounds.install();
    m_updater.install();
    m_skins.apply();
    QObject::connect(&m_popUps, &PopUps::galleryWanted, [this] { m_galleryWindow.show(); });
    QObject::connect(&prefs, &Prefs::saveFailed, &m_toast, [this](const QString& message) {
        m_toast.show(
            {Words::tr("Preferences not saved"), message, u"exclamationmark.triangle.fill"_s});
    });
}

void Rooms::connectEditors()
{
    const auto complain = [this](const QString& title, const QString& why) {
        m_toast.show({title, why, u"exclamationmark.triangle.fill"_s});
    };
    QObject::connect(&m_keptEdits, &KeptEdits::failed, &m_toast,
        [complain](const QString& why) { complain(Words::tr("Edits are not safe"), why); });
    QObject::connect(
        &m_editors, &Editors::filesDropped, &m_toast, [this, complain](const QStringList& paths) {
            editFiles(paths).then([complain](const Result<CaptureReport>& report) {
                if (report && report->outcome != CaptureReport::Outcome::Done)
                    complain(Words::tr("Cannot be opened"), report->reason);
            });
        });
}

Pending<CaptureReport> Rooms::editFiles(const QStringList& paths)
{
    return openFiles(paths, editingIn(m_editors));
}

ShotActions Rooms::actions()
{
    ShotActions actions = m_operations.actions();
    actions.pin = [this](const FinishedCapture& capture) { m_pins.show(capture.shot); };
    actions.edit
        = [this](const FinishedCapture& capture) { std::ignore = m_editors.edit(capture); };
    return actions;
}

CaptureStages Rooms::stages()
{
    CaptureStages stages;
    stages.showPermissionWindow = [this] { m_permission.show(); };
    stages.showToast = [this](const ToastMessage& message) { m_toast.show(message); };
    stages.countDown = [this](int seconds) { return m_countdown.run(seconds); };
    stages.selectRegion = [this](const RegionQuestion& question) { return selectRegion(question); };
    stages.recogniseText
        = [this](const Shot& shot) { return m_ocr.recognize(shot.image, shot.scale); };
    stages.playShutter = [this] { m_sounds.playShutter(); };
    stages.playEffect = [this](QRectF area, const QImage& image) {
        m_effects.play(m_effects.current(), area, image);
    };
    stages.countCapture = [this] { m_fun.capture(); };
    stages.countTextCapture = [this] { m_fun.record(FunDeed::TextCopied); };
    stages.addToHistory = [this](const Shot& shot, const QByteArray& png, const QString& path) {
        return m_history.add(shot.image, shot.scale, path, shot.app, png);
    };
    stages.openEditor
        = [this](const FinishedCapture& capture) { std::ignore = m_editors.edit(capture); };
    stages.showHistory = [this] { m_historyWindow.show(); };
    stages.showGallery = [this] { m_galleryWindow.show(); };
    stages.closePreviews = [this] { m_preview.closeAll(); };
    stages.showPreview = [this](const FinishedCapture& capture, const QString& info) {
        m_preview.show(capture, info);
    };
    return stages;
}

void Rooms::captureBegins()
{
    m_textIndexer.captureBegins();
    m_popUps.captureBegins();
}

void Rooms::captureEnded()
{
    m_textIndexer.captureEnded();
    m_popUps.captureEnded();
}

void Rooms::showUpdate()
{
    if (const auto& found = m_updater.available())
        m_updatePanel.show(*found);
}

bool Rooms::welcome()
{
    if (m_prefs.get(Prefs::keys.welcomed))
        return false;
    m_prefs.set(Prefs::keys.welcomed, true);
    m_permission.show();
    return true;
}

void Rooms::cancelQuestions()
{
    m_overlay.reset();
    m_countdown.stop();
    m_ocr.cancel();
}

QString Rooms::regionShortcut() const
{
    const auto combo = KeyCombo::fromText(m_prefs.get(Prefs::keys.hkRegion));
    if (!combo)
        return {};
    return m_platform.words.shortcuts == PlatformWords::Shortcuts::Spelled ? combo->spelled()
                                                                           : combo->display();
}

Pending<RegionResult> Rooms::selectRegion(const RegionQuestion& question)
{
    OverlayStyle style;
    if (const auto accent = m_skins.current().accent())
        style.accent = *accent;
    else if (const auto desktop = m_platform.appearance->current().accent)
        style.accent = *desktop;
    style.crosshair = m_prefs.get(Prefs::keys.showCrosshair);
    style.magnifier = m_prefs.get(Prefs::keys.showMagnifier);
    m_overlay = std::make_unique<RegionOverlay>(m_overlayPool, *m_platform.displays, style);
    return m_overlay->select(question);
}
