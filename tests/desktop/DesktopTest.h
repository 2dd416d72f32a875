// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/VirtualDesktop.h"
#include "tests/desktop/client/Look.h"

#include <QImage>

#include <gtest/gtest.h>

/// A client window that is on the screen.
struct ClientWindow {
    std::unique_ptr<Client> client;
    xcb_window_t id = XCB_NONE;
    QRect geometry; ///< Native pixels of the root window, without any frame.
};

/// What a client window of this look shows, premultiplied; without its frame.
inline QImage pictureOf(const Look& look, QSize size)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            reinterpret_cast<quint32*>(picture.scanLine(y))[x]
                = pixelOf(look, x, y, size.width(), size.height());
    return picture;
}

/// Starts desktop-client and waits until its window is on the screen. Reports a failure of the
/// test and returns no client if it does not get there.
inline ClientWindow openWindow(const VirtualDesktop& desktop, const QStringList& arguments = {})
{
    ClientWindow window;
    auto client = desktop.launch(QStringLiteral("desktop-client"), arguments);
    if (!client) {
        ADD_FAILURE() << client.error().message.toStdString();
        return window;
    }
    const QByteArray mapped = (*client)->waitForLine("mapped ");
    if (mapped.isNull()) {
        ADD_FAILURE() << "no window appeared: " << (*client)->errors().toStdString();
        return window;
    }
    window.id = mapped.sliced(7).toUInt(nullptr, 16);
    int x = 0, y = 0, width = 0, height = 0;
    std::sscanf((*client)->waitForLine("geometry ", {}).constData(), "geometry %d,%d,%dx%d", &x, &y,
        &width, &height);
    window.geometry = QRect(x, y, width, height);
    window.client = *std::move(client);
    return window;
}

inline DesktopOptions plainDesktop()
{
    return {};
}

/// A suite of tests that share a virtual desktop. While it runs the test program itself lives in
/// that desktop too, so that nothing it writes reaches the home of whoever runs it.
///     using OverlayTest = DesktopTest<>;
///     using TwoMonitorTest = DesktopTest<twoMonitors>; // a function that returns DesktopOptions
template <DesktopOptions (*options)() = plainDesktop>
class DesktopTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        if (!VirtualDesktop::isInstalled())
            return;
        auto started = VirtualDesktop::start(options());
        if (!started) {
            s_failure = started.error().message;
            return;
        }
        s_desktop = *std::move(started);
        const QProcessEnvironment before = QProcessEnvironment::systemEnvironment();
        const QProcessEnvironment inside = s_desktop->environment();
        for (const QString& name : before.keys())
            if (!inside.contains(name))
                qunsetenv(qPrintable(name));
        for (const QString& name : inside.keys())
            qputenv(qPrintable(name), inside.value(name).toLocal8Bit());
    }

    static void TearDownTestSuite() { s_desktop.reset(); }

    void SetUp() override
    {
        if (!VirtualDesktop::isInstalled())
            GTEST_SKIP() << "Xvfb is not installed; this test needs an X server";
        ASSERT_TRUE(s_desktop) << s_failure.toStdString();
    }

    static VirtualDesktop& desktop() { return *s_desktop; }
    static ClientWindow open(const QStringList& arguments = {})
    {
        return openWindow(*s_desktop, arguments);
    }

private:
    static inline std::unique_ptr<VirtualDesktop> s_desktop;
    static inline QString s_failure;
};
