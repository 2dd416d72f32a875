// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

struct DesktopEntry {
    QString id; ///< File name without ".desktop", sub-folders joined by "-".
    QString name; ///< In the user's language.
};

/// The programs installed for the user, found by the window class they give their windows.
class DesktopEntries final {
public:
    /// Reads the folders of the user's and the system's applications on first use.
    DesktopEntries();
    explicit DesktopEntries(QStringList folders)
        : m_folders(std::move(folders))
    {
    }

    /// By the class, else by the instance name, of a window; both may be empty.
    std::optional<DesktopEntry> find(const QString& windowClass, const QString& instance);

private:
    void readAgainIfChanged();

    QStringList m_folders;
    QDateTime m_newest; ///< When one of the folders changed last, as of the last reading.
    QHash<QString, DesktopEntry> m_byClass; ///< Keys in lower case.
};
