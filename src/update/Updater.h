// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CallLater.h"
#include "base/Folders.h"
#include "base/Prefs.h"
#include "platform/PlatformWords.h"
#include "platform/Workspace.h"
#include "update/UpdateDownload.h"
#include "update/UpdateSource.h"

#include <QDateTime>

/// Finds out whether a newer version is published, a day after it last did, and downloads it when
/// told to. It replaces nothing: the user installs what it opens. Lives on the main thread.
class Updater final : public QObject {
    Q_OBJECT

public:
    struct Sources {
        Prefs& prefs;
        Workspace& workspace;
        const PlatformWords& words;
        QString downloads; ///< A folder; made if missing.
        UpdateSource source = UpdateSource::ofBuild();
        std::function<QDateTime()> now = [] { return QDateTime::currentDateTimeUtc(); };
        CallLater callLater = ::callLater;
    };
    /// Of an installation, as a line of text.
    using Progress = std::function<void(const QString& stage)>;

    explicit Updater(Sources sources);
    ~Updater() override;

    static Updater& shared(); ///< The one that install() was called on.
    void install();

    const std::optional<UpdateInfo>& available() const { return m_available; }
    QString status() const { return m_status; } ///< Of the last check, a sentence; at first empty.
    bool isChecking() const { return m_check != nullptr; }
    QString currentVersion() const { return m_sources.source.version; }

    /// Looks 20 seconds from now, and every hour from then on, whether a check is due.
    void start();

    /// Ignored while a check runs. A manual one shows what it found even if it is to be skipped.
    void check(bool manual);

    /// No check by itself shows that version again.
    void skip(const QString& version);

    /// Downloads a version, makes sure of it and opens it. @return whether that worked; Cancelled
    /// after cancelInstall(), or when another installation takes its place
    Pending<void> install(const UpdateInfo& info, Progress progress);
    void cancelInstall();

Q_SIGNALS:
    void changed(); ///< available(), status() or isChecking().
    void panelWanted(const UpdateInfo& info);
    void received(qint64 bytes, qint64 total); ///< Of what is being downloaded; as HttpGet's.

private:
    void checkIfDue();
    void finishCheck(bool manual, const Result<void>& fetched);
    void tellFound(const std::optional<UpdateInfo>& found, bool manual);
    void open(const QString& path, const Progress& progress, Pending<void>::Answer answer);

    const Sources m_sources;
    std::optional<UpdateInfo> m_available;
    QString m_status;
    QByteArray m_feed; ///< As far as it has arrived.
    std::unique_ptr<HttpGet> m_check;
    std::unique_ptr<UpdateDownload> m_download;
    QTimer m_timer;
};
