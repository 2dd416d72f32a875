// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/CaptureStages.h"
#include "base/CaptureKind.h"
#include "base/CaptureReport.h"
#include "base/Control.h"
#include "base/Prefs.h"
#include "capture/ShotTaker.h"
#include "platform/DesktopPlatform.h"
#include "shortcuts/HotkeyCenter.h"

#include <QObject>

/// The coordinator: every way to start a capture leads here, and the one road of a capture runs
/// through run() and finish(). Lives on the main thread for as long as the program.
class AppState final : public QObject {
    Q_OBJECT

public:
    AppState(DesktopPlatform& platform, Prefs& prefs, HotkeyCenter& hotkeys, CaptureStages stages);

    static AppState& shared(); ///< The one that install() was called on.
    void install();

    /// Begins to follow which program the user works in and to listen to the shortcuts; asks for
    /// permission if there is none.
    void start();

    /// Builds the shortcuts of all kinds anew from the preferences. One that the system refuses
    /// does nothing.
    void registerHotkeys();

    /// The shortcut of a kind; none where the user has cleared it.
    std::optional<KeyCombo> hotkey(CaptureKind kind) const;
    QString hotkeyLabel(CaptureKind kind) const; ///< As menus show it; may be empty.
    /// Kinds whose shortcut the system refused when they were last registered.
    const QList<CaptureKind>& refusedHotkeys() const { return m_refused; }

    /// Takes a capture; ignored while another one runs.
    void capture(CaptureKind kind);

    /// The same, and tells how it ended.
    Pending<CaptureReport> captureAndReport(CaptureKind kind);

    /// Whether the system lets us capture the screen, and how the user is asked for that.
    bool isPermitted() const;
    void askForPermission();

    /// Whether all that a kind of capture needs is connected.
    bool isAvailable(CaptureKind kind) const;

    /// The last capture in the editor, or the history when there is none.
    void editLast();

    // The rooms that surfaces lead to, and whether they are connected.
    bool hasEditor() const { return bool(m_stages.openEditor); }
    bool hasHistory() const { return bool(m_stages.showHistory); }
    bool hasGallery() const { return bool(m_stages.showGallery); }
    void showHistory();
    void showGallery();
    void show(Control::Show::What window); ///< That was asked for by another program.

    const std::optional<FinishedCapture>& last() const { return m_last; }
    const std::optional<Application>& lastOtherApp() const { return m_lastOtherApp; }
    bool isBusy() const { return m_busy; }

Q_SIGNALS:
    void lastChanged();
    void captureBegan(); ///< isBusy() is true from now on.
    void captureEnded(
        const CaptureReport& report); ///< However it ended; isBusy() is false from now on.
    void panelRequested(); ///< Somebody started the program again.
    void settingsRequested(); ///< Its window is wanted.
    void hotkeysRegistered(); ///< Anew; it is known which ones the system refused.

private:
    void follow(const Application& application);
    void adoptPreference(const QString& key);
    QCoro::Task<> run(CaptureKind kind, Pending<CaptureReport>::Answer answer);
    QCoro::Task<Result<Shot>> take(CaptureKind kind);
    QCoro::Task<Result<Shot>> captureFrontWindow();
    QCoro::Task<> finish(Shot shot);
    QCoro::Task<> copyText(Shot shot);
    QCoro::Task<QByteArray> pngOf(Shot shot);
    QCoro::Task<QByteArray> encoded(Shot shot, QString format);
    QCoro::Task<QString> saved(QByteArray bytes, QString format);
    void present(const FinishedCapture& finished, const QStringList& notes);
    void fail(const ToastMessage& toast);

    DesktopPlatform& m_platform;
    Prefs& m_prefs;
    HotkeyCenter& m_hotkeys;
    const CaptureStages m_stages;
    ShotTaker m_shots;
    QList<CaptureKind> m_refused; ///< Kinds whose shortcut we were not given.
    std::optional<FinishedCapture> m_last;
    std::optional<Application> m_lastOtherApp;
    bool m_busy = false;
    CaptureReport m_report; ///< Of the capture that runs.
};

/// "2880 × 1800  •  Copied  •  Saved"
QString infoLine(QSize pixels, const QStringList& notes);

/// What is said when a text capture found some text.
ToastMessage textCopiedToast(int lines);
