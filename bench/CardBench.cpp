// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/Limit.h"
#include "bench/Rounds.h"
#include "bench/ScreenContent.h"
#include "platform/DesktopPlatform.h"
#include "preview/PreviewPanel.h"
#include "preview/PreviewThumbnail.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr Limit shownLimit {50, 50}; ///< Milliseconds until a card is painted.
constexpr Limit frameLimit {3, 3}; ///< Milliseconds of one frame of a border.
constexpr int frames = 60;
constexpr int settlingFrames = 5; ///< While the card appears.

double cpuMilliseconds()
{
    timespec time {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// Sees the pictures of cards being painted.
class Painted final : public QObject {
public:
    Painted() { qApp->installEventFilter(this); }

    /// Until there are so many more.
    void wait(int count)
    {
        for (const int enough = m_count + count; m_count < enough;)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

private:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && qobject_cast<PreviewThumbnail*>(receiver))
            ++m_count;
        return false;
    }

    int m_count = 0;
};

PreviewThumbnail* thumbnail()
{
    for (auto* widget : QApplication::allWidgets())
        if (auto* found = qobject_cast<PreviewThumbnail*>(widget); found && found->isVisible())
            return found;
    return nullptr;
}

void measure(PreviewPanel& panel, Prefs& prefs, const Shot& shot, int count)
{
    Painted painted;
    Rounds showing;
    showing.add(u"card"_s, [&] {
        panel.show({shot}, u"3840 × 2160"_s);
        painted.wait(1);
    });
    showing.run(count);
    std::printf("card of 3840 x 2160, until painted: cpu ms %s, p95 %.1f\n",
        qPrintable(judged(showing.medianCpu(u"card"_s), shownLimit)), showing.cpu95(u"card"_s));

    const QStringList effects {u"comet"_s, u"pulse"_s, u"spin"_s};
    Rounds borders;
    for (const QString& effect : effects)
        borders.addMeasured(effect, [&, effect] {
            prefs.set(Prefs::keys.previewEffect, effect);
            panel.show({shot}, u"3840 × 2160"_s);
            painted.wait(settlingFrames);
            const double before = cpuMilliseconds();
            for (int frame = 0; frame < frames; ++frame)
                thumbnail()->repaint(thumbnail()->borderRegion());
            return Rounds::Sample {cpuMilliseconds() - before, 0};
        });
    borders.run(count);
    for (const QString& effect : effects)
        std::printf("border %s, a frame: cpu ms %s\n", qPrintable(effect),
            qPrintable(judged(borders.medianCpu(effect) / frames, frameLimit)));

    prefs.set(Prefs::keys.previewEffect, u"none"_s);
    panel.show({shot}, u"3840 × 2160"_s);
    constexpr int seconds = 5;
    QTimer::singleShot(1000, [] {
        const double before = cpuMilliseconds();
        QTimer::singleShot(seconds * 1000, [before] {
            std::printf("card without a border, a second: cpu ms %.2f\n",
                (cpuMilliseconds() - before) / seconds);
            QApplication::quit();
        });
    });
    QApplication::exec();
}

} // namespace

// usage: virtual-desktop --size 3840x2160 --compositor -- CardBench [ROUNDS]
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    auto platform = makeDesktopPlatform();
    if (!platform) {
        std::fprintf(stderr, "CardBench: %s\n", qPrintable(platform.error().message));
        return 2;
    }
    const QTemporaryDir home;
    const Folders folders {.configuration = home.path(), .data = home.path()};
    Prefs prefs(folders);
    prefs.registerDefaults();
    prefs.set(Prefs::keys.previewSeconds, 0);
    Fun fun(folders, prefs);
    Skins skins(prefs, *platform->appearance);
    skins.apply();
    const Themes themes(skins, *platform->appearance);
    PreviewPanel panel({themes, *platform->surfaces}, prefs, fun, {}, u"Show in Folder"_s);
    const Shot shot {drawScreen(ScreenContent::Desk, {3840, 2160}), 1, u"Screen"_s, {}};
    measure(panel, prefs, shot, std::max(1, QApplication::arguments().value(1, u"9"_s).toInt()));
    return 0;
}
