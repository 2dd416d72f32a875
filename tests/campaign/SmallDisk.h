// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// A folder that is a file system of its own, in memory, of a few mebibytes; empty at first. Root
/// alone can make one.
class SmallDisk final {
public:
    explicit SmallDisk(QString folder); ///< Made if it is missing.
    ~SmallDisk();
    Q_DISABLE_COPY_MOVE(SmallDisk)

    bool isMounted() const { return m_isMounted; }
    QString path(const QString& name) const { return m_folder + u'/' + name; }

    void fill(); ///< To the last byte.
    void free(); ///< As it was before.

    /// All files by their paths, but for what fills it.
    QMap<QString, QByteArray> content() const;

private:
    const QString m_folder;
    bool m_isMounted = false;
};
