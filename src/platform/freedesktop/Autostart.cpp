// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/Autostart.h"

#include "base/AtomicFile.h"
#include "base/Words.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QString entryIn(const QString& folder)
{
    return folder + u"/pixmallow.desktop"_s;
}

/// As the value of Exec has it: in quotes, with what counts there escaped once for the quotes and
/// its backslashes once more for the file, and % doubled.
QString quoted(const QString& path)
{
    static const QRegularExpression counting(u"([\"`$\\\\])"_s);
    QString escaped = path;
    escaped.replace(counting, u"\\\\1"_s).replace(u"\\"_s, u"\\\\"_s).replace(u"%"_s, u"%%"_s);
    return u'"' + escaped + u'"';
}

} // namespace

QString Autostart::userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + u"/autostart"_s;
}

bool Autostart::isOn(const QString& folder)
{
    QFile file(entryIn(folder));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    static const QRegularExpression off(
        u"^(Hidden\\s*=\\s*true|X-GNOME-Autostart-enabled\\s*=\\s*false)\\s*$"_s,
        QRegularExpression::MultilineOption);
    return !off.match(QString::fromUtf8(file.readAll())).hasMatch();
}

Result<void> Autostart::set(const QString& folder, const QString& program, bool on)
{
    const QString path = entryIn(folder);
    if (!on) {
        QFile file(path);
        if (file.exists() && !file.remove())
            return Error::failed(
                Words::tr("Couldn't remove “%1”: %2.").arg(path, file.errorString()));
        return {};
    }
    if (!QDir().mkpath(folder))
        return Error::failed(Words::tr("Couldn't make the folder “%1”.").arg(folder));
    const QString text = u"[Desktop Entry]\nType=Application\nName=Pixmallow\n"
                         "Comment=Takes screenshots\nIcon=pixmallow\n"
                         "Exec=%1 --background\n"_s.arg(quoted(program));
    return writeFile(
        path, text.toUtf8(), {AtomicFile::Existing::Replace, AtomicFile::Access::Umask});
}
