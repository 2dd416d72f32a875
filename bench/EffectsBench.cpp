// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/Rounds.h"
#include "fun/FxPanel.h"
#include "platform/DesktopPlatform.h"
#include "skins/Skins.h"

#include <QGuiApplication>
#include <QPainter>
#include <QtGui/qguiapplication_platform.h>

#include <cstdio>
#include <xcb/xcb.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double frameRate = 60;
constexpr double areaLimit = 8; ///< Milliseconds of each frame of an area to 1280 × 720.
constexpr double screenLimit = 12; ///< Of the median frame of a whole screen.

/// Until the server has done all it was asked for.
void settle()
{
    auto* const xcb = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    std::free(xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
}

QImage contentOf(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.fillRect(image.rect(), QColor(0xf4, 0xf4, 0xf7));
    for (int y = 8; y < size.height(); y += 18)
        painter.fillRect(
            20, y, 100 + (y * 37) % (size.width() - 100), 10, QColor::fromHsv(y % 360, 160, 180));
    return image;
}

struct Figures {
    double median, most;
};

/// Every frame of an effect, some rounds of it. The first frame, which clears the window, counts.
Figures measure(DesktopPlatform& platform, const FxKindInfo& info, QRectF area, int count)
{
    const auto display = platform.displays->list().first();
    FxStage stage;
    stage.area = area;
    stage.screen = display.points.size();
    stage.picture = contentOf((area.size() * display.scale).toSize());
    stage.landing = {stage.screen.width() - 60, 14};
    stage.theme = Theme::of(Skins::find({}), false, {});
    const FxRules::Plan plan {info.kind, info.duration};

    Rounds setUp;
    const QString name(info.text);
    std::unique_ptr<FxPanel> panel;
    setUp.add(name, [&] {
        panel = std::make_unique<FxPanel>(*platform.surfaces, display, FxScene::make(plan, stage),
            info.kind == FxKind::Fly ? stage.picture : QImage());
    });
    setUp.run(3);
    panel->show();
    panel->paintAt(0);
    settle();

    // A round is all frames in their order; each frame is a case, so that its median is known.
    const int frames = int(info.duration * frameRate);
    qint64 pixels = 0;
    Rounds rounds;
    for (int frame = 0; frame <= frames; ++frame)
        rounds.add(QString::number(frame), [&, frame] {
            pixels += panel->paintAt(frame / frameRate);
            settle();
        });
    rounds.run(count);
    std::vector<double> medians;
    for (int frame = 0; frame <= frames; ++frame)
        medians.push_back(rounds.medianCpu(QString::number(frame)));
    std::sort(medians.begin(), medians.end());
    const Figures figures {medians[medians.size() / 2], medians.back()};
    std::printf("%-10s %5.0f x %-5.0f %8.2f %8.2f %8.2f %8.2f\n", qPrintable(name), area.width(),
        area.height(), figures.median, figures.most, setUp.medianCpu(name),
        double(pixels) / double(count + 1) / frames / 1e6);
    return figures;
}

void judge(const char* what, double figure, double limit)
{
    std::printf(
        "%s %.2f ms (%s %.0f)\n", what, figure, figure <= limit ? "target" : "MISSED", limit);
}

} // namespace

// usage: virtual-desktop --size 3840x2160 --compositor -- EffectsBench [ROUNDS]
int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    auto platform = makeDesktopPlatform();
    if (!platform) {
        std::fprintf(stderr, "EffectsBench: %s\n", qPrintable(platform.error().message));
        return 2;
    }
    const int count = std::max(1, QGuiApplication::arguments().value(1, u"5"_s).toInt());
    const QRectF screen(QPointF(), platform->displays->list().first().points.size());
    std::printf("%-10s %-13s %8s %8s %8s %8s\n", "", "", "cpu ms", "worst", "set-up", "Mpx");
    double worst = 0, median = 0;
    for (const auto& info : fxKinds) {
        if (info.kind == FxKind::None)
            continue;
        QRectF area(0, 0, 1280, 720);
        area.moveCenter(screen.center());
        worst = std::max(worst, measure(*platform, info, area & screen, count).most);
        median = std::max(median, measure(*platform, info, screen, count).median);
    }
    judge("frames of 1280 x 720, the slowest:", worst, areaLimit);
    judge("frames of the whole screen, the slowest effect's median:", median, screenLimit);
    return 0;
}
