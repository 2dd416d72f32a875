// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/DesktopEntries.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

/// The keys of the group [Desktop Entry]; localised ones keep their bracket.
QHash<QString, QString> readEntry(const QString& path)
{
    QHash<QString, QString> keys;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return keys;
    bool inside = false;
    const auto lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const auto& line : lines) {
        if (line.startsWith(u'['))
            inside = line.startsWith("[Desktop Entry]"_L1);
        const auto equals = line.indexOf(u'=');
        if (inside && equals > 0 && !line.startsWith(u'#'))
            keys.insert(line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
    }
    return keys;
}

QString localisedName(const QHash<QString, QString>& keys)
{
    const QString locale = QLocale().name(); // "de_AT"
    for (const auto& variant : {locale, locale.section(u'_', 0, 0)})
        if (const auto name = keys.value(u"Name[%1]"_s.arg(variant)); !name.isEmpty())
            return name;
    return keys.value(u"Name"_s);
}

} // namespace

DesktopEntries::DesktopEntries()
    : DesktopEntries(QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation))
{
}

std::optional<DesktopEntry> DesktopEntries::find(
    const QString& windowClass, const QString& instance)
{
    readAgainIfChanged();
    for (const auto& name : {windowClass, instance})
        if (const auto found = m_byClass.constFind(name.toLower());
            !name.isEmpty() && found != m_byClass.cend())
            return *found;
    return std::nullopt;
}

void DesktopEntries::readAgainIfChanged()
{
    QDateTime newest = QDateTime::fromSecsSinceEpoch(0);
    for (const auto& folder : std::as_const(m_folders))
        if (const QFileInfo info(folder); info.exists())
            newest = std::max(newest, info.lastModified());
    if (newest == m_newest)
        return;
    m_newest = newest;
    m_byClass.clear();

    // What a file declares outweighs what its name suggests, and the user's folder the system's.
    QHash<QString, DesktopEntry> guesses;
    const auto keepFirst = [](auto& map, const QString& key, const DesktopEntry& entry) {
        if (!key.isEmpty() && !map.contains(key.toLower()))
            map.insert(key.toLower(), entry);
    };
    for (const auto& folder : std::as_const(m_folders)) {
        QDirIterator it(folder, {u"*.desktop"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            const auto keys = readEntry(path);
            QString id = QDir(folder).relativeFilePath(path).chopped(int(qstrlen(".desktop")));
            id.replace(u'/', u'-');
            const DesktopEntry entry {id, localisedName(keys)};
            if (entry.name.isEmpty())
                continue;
            keepFirst(m_byClass, keys.value(u"StartupWMClass"_s), entry);
            keepFirst(guesses, id, entry);
            keepFirst(guesses, id.section(u'.', -1), entry); // "org.example.Viewer" → "Viewer"
        }
    }
    for (auto it = guesses.cbegin(); it != guesses.cend(); ++it)
        keepFirst(m_byClass, it.key(), *it);
}
