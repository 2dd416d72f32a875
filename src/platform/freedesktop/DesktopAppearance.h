// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/AppearanceSources.h"

#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QFileSystemWatcher>

/// The desktop's look: first from the settings files of the toolkits, then, once the event loop
/// runs, from the desktop portal where there is one.
class DesktopAppearance final : public Appearance {
    Q_OBJECT

public:
    /// Where the user's scale for letters acts.
    enum class TextScale {
        InScreenScale, ///< The toolkit enlarges everything by it already.
        LeftToProgram,
    };

    explicit DesktopAppearance(TextScale textScale);

    DesktopLook current() const override { return m_current; }

private Q_SLOTS: // Found by name.
    void takePortalSetting(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void askPortal();
    void takePortalSettings(QDBusPendingCallWatcher* watcher);
    void readFiles();
    void update();

    const TextScale m_textScale;
    QStringList m_files; ///< In the order in which they count.
    QFileSystemWatcher m_watcher;
    PartialLook m_fromFiles;
    const PartialLook m_toolkit; ///< As it was before anybody here gave it other colours.
    AppearanceSources::PortalSettings m_portal;
    DesktopLook m_current;
};
