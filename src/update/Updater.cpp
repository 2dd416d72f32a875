// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "update/Updater.h"

#include "update/UpdateRules.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto firstLook = 20s;
constexpr auto betweenLooks = 3600s;
constexpr auto patience = 15s;
constexpr qsizetype mostOfFeed = 1 << 20; // Bytes; a feed has a few hundred.

Updater* sharedUpdater = nullptr;

} // namespace

Updater::Updater(Sources sources)
    : m_sources(std::move(sources))
{
    m_timer.setInterval(betweenLooks);
    m_timer.callOnTimeout(this, &Updater::checkIfDue);
}

Updater::~Updater()
{
    if (sharedUpdater == this)
        sharedUpdater = nullptr;
}

Updater& Updater::shared()
{
    return *sharedUpdater;
}

void Updater::install()
{
    sharedUpdater = this;
}

void Updater::start()
{
    m_timer.start();
    m_sources.callLater(firstLook, this, [this] { checkIfDue(); });
}

void Updater::checkIfDue()
{
    const Prefs& prefs = m_sources.prefs;
    if (prefs.get(Prefs::keys.autoUpdate)
        && UpdateRules::isDue(prefs.get(Prefs::keys.lastUpdateCheck), m_sources.now()))
        check(false);
}

void Updater::check(bool manual)
{
    if (isChecking())
        return;
    m_feed.clear();
    const auto take = [this](const QByteArray& piece) -> Result<void> {
        m_feed += piece;
        return m_feed.size() > mostOfFeed ? errorOf(UpdateError::Invalid) : Result<void>();
    };
    const UpdateSource& source = m_sources.source;
    m_check = std::make_unique<HttpGet>(
        HttpGet::Request {source.feed, source.userAgent(), patience}, take);
    m_status = tr("Checking…");
    Q_EMIT changed();
    m_check->run().then([updater = QPointer(this), manual](const Result<void>& fetched) {
        if (updater)
            updater->finishCheck(manual, fetched);
    });
}

void Updater::finishCheck(bool manual, const Result<void>& fetched)
{
    m_check.reset();
    auto found = fetched ? UpdateRules::readFeed(m_feed, m_sources.source.member)
                         : Result<std::optional<UpdateInfo>>(fetched.error());
    if (found) {
        m_sources.prefs.set(Prefs::keys.lastUpdateCheck, m_sources.now());
        tellFound(*found, manual);
    } else {
        m_status = tr("Couldn't check for updates: %1").arg(found.error().message);
    }
    Q_EMIT changed();
}

void Updater::tellFound(const std::optional<UpdateInfo>& found, bool manual)
{
    if (!found || UpdateRules::compare(found->version, currentVersion()) < 1) {
        m_available.reset();
        m_status
            = tr("You're up to date — Pixmallow %1 is the latest version.").arg(currentVersion());
        return;
    }
    m_available = found;
    m_status = tr("Pixmallow %1 is available.").arg(found->version);
    if (manual || m_sources.prefs.get(Prefs::keys.skipVersion) != found->version)
        Q_EMIT panelWanted(*found);
}

void Updater::skip(const QString& version)
{
    m_sources.prefs.set(Prefs::keys.skipVersion, version);
}

Pending<void> Updater::install(const UpdateInfo& info, Progress progress)
{
    auto [pending, asked] = Pending<void>::ask();
    const auto answer = std::make_shared<Pending<void>::Answer>(std::move(asked));
    progress(tr("Downloading…"));
    QDir().mkpath(m_sources.downloads);
    const QString path = m_sources.downloads + u'/'
        + UpdateRules::fileName(info.version, m_sources.source.fileSuffix);
    m_download = std::make_unique<UpdateDownload>(info, path);
    connect(m_download.get(), &UpdateDownload::received, this, &Updater::received);
    m_download->run().then([=, updater = QPointer(this)](const Result<void>& downloaded) {
        if (downloaded && updater)
            return updater->open(path, progress, std::move(*answer));
        if (!downloaded && !downloaded.error().isCancelled())
            progress(tr("Update failed: %1").arg(downloaded.error().message));
        (*answer)(downloaded);
    });
    return std::move(pending);
}

void Updater::cancelInstall()
{
    m_download.reset();
}

void Updater::open(const QString& path, const Progress& progress, Pending<void>::Answer answer)
{
    m_download.reset();
    const auto asker = std::make_shared<Pending<void>::Answer>(std::move(answer));
    const QString opened = m_sources.words.updateOpened.arg(QFileInfo(path).fileName());
    m_sources.workspace.open(path).then([=](const Result<void>& result) {
        progress(result ? opened : tr("Update failed: %1").arg(result.error().message));
        (*asker)(result);
    });
}
