// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPlatform.h"
#include "platform/fake/FakeHotkeys.h"
#include "platform/fake/FakeScreens.h"

class FakeActiveApplication final : public ActiveApplication {
public:
    std::optional<Application> current() override { return active; }
    std::optional<Application> active;
};

class FakeClipboard final : public Clipboard {
public:
    void setImage(const QImage& copied, const QByteArray& bytes) override
    {
        image = copied;
        png = bytes;
    }
    void setText(const QString& copied) override { text = copied; }
    void setFiles(const QStringList& copied) override { files = copied; }

    QImage image;
    QByteArray png;
    QString text;
    QStringList files;
};

class FakeWorkspace final : public Workspace {
public:
    void reveal(const QString& path) override { revealed = path; }
    void open(const QString& fileOrFolder) override { opened = fileOrFolder; }
    void relaunch() override { ++relaunches; }

    QString revealed, opened;
    int relaunches = 0;
};

class FakeAppearance final : public Appearance {
public:
    DesktopLook current() const override { return look; }
    void set(const DesktopLook& changedTo)
    {
        look = changedTo;
        Q_EMIT changed();
    }

    DesktopLook look;
};

/// Writes down what would be heard.
class FakeSoundOutput final : public SoundOutput {
public:
    struct Played {
        QUrl file;
        double volume;
    };

    void play(const QUrl& file, double volume) override { played.push_back({file, volume}); }
    Result<void> check(const QUrl& file) const override
    {
        if (damaged.contains(file))
            return Error::failed(QStringLiteral("It is damaged."));
        return {};
    }

    QList<Played> played;
    QList<QUrl> damaged;
};

/// A platform that answers when told, with its parts at hand.
struct FakePlatform : DesktopPlatform {
    FakePlatform()
    {
        displays = std::make_unique<FakeDisplays>();
        capture = std::make_unique<FakeScreenCapture>();
        activeApplication = std::make_unique<FakeActiveApplication>();
        clipboard = std::make_unique<FakeClipboard>();
        workspace = std::make_unique<FakeWorkspace>();
        hotkeys = std::make_unique<FakeHotkeys>();
        appearance = std::make_unique<FakeAppearance>();
        sound = std::make_unique<FakeSoundOutput>();
    }

    FakeDisplays& fakeDisplays() { return static_cast<FakeDisplays&>(*displays); }
    FakeScreenCapture& fakeCapture() { return static_cast<FakeScreenCapture&>(*capture); }
    FakeActiveApplication& fakeActive()
    {
        return static_cast<FakeActiveApplication&>(*activeApplication);
    }
    FakeClipboard& fakeClipboard() { return static_cast<FakeClipboard&>(*clipboard); }
    FakeAppearance& fakeAppearance() { return static_cast<FakeAppearance&>(*appearance); }
    FakeSoundOutput& fakeSound() { return static_cast<FakeSoundOutput&>(*sound); }
    FakeWorkspace& fakeWorkspace() { return static_cast<FakeWorkspace&>(*workspace); }
    FakeHotkeys& fakeHotkeys() { return static_cast<FakeHotkeys&>(*hotkeys); }
};
