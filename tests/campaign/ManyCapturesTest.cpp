// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/Soak.h"
#include "tests/campaign/Footprint.h"
#include "tests/campaign/Outcome.h"
#include "tests/resident/ResidentDesktop.h"

#include <QDirIterator>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

DesktopOptions smallDesktop()
{
    return {.size = {640, 480}, .compositor = Compositor::Picom, .tray = true};
}

constexpr qint64 mebibyte = 1 << 20;
constexpr QRect area(100, 120, 300, 200);
constexpr int stretches = 40; ///< Of captures with the same preferences.
constexpr int samplesInAStretch = 10;

/// One process that takes captures of the screen and of areas, every fourth stretch with the card.
class ManyCapturesTest : public ResidentDesktop<smallDesktop> {
protected:
    void start()
    {
        QImage ground(640, 480, QImage::Format_RGB32);
        ground.fill(QColor(150, 160, 170));
        desktop().setRootPicture(ground);
        resident = launchResident();
        ASSERT_TRUE(resident);
    }

    void take(int number)
    {
        const bool isArea = number % 25 == 24;
        const auto report = isArea ? captureArea() : capture(u"screen"_s);
        ASSERT_EQ(report[u"outcome"_s], u"done"_s) << number;
        const QSize size = isArea ? area.size() : QSize(640, 480);
        ASSERT_EQ(QSize(report[u"width"_s].toInt(), report[u"height"_s].toInt()), size) << number;
        const QString path = report[u"path"_s].toString();
        if (number % 50 == 49) { // To read each of them would take longer than to take them.
            ASSERT_EQ(QImage(path).size(), size) << number;
        }
    }

    /// Waits for the screen to darken, which no flash does, then drags over the area.
    QJsonObject captureArea()
    {
        const auto isDark = [] {
            return qGray(desktop().rootPixels({2, 2, 1, 1}).pixel(0, 0)) < 100;
        };
        auto asking = desktop().launch(
            u"pixmallow"_s, {u"capture"_s, u"region"_s, u"--wait"_s, u"--json"_s});
        EXPECT_TRUE(asking && waitFor(isDark));
        desktop().drag(area.topLeft(), area.topLeft() + QPoint(area.width(), area.height()), 5ms);
        EXPECT_TRUE(asking && (*asking)->waitForEnd());
        return QJsonDocument::fromJson((*asking)->output()).object();
    }

    Footprint footprint() const { return Footprint::of(resident->pid(), desktop().connection()); }

    /// Files that the program keeps for itself: what only grows shows in their number.
    static qsizetype filesKept()
    {
        qsizetype count = 0;
        for (const char* folder : {"/.cache", "/.local", "/.config", "/../runtime"})
            for (QDirIterator it(desktop().home() + QLatin1String(folder),
                     QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
                 it.hasNext(); it.next())
                ++count;
        return count;
    }

    std::unique_ptr<Client> resident;
};

/// Whoever has less time ends this by SIGTERM; what was found until then counts.
volatile std::sig_atomic_t isEnough = 0;

QByteArray preferences(bool withCard)
{
    const QByteArray after = withCard ? "preview" : "none";
    return R"({"welcomed":true,"afterCapture":")" + after + R"("})";
}

QString inMebibytes(qint64 bytes)
{
    return QString::number(double(bytes) / double(mebibyte), 'f', 1);
}

/// The median of one quarter of the samples.
Footprint quarter(const std::vector<Footprint>& samples, int which)
{
    const auto length = std::ssize(samples) / 4;
    const auto begin = samples.begin() + which * length;
    return Footprint::median({begin, begin + length});
}

QString comparison(const Footprint& one, const Footprint& other)
{
    return u"medians of the second and the last quarter: resident %1 and %2 MiB, its share %3 and "
           "%4 MiB, descriptors %5 and %6, threads %7 and %8, resources of the X server %9 and "
           "%10, pixmaps %11 and %12 MiB"_s
               .arg(inMebibytes(one.memory), inMebibytes(other.memory), inMebibytes(one.share),
                   inMebibytes(other.share))
               .arg(one.files)
               .arg(other.files)
               .arg(one.threads)
               .arg(other.threads)
               .arg(one.resources)
               .arg(other.resources)
               .arg(inMebibytes(one.pixmaps), inMebibytes(other.pixmaps));
}

} // namespace

TEST_F(ManyCapturesTest, takeNoMoreThanAFew)
{
    Outcome outcome(u"Captures in one process"_s);
    setPreferences(preferences(false));
    start();
    const int captures = soaked(80), stretch = captures / stretches;
    std::vector<Footprint> samples;
    qsizetype filesEarly = 0;
    std::signal(SIGTERM, [](int) { isEnough = 1; });
    for (int i = 0; i < captures && !isEnough; ++i, ++outcome.done) {
        if (i % stretch == 0)
            setPreferences(preferences(i / stretch % 4 == 0));
        take(i);
        if (HasFatalFailure())
            break;
        if (i % std::max(1, stretch / samplesInAStretch) == 0)
            samples.push_back(footprint());
        if (i == captures / 4)
            filesEarly = filesKept();
    }
    ASSERT_GE(samples.size(), 8u);

    const Footprint second = quarter(samples, 1), last = quarter(samples, 3);
    outcome.details = comparison(second, last);
    // A leak of 1 KiB in each capture would be 5 MiB between the middles of those quarters of
    // 10,000. Until the history is full its thumbnails add to it, 200 KiB each.
    // AddressSanitizer holds back what was freed.
#ifdef __SANITIZE_ADDRESS__
    const qint64 growth = 1000 * mebibyte;
#else
    const qint64 growth = (outcome.done < 2000 ? 50 : 5) * mebibyte;
#endif
    SCOPED_TRACE(outcome.details.toStdString());
    EXPECT_LT(last.memory, second.memory + growth);
    EXPECT_LT(last.share, second.share + growth);
    EXPECT_LE(last.files, second.files + 2);
    EXPECT_LE(last.threads, second.threads + 4);
    EXPECT_LE(last.resources, second.resources + 20);
    EXPECT_LE(last.pixmaps, second.pixmaps + 4 * mebibyte);
    EXPECT_EQ(saved().size(), outcome.done);
    // Thumbnails and texts: at most as many as the history has entries.
    EXPECT_LE(filesKept(), filesEarly + 2 * 200) << "what is kept grows";
}
