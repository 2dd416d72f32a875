// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/LocalSocket.h"
#include "tests/desktop/DesktopTest.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

/// The real programs on a real X server: what a user and a script see of the resident one.
template <DesktopOptions (*options)()>
class ResidentDesktop : public DesktopTest<options> {
protected:
    using Base = DesktopTest<options>;

    /// For what happens with a capture, not to what is shown then, which would be in the way.
    void SetUp() override
    {
        Base::SetUp();
        if (!testing::Test::IsSkipped())
            setPreferences(R"({"afterCapture":"none","captureAnimation":"none",)"
                           R"("achievementToasts":false})");
    }

    void TearDown() override { pixmallow({QStringLiteral("quit")}); }

    VirtualDesktop::Finished pixmallow(const QStringList& arguments)
    {
        const auto finished = Base::desktop().run(QStringLiteral("pixmallow"), arguments);
        EXPECT_TRUE(finished) << finished.error().message.toStdString();
        return finished ? *finished : VirtualDesktop::Finished {-1, {}, {}};
    }

    /// Before, a command would start a resident program of its own.
    static bool waitUntilResidentListens()
    {
        const QString socket
            = Base::desktop().environment().value(QStringLiteral("XDG_RUNTIME_DIR"))
            + QStringLiteral("/pixmallow/control");
        return waitFor([&] { // One that was killed has left its socket.
            const auto connection = LocalSocket::connect(socket, patience);
            return connection && connection->has_value();
        });
    }

    /// The resident program, once it listens.
    static std::unique_ptr<Client> launchResident()
    {
        auto started = Base::desktop().launch(
            QStringLiteral("pixmallow-desktop"), {QStringLiteral("--background")});
        EXPECT_TRUE(started) << started.error().message.toStdString();
        if (!started)
            return nullptr;
        EXPECT_TRUE(waitUntilResidentListens());
        return *std::move(started);
    }

    /// Whether the newest window has it.
    static bool hasKeyboard()
    {
        const xcb_window_t root = Base::desktop().screen().root;
        const auto windows = Base::desktop().property(root, "_NET_CLIENT_LIST");
        const auto active = Base::desktop().property(root, "_NET_ACTIVE_WINDOW");
        return !windows.empty() && !active.empty() && active.front() == windows.back();
    }

    QJsonObject capture(const QString& kind)
    {
        const auto finished = pixmallow(
            {QStringLiteral("capture"), kind, QStringLiteral("--wait"), QStringLiteral("--json")});
        EXPECT_EQ(finished.exitCode, 0) << finished.errors.toStdString();
        return QJsonDocument::fromJson(finished.output).object();
    }

    /// Before the resident program starts.
    void setPreferences(const QByteArray& json)
    {
        const QString folder = Base::desktop().home() + QStringLiteral("/.config/Pixmallow");
        QDir().mkpath(folder);
        QFile file(folder + QStringLiteral("/preferences.json"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json);
    }

    QStringList saved() { return saved(QDir::Files); }
    QStringList saved(QDir::Filters filters)
    {
        return QDir(Base::desktop().home() + QStringLiteral("/Pictures/Pixmallow"))
            .entryList(filters);
    }

    QByteArray clipboard(const QString& type)
    {
        const auto read = Base::desktop().run(QStringLiteral("xclip"),
            {QStringLiteral("-selection"), QStringLiteral("clipboard"), QStringLiteral("-o"),
                QStringLiteral("-t"), type});
        return read ? read->output : QByteArray();
    }
};

/// Whether two pictures look the same, alpha aside.
inline bool equal(const QImage& a, const QImage& b)
{
    return a.convertToFormat(QImage::Format_RGB32) == b.convertToFormat(QImage::Format_RGB32);
}
