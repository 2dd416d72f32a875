// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QVariantMap>

#include <functional>

/// One request to the desktop's portal, which asks the user in windows of its own and answers when
/// they are done. Deletes itself after that.
/// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Request.html
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    struct Call {
        QString interface; ///< Such as "org.freedesktop.portal.Email".
        QString method;
        QVariantList arguments; ///< Those before the options.
        QVariantMap options;
    };
    using Answered = std::function<void(Result<void>)>;

    /// Cancelled if the user did; a failure also where there is no portal that can do it.
    static void send(const Call& call, Answered answered);

private Q_SLOTS:
    void respond(uint response);

private:
    explicit PortalRequest(Answered answered);
    void start(const Call& call);
    void end(const Result<void>& result);

    Answered m_answered;
    QDBusServiceWatcher m_portal;
};

/// A file opened for a portal to read; not valid when it cannot be.
QDBusUnixFileDescriptor descriptorOf(const QString& path);
