// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/SmallDisk.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <sys/mount.h>

using namespace Qt::StringLiterals;

namespace {

const QString fillers = u"filler"_s;

/// Adds to a file until nothing goes in any more.
void fillWith(const QString& path, qsizetype pieceLength)
{
    QFile file(path);
    const QByteArray piece(pieceLength, 'x');
    if (file.open(QIODevice::Append | QIODevice::Unbuffered))
        while (file.write(piece) == piece.size()) { }
}

} // namespace

SmallDisk::SmallDisk(QString folder)
    : m_folder(std::move(folder))
{
    QDir().mkpath(m_folder);
    m_isMounted = mount("none", qPrintable(m_folder), "tmpfs", MS_NOSUID, "size=4m") == 0;
}

SmallDisk::~SmallDisk()
{
    if (m_isMounted)
        umount2(qPrintable(m_folder), MNT_DETACH);
}

void SmallDisk::fill()
{
    fillWith(path(fillers), 64 * 1024);
    fillWith(path(fillers), 1);
}

void SmallDisk::free()
{
    QFile::remove(path(fillers));
}

QMap<QString, QByteArray> SmallDisk::content() const
{
    QMap<QString, QByteArray> content;
    for (QDirIterator it(m_folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         it.hasNext();) {
        QFile file(it.next());
        if (file.fileName() != path(fillers) && file.open(QIODevice::ReadOnly))
            content.insert(file.fileName(), file.readAll());
    }
    return content;
}
