// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/ClientWindow.h"
#include "tests/desktop/Waiting.h"

#include <gtest/gtest.h>

/// Skips its tests on a machine that has no Xvfb.
class ServerTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (!VirtualDesktop::isInstalled())
            GTEST_SKIP() << "Xvfb is not installed; this test needs an X server";
    }
};

inline DesktopOptions plainDesktop()
{
    return {};
}

/// Screens of two sizes side by side, the right one lower, with their pixels per point.
template <int leftScale, int rightScale>
DesktopOptions twoMonitors()
{
    return {.size = {2304, 900},
        .monitors = {{QStringLiteral("L"), {0, 0, 1280, 800}, leftScale},
            {QStringLiteral("R"), {1280, 50, 1024, 768}, rightScale}}};
}

/// A suite of tests that share a virtual desktop. From its start on the test program itself lives
/// in that desktop too, so that nothing it writes reaches the home of whoever runs it.
///     using OverlayTest = DesktopTest<>;
///     using TwoMonitorTest = DesktopTest<twoMonitors<1, 2>>; // a function that returns
///     DesktopOptions
template <DesktopOptions (*options)() = plainDesktop>
class DesktopTest : public ServerTest {
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
        s_desktop->enter();
    }

    static void TearDownTestSuite() { s_desktop.reset(); }

    void SetUp() override
    {
        ServerTest::SetUp();
        if (!IsSkipped() && !s_desktop)
            FAIL() << s_failure.toStdString();
    }

    static VirtualDesktop& desktop() { return *s_desktop; }
    static ClientWindow open(const QStringList& arguments = {})
    {
        return openWindow(*s_desktop, arguments);
    }

    /// What is on the screen once nothing moves there any more.
    static QImage settledPixels(QRect rect = {})
    {
        QImage last = desktop().rootPixels(rect);
        for (int unchanged = 0; unchanged < 2;) {
            std::ignore = waitFor([] { return false; }, std::chrono::milliseconds(100));
            const QImage now = desktop().rootPixels(rect);
            unchanged = now == std::exchange(last, now) ? unchanged + 1 : 0;
        }
        return last;
    }

private:
    static inline std::unique_ptr<VirtualDesktop> s_desktop;
    static inline QString s_failure;
};
