// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "skins/Sounds.h"

#include "base/Words.h"

#include <QDir>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

// Outside of any class or namespace, as the macro demands.
static void loadOwnSounds()
{
    Q_INIT_RESOURCE(sounds);
}

namespace {

Sounds* s_shared = nullptr;

const QString ownFolder = u":/sounds"_s;
const QString screenCapture = u"Screen Capture"_s;
const QString screenCaptureFile = u":/sounds/system/Screen Capture.wav"_s;

QUrl urlOf(const QString& path)
{
    return path.startsWith(u':') ? QUrl(u"qrc"_s + path) : QUrl::fromLocalFile(path);
}

/// Of the sounds in a folder, by URL.
QList<Sounds::Item> soundsIn(const QString& folder)
{
    QList<Sounds::Item> items;
    const auto files = QDir(folder).entryInfoList(QDir::Files);
    for (const auto& file : files)
        if (Sounds::extensions().contains(file.suffix().toLower()))
            items.push_back({file.completeBaseName(), urlOf(file.filePath())});
    std::ranges::sort(items, {}, [](const auto& item) { return item.url.toEncoded(); });
    return items;
}

/// A folder for sounds, and those of the themes in it.
QStringList foldersUnder(const QString& folder)
{
    QStringList folders {folder};
    const auto themes = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const auto& theme : themes)
        folders << u"%1/%2/stereo"_s.arg(folder, theme);
    return folders;
}

} // namespace

Sounds::Sounds(
    const Prefs& prefs, const SynthSounds& synthesised, SoundOutput& output, QStringList folders)
    : m_prefs(prefs)
    , m_synthesised(synthesised)
    , m_output(output)
    , m_folders(std::move(folders))
{
    loadOwnSounds();
}

Sounds& Sounds::shared()
{
    Q_ASSERT(s_shared);
    return *s_shared;
}

void Sounds::install()
{
    s_shared = this;
}

QStringList Sounds::desktopFolders()
{
    auto folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    folders.append(folders.takeFirst()); // The user's stands first; the system's is to.
    for (auto& folder : folders)
        folder += u"/sounds"_s;
    return folders;
}

const QStringList& Sounds::extensions()
{
    static const QStringList all {
        u"aiff"_s, u"aif"_s, u"caf"_s, u"wav"_s, u"mp3"_s, u"m4a"_s, u"oga"_s, u"ogg"_s, u"flac"_s};
    return all;
}

QList<Sounds::Item> Sounds::scanned() const
{
    QList<Item> items = soundsIn(ownFolder);
    for (const auto& folder : m_folders)
        for (const auto& each : foldersUnder(folder))
            items += soundsIn(each);
    return items;
}

QList<Sounds::Item> Sounds::available() const
{
    QList<Item> items {{screenCapture, urlOf(screenCaptureFile)}};
    for (const auto& name : SynthSounds::names())
        if (const auto file = m_synthesised.url(name))
            items.push_back({name, *file});
    return items + scanned();
}

std::optional<QUrl> Sounds::url(const QString& name) const
{
    if (name.startsWith(u'/'))
        return QUrl::fromLocalFile(name);
    // In the order of the catalogue, but without making sounds that nobody asked for.
    if (name == screenCapture)
        return urlOf(screenCaptureFile);
    if (const auto file = m_synthesised.url(name))
        return file;
    const auto items = scanned();
    const auto found = std::ranges::find(items, name, &Item::name);
    return found == items.end() ? std::nullopt : std::optional(found->url);
}

void Sounds::play(const QString& name, double volume)
{
    if (const auto file = url(name))
        m_output.play(*file, volume);
}

void Sounds::playShutter()
{
    if (!m_prefs.get(Prefs::keys.playSound))
        return;
    const auto chosen = m_prefs.value(Prefs::keys.sound);
    play(
        chosen.isValid() ? chosen.toString() : screenCapture, m_prefs.get(Prefs::keys.soundVolume));
}

Result<void> Sounds::check(const QString& name) const
{
    const auto file = url(name);
    if (!file)
        return Error::failed(Words::tr("There is no sound named “%1”.").arg(name));
    return m_output.check(*file);
}
