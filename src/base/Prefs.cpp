// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Prefs.h"

#include "base/AtomicFile.h"
#include "base/FileLock.h"
#include "base/SetAside.h"
#include "base/Words.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QThread>

#include <chrono>
#include <tuple>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// One write for a skin that sets four keys, and few for a slider that is dragged.
constexpr auto flushDelay = 100ms;
// A rename and the lock beside it are several announcements.
constexpr auto rereadDelay = 30ms;
constexpr auto lockPatience = 3s;
const QString lockName = u"/preferences.lock"_s;

Prefs* installed = nullptr;

/// Waits for other processes to finish their writing, which takes each a few milliseconds. Not
/// QLockFile: one that was killed just when it had made its file would lock all out for a while.
Result<Descriptor> lock(const QString& folder)
{
    const QDeadlineTimer deadline(lockPatience);
    for (;;) {
        auto locked = lockFile(folder + lockName);
        if (locked || locked.error().kind != Error::Kind::Exists || deadline.hasExpired())
            return locked;
        QThread::msleep(3);
    }
}

/// What a file holds; nothing if that is no JSON object, an error if it cannot be read.
Result<std::optional<QJsonObject>> readContent(const QString& path)
{
    QFile file(path);
    if (!file.exists())
        return std::optional(QJsonObject());
    if (!QFileInfo(path).isFile()) // Opening a pipe would wait for somebody to write into it.
        return Error::failed(Words::tr("Couldn't read “%1”: it is no file.").arg(path));
    if (!file.open(QIODevice::ReadOnly))
        return Error::failed(Words::tr("Couldn't read “%1”: %2.").arg(path, file.errorString()));
    const QByteArray text = file.readAll();
    const auto document = QJsonDocument::fromJson(text);
    if (!document.isObject() && !text.trimmed().isEmpty())
        return std::optional<QJsonObject>();
    return std::optional(document.object());
}

} // namespace

Prefs::Prefs(const Folders& folders, Watch watched)
    : m_folder(folders.configuration)
    , m_path(m_folder + u"/preferences.json"_s)
    , m_defaultFolder(folders.pictures + u"/Pixmallow"_s)
    , m_watched(watched)
{
    m_flushTimer.setSingleShot(true);
    m_flushTimer.setInterval(flushDelay);
    connect(&m_flushTimer, &QTimer::timeout, this, [this] {
        if (const auto flushed = flush(); !flushed)
            Q_EMIT saveFailed(flushed.error().message);
    });
    m_rereadTimer.setSingleShot(true);
    m_rereadTimer.setInterval(rereadDelay);
    connect(&m_rereadTimer, &QTimer::timeout, this, &Prefs::reread);
    const auto rereadSoon = [this] { m_rereadTimer.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, rereadSoon);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, rereadSoon);

    std::ignore = ensurePrivateFolder(m_folder); // The first write complains.
    watchAgain();
    const auto content = readContent(m_path);
    const bool isDamaged = content && !*content;
    if (content && *content)
        m_values = **content;
    if (!isDamaged)
        return;
    if (const auto locked = lock(m_folder))
        if (const auto recovered = recoveredContent())
            m_values = *recovered;
}

Prefs::~Prefs()
{
    std::ignore = flush();
    if (installed == this)
        installed = nullptr;
}

Prefs& Prefs::shared()
{
    Q_ASSERT(installed);
    return *installed;
}

void Prefs::install()
{
    installed = this;
}

void Prefs::registerDefaults()
{
    for (const AnyPrefKey* key : keys.all())
        if (key->isRegistered())
            m_registered.insert(QLatin1String(key->name), key->defaultValue());
    m_registered.insert(QLatin1String(keys.saveFolder.name), m_defaultFolder);
}

QVariant Prefs::value(const AnyPrefKey& key) const
{
    const auto set = key.fromJson(m_values.value(QLatin1String(key.name)));
    if (set.isValid())
        return set;
    const auto registered = m_registered.constFind(QLatin1String(key.name));
    if (registered != m_registered.cend())
        return *registered;
    return key.counts == AnyPrefKey::Counts::OnceRegistered ? QVariant() : key.defaultValue();
}

Result<void> Prefs::setValue(const AnyPrefKey& key, const QVariant& value)
{
    if (value.metaType() != key.type)
        return Error::failed(
            tr("The preference “%1” takes values of another type.").arg(QLatin1String(key.name)));
    store(key, key.toJson(value));
    return {};
}

void Prefs::unset(const AnyPrefKey& key)
{
    store(key, QJsonValue::Undefined);
}

void Prefs::store(const AnyPrefKey& key, const QJsonValue& value)
{
    const QString name = QLatin1String(key.name);
    if (m_values.value(name) == value && m_unsaved.isEmpty())
        return;
    m_unsaved.insert(name, value);
    if (!m_flushTimer.isActive())
        m_flushTimer.start();
    adopt(withUnsaved(m_values));
}

QJsonObject Prefs::withUnsaved(QJsonObject values) const
{
    for (auto unsaved = m_unsaved.cbegin(); unsaved != m_unsaved.cend(); ++unsaved)
        values.insert(unsaved.key(), unsaved.value()); // Undefined removes.
    return values;
}

void Prefs::adopt(const QJsonObject& values)
{
    QVariantList before;
    for (const AnyPrefKey* key : keys.all())
        before.append(value(*key));
    m_values = values;
    QStringList different;
    for (qsizetype i = 0; const AnyPrefKey* key : keys.all())
        if (value(*key) != before.at(i++))
            different.append(QLatin1String(key->name));
    for (const QString& name : different) // Last, for a listener may set something itself.
        Q_EMIT changed(name);
}

void Prefs::reread()
{
    watchAgain(); // The watch ended with the file that was replaced.
    const auto content = readContent(m_path);
    if (content && *content) // Otherwise an editor is at work: it will be heard of again.
        adopt(withUnsaved(**content));
}

void Prefs::watchAgain()
{
    if (m_watched == Watch::Nothing)
        return;
    for (const QString& path : {m_folder, m_path})
        if (QFileInfo::exists(path)) // Of one that does not, it would warn.
            m_watcher.addPath(path);
}

Result<void> Prefs::flush()
{
    m_flushTimer.stop();
    if (m_unsaved.isEmpty())
        return {};
    if (const auto usable = ensurePrivateFolder(m_folder); !usable)
        return usable;
    auto locked = lock(m_folder);
    if (!locked)
        return Error::failed(locked.error().kind == Error::Kind::Exists
                ? tr("Couldn't write “%1”: another program is writing it.").arg(m_path)
                : tr("Couldn't write “%1”: its folder takes no files.").arg(m_path));
    const auto content = recoveredContent();
    if (!content)
        return content.error();
    removeUnfinishedFiles(m_folder); // Of whoever was killed while holding the lock.
    const auto values = withUnsaved(*content);
    const auto written = writeFile(m_path, QJsonDocument(values).toJson(),
        {AtomicFile::Existing::Replace, AtomicFile::Access::OwnerOnly});
    if (!written)
        return written;
    m_unsaved.clear();
    *locked = {};
    watchAgain();
    adopt(values);
    return {};
}

Result<QJsonObject> Prefs::recoveredContent() const
{
    const auto content = readContent(m_path);
    if (!content)
        return content.error();
    if (*content)
        return **content;
    if (const auto moved = setAside(m_path); !moved)
        return moved.error();
    return m_values;
}

QString Prefs::saveFolder() const
{
    const QString folder = get(keys.saveFolder);
    return folder.isEmpty() ? m_defaultFolder : folder;
}

QString Prefs::imageFormat() const
{
    return get(keys.imageFormat) == "jpg"_L1 ? u"jpg"_s : u"png"_s;
}
