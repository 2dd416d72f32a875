// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "doctor/ScreenProbe.h"

#include "doctor/PatternWindow.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <thread>

using namespace std::chrono_literals;

namespace {

/// A compositing manager may let windows fade in.
constexpr auto patience = 2s;

/// Between two looks at the screen.
constexpr auto pause = 15ms;

Result<PatternComparison> look(ScreenCapture& capture, QRect native, const QImage& pattern)
{
    const auto frozen = capture.area(native, {}, Pointer::Hidden).wait();
    if (!frozen)
        return frozen.error();
    return TestPattern::compare(pattern, **frozen);
}

Result<PatternComparison> probe(DesktopPlatform& platform, const DisplayInfo& display)
{
    const QSize size = TestPattern::size.boundedTo(display.native.size());
    const QImage pattern = TestPattern::draw().copy(QRect({}, size));
    const PatternWindow window(*platform.surfaces, display, pattern);
    const QDeadlineTimer deadline(patience);
    auto seen = look(*platform.capture, window.native(), pattern);
    while (seen && seen->wrong > 0 && !deadline.hasExpired()) {
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(pause);
        seen = look(*platform.capture, window.native(), pattern);
    }
    return seen;
}

} // namespace

QList<DoctorFacts::Screen> probeScreens(DesktopPlatform& platform)
{
    QList<DoctorFacts::Screen> screens;
    for (const auto& display : platform.displays->list())
        screens << DoctorFacts::Screen {
            display.name, display.native.size(), display.scale, probe(platform, display)};
    return screens;
}
