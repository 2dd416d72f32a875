// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/KernelPowerSource.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QByteArray wordIn(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

} // namespace

KernelPowerSource::KernelPowerSource(QString folder)
    : m_folder(std::move(folder))
{
}

bool KernelPowerSource::isPlugged() const
{
    bool isDischarging = false;
    const auto names = QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        const QString supply = m_folder + u'/' + name + u'/';
        if (wordIn(supply + u"type"_s) != "Battery") {
            if (wordIn(supply + u"online"_s) == "1")
                return true;
            continue;
        }
        // Mice and headsets have batteries too.
        const bool isMachines = wordIn(supply + u"scope"_s) != "Device";
        isDischarging |= isMachines && wordIn(supply + u"status"_s) == "Discharging";
    }
    return !isDischarging;
}
