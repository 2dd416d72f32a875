// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/Rounds.h"
#include "capture/Pixels.h"
#include "overlay/RegionOverlay.h"
#include "platform/DesktopPlatform.h"

#include <QGuiApplication>
#include <QtGui/qguiapplication_platform.h>

#include <cstdio>
#include <xcb/xcb.h>

using namespace Qt::StringLiterals;

namespace {

/// Until the server has done all it was asked for.
void settle()
{
    auto* const xcb = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    std::free(xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
}

RegionQuestion freeze(DesktopPlatform& platform)
{
    RegionQuestion question;
    const auto displays = platform.displays->list();
    for (const auto& display : displays) {
        const auto frozen = platform.capture->area(display.native, {}, Pointer::Hidden).wait();
        const auto image = frozen ? readImage(**frozen) : frozen.error();
        if (!image)
            qFatal("%s", qPrintable(image.error().message));
        question.screens.push_back({display, *image});
    }
    return question;
}

/// A pointer that goes to and fro in equal steps, in device pixels.
OverlayScene sceneOf(int turn, QPoint step, bool dragging)
{
    const int phase = turn % 20;
    const QPoint pointer = QPoint(1700, 1100) + step * (phase < 10 ? phase : 20 - phase);
    const QRect dragged(QPoint(640, 420), pointer);
    return {dragging ? dragged : QRect(600, 500, 1600, 1000), dragging, pointer};
}

OverlayScene wholeOrNothing(int turn)
{
    return {turn % 2 ? QRect(0, 0, 1 << 14, 1 << 14) : QRect(), true, {}};
}

/// Prints and returns the processor time of one change of scene, painted and on the screen.
double measure(OverlayWindow& window, const QString& name,
    const std::function<OverlayScene(int turn)>& scene, int count)
{
    int turn = 0;
    qint64 pixels = 0;
    Rounds rounds;
    rounds.add(name, [&] {
        window.setScene(scene(++turn));
        const qint64 painted = window.paintNow();
        settle();
        if (turn > 1) // The first one comes from another case.
            pixels += painted;
    });
    rounds.run(count);
    std::printf("%-28s %8.2f %8.2f %8.2f %8.3f\n", qPrintable(name), rounds.medianCpu(name),
        rounds.cpu95(name), rounds.medianWall(name), double(pixels) / count / 1e6);
    return rounds.medianCpu(name);
}

void measureMoves(DesktopPlatform& platform, int count)
{
    const auto question = freeze(platform);
    const auto& screen = question.screens.first();
    OverlayWindow window(*platform.surfaces, screen.display);
    window.present(std::make_unique<OverlayView>(screen, OverlayStyle {}, QString()), {});
    std::printf("%-28s %8s %8s %8s %8s\n", "", "cpu ms", "p95 ms", "wall ms", "Mpx");
    const auto stepping = [](QPoint step, bool dragging) {
        return [=](int turn) { return sceneOf(turn, step, dragging); };
    };
    const double drag = measure(window, u"drag by 19 x 10"_s, stepping({19, 10}, true), count);
    measure(window, u"point, 19 x 10 on"_s, stepping({19, 10}, false), count);
    measure(window, u"drag by 119 x 63"_s, stepping({119, 63}, true), count);
    const double all = measure(window, u"everything changes"_s, wholeOrNothing, count);
    std::printf("drag by 19 x 10 / everything: %.3f\n", drag / all);
    window.dismiss();
}

void measureFirstFrames(DesktopPlatform& platform, int count)
{
    const QString cold = u"first frame, cold"_s, kept = u"first frame, kept"_s;
    std::optional<OverlayPool> pool;
    std::optional<RegionQuestion> question;
    const auto show = [&] {
        RegionOverlay overlay(*pool, *platform.displays, {});
        const auto answer = overlay.select(*question);
        settle();
    };
    Rounds rounds;
    const auto freezeAgain = [&] { question = freeze(platform); };
    const auto both = [&] {
        freezeAgain();
        show();
    };
    rounds.add(u"forget"_s, [&] {
        pool.emplace(*platform.surfaces);
        question.reset();
    });
    rounds.add(cold, both);
    rounds.add(u"freeze"_s, freezeAgain);
    rounds.add(kept, show);
    rounds.add(kept + u" and frozen"_s, both);
    rounds.run(count);
    for (const QString& name : {u"freeze"_s, cold, kept, kept + u" and frozen"_s})
        std::printf("%-28s %8.2f %8.2f %8.2f\n", qPrintable(name), rounds.medianCpu(name),
            rounds.cpu95(name), rounds.medianWall(name));
}

} // namespace

// usage: virtual-desktop --size 3840x2160 [--picture FILE] -- OverlayBench [ROUNDS]
int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    auto platform = makeDesktopPlatform();
    if (!platform) {
        std::fprintf(stderr, "OverlayBench: %s\n", qPrintable(platform.error().message));
        return 2;
    }
    const int count = std::max(2, QGuiApplication::arguments().value(1, u"100"_s).toInt());
    measureMoves(*platform, count);
    measureFirstFrames(*platform, std::max(2, count / 5));
    return 0;
}
