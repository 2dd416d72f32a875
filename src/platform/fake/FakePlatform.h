// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPlatform.h"
#include "platform/fake/FakeFaceDetector.h"
#include "platform/fake/FakeHotkeys.h"
#include "platform/fake/FakeScreens.h"

class FakeActiveApplication final : public ActiveApplication {
public:
    std::optional<Application> current() override { return active; }
    bool isFullScreen() override { return fullScreen; }
    std::optional<Application> active;
    bool fullScreen = false;
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

/// Remembers what it was asked; says what it is told to.
class FakeWorkspace final : public Workspace {
public:
    Pending<void> reveal(const QString& path) override { return noted(revealed, path); }
    Pending<void> open(const QString& path) override { return noted(opened, path); }
    Pending<void> mail(const QString& path) override { return noted(mailed, path); }
    Pending<void> openWith(const QString& path) override { return noted(openedWith, path); }
    Pending<void> openPermissionSettings() override
    {
        ++settingsOpened;
        return Pending<void>::answered(result);
    }
    bool startsAtLogin() const override { return isStarted; }
    Result<void> setStartsAtLogin(bool starts) override
    {
        isStarted = starts;
        return result;
    }
    void relaunch() override { ++relaunches; }

    QString revealed, opened, mailed, openedWith;
    int settingsOpened = 0;
    int relaunches = 0;
    bool isStarted = false; ///< At login.
    Result<void> result;

private:
    Pending<void> noted(QString& where, const QString& path)
    {
        where = path;
        return Pending<void>::answered(result);
    }
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

class FakePowerSource final : public PowerSource {
public:
    bool isPlugged() const override { return plugged; }
    bool plugged = true;
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
        power = std::make_unique<FakePowerSource>();
        faceDetector = std::make_shared<FakeFaceDetector>();
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
    FakePowerSource& fakePower() { return static_cast<FakePowerSource&>(*power); }
    FakeWorkspace& fakeWorkspace() { return static_cast<FakeWorkspace&>(*workspace); }
    FakeFaceDetector& fakeFaces() { return static_cast<FakeFaceDetector&>(*faceDetector); }
    FakeHotkeys& fakeHotkeys() { return static_cast<FakeHotkeys&>(*hotkeys); }
};
