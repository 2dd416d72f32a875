// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Bitmap.h"
#include "platform/DesktopPlatform.h"
#include "platform/fake/FakeHotkeys.h"

#include <algorithm>

class FakeDisplays final : public Displays {
public:
    QList<DisplayInfo> list() const override { return displays; }
    QPoint pointer() const override { return position; }

    QList<DisplayInfo> displays {
        {1, QStringLiteral("screen"), QRect(0, 0, 400, 300), 1, QRectF(0, 0, 400, 300)}};
    QPoint position;
};

/// Remembers what it was asked, and answers at once with plain pictures unless told to hold back.
class FakeScreenCapture final : public ScreenCapture {
public:
    struct Asked {
        QRect native; ///< Of an area; null of a window.
        WindowId window = 0;
        QList<WindowId> excluded;
        Pointer pointer = Pointer::Hidden;
        WindowShadow shadow = WindowShadow::Dropped;
    };

    bool permitted() const override { return isPermitted; }
    Result<QList<Window>> windows() override { return list; }
    QHash<WindowId, int> frontToBackOrder() override { return order; }

    Pending<Frozen> area(QRect native, QList<WindowId> excluded, Pointer pointer) override
    {
        asked.push_back({native, 0, excluded, pointer, {}});
        return reply(native.size());
    }
    Pending<Frozen> window(WindowId id, WindowShadow shadow, Pointer pointer) override
    {
        asked.push_back({{}, id, {}, pointer, shadow});
        for (const auto& each : list)
            if (each.id == id)
                return reply(each.frame.size());
        return Pending<Frozen>::answered(Error::failed(QStringLiteral("No such window.")));
    }

    static Frozen picture(QSize size)
    {
        Bitmap bitmap(size, PixelFormat::Rgb32);
        std::fill_n(bitmap.row(0), qsizetype(size.width()) * size.height(), 0xff336699u);
        return std::make_shared<BitmapRows>(bitmap);
    }

    bool isPermitted = true;
    bool holdsBack = false;
    std::optional<Error> failure;
    QList<Window> list;
    QHash<WindowId, int> order;
    QList<Asked> asked;
    Pending<Frozen>::Answer answer; ///< To the last question, while it holds back.

private:
    Pending<Frozen> reply(QSize size)
    {
        if (failure)
            return Pending<Frozen>::answered(*failure);
        if (!holdsBack)
            return Pending<Frozen>::answered(picture(size));
        auto [pending, held] = Pending<Frozen>::ask();
        answer = std::move(held);
        return std::move(pending);
    }
};

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
