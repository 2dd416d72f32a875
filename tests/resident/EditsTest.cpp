// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/resident/ResidentDesktop.h"

#include <QThread>

#include <random>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QRgb sky = 0xffa0c8f0;
constexpr QSize pictureSize(600, 300);

/// A picture of one colour, an editor of it, and covers that are drawn over its quarters.
class EditsTest : public ResidentDesktop<plainDesktop> {
protected:
    void SetUp() override
    {
        ResidentDesktop::SetUp();
        if (IsSkipped())
            return;
        setPreferences(R"({"copyToClipboard":false,"welcomed":true})");
        QImage ground(1280, 800, QImage::Format_RGB32);
        ground.fill(Qt::darkGray);
        desktop().setRootPicture(ground);
        paintSky();
        start();
    }

    static void paintSky()
    {
        QImage plain(pictureSize, QImage::Format_RGB32);
        plain.fill(sky);
        ASSERT_TRUE(plain.save(file()));
    }

    void start()
    {
        resident = launchResident();
        ASSERT_TRUE(resident);
    }

    static QString file() { return desktop().home() + u"/sky.png"_s; }
    static QStringList kept(const QString& folder, const QString& suffix)
    {
        return QDir(desktop().home() + u"/.local/share/Pixmallow/"_s + folder)
            .entryList({u'*' + suffix});
    }

    /// Where the editor shows the picture on the screen; empty while it does not.
    static QRect shown()
    {
        const QImage screen = desktop().rootPixels();
        QRect found;
        for (int y = 0; y < screen.height(); ++y) {
            const auto* row = reinterpret_cast<const QRgb*>(screen.constScanLine(y));
            for (int x = 0; x < screen.width(); ++x)
                if (row[x] == sky)
                    found |= QRect(x, y, 1, 1);
        }
        return found;
    }
    void edit(const QString& path)
    {
        ASSERT_EQ(pixmallow({u"edit"_s, path}).exitCode, 0);
        waitUntilShown();
    }
    void waitUntilShown()
    {
        ASSERT_TRUE(waitFor([this] {
            place = shown();
            return place.size() == pictureSize && hasKeyboard();
        })) << place.x()
            << ' ' << place.y() << ' ' << place.width() << ' ' << place.height();
    }

    /// One of the four quarters: its middle in the picture, and what is drawn over it.
    static QPoint middle(int quarter) { return {75 + 150 * quarter, 150}; }
    static QPoint corner(int quarter) { return middle(quarter) - QPoint(50, 60); }
    void cover(int quarter)
    {
        const QPoint to = middle(quarter) + QPoint(50, 60);
        desktop().key("x");
        desktop().drag(place.topLeft() + corner(quarter), place.topLeft() + to);
    }
    bool isCovered(int quarter) const
    {
        return desktop()
                   .rootPixels(QRect(place.topLeft() + middle(quarter), QSize(1, 1)))
                   .pixel(0, 0)
            != sky;
    }
    static bool isCoveredIn(const QString& path, int quarter)
    {
        return QImage(path).pixel(middle(quarter)) != sky;
    }
    /// By its keys; the picture is not on the screen any more then.
    void close()
    {
        desktop().key("ctrl+w");
        EXPECT_TRUE(waitFor([] { return shown().isEmpty(); }));
    }

    std::unique_ptr<Client> resident;
    QRect place;
};

} // namespace

TEST_F(EditsTest, bringsMarksBackToLifeFromTheFileAndFromACopyOfIt)
{
    edit(file());
    for (const int quarter : {0, 2}) {
        cover(quarter);
        ASSERT_TRUE(waitFor([&] { return isCovered(quarter); }));
    }
    close();
    ASSERT_TRUE(isCoveredIn(file(), 0) && isCoveredIn(file(), 2));
    EXPECT_TRUE(waitFor([] { return kept(u"Journals"_s, u".edit"_s).isEmpty(); }));

    // Another name and other bytes, but the same pixels.
    const QString copy = desktop().home() + u"/copy.png"_s;
    ASSERT_TRUE(QImage(file()).convertToFormat(QImage::Format_RGB888).save(copy, "PNG", 100));
    ASSERT_EQ(pixmallow({u"edit"_s, copy}).exitCode, 0);
    ASSERT_TRUE(
        waitFor([this] { return hasKeyboard() && isCovered(0) && isCovered(2) && !isCovered(1); }));
    desktop().key("v");
    desktop().clickAt(place.topLeft() + middle(0));
    // The window manager holds a click up; a key would overtake it.
    ASSERT_TRUE(desktop().waitForPixel(place.topLeft() + corner(0), 0xffffffff)) << "a handle";
    desktop().key("Delete");
    EXPECT_TRUE(waitFor([this] { return !isCovered(0); })) << "what was covered is there";
    close();
    EXPECT_FALSE(isCoveredIn(copy, 0));
    EXPECT_TRUE(isCoveredIn(copy, 2));
    EXPECT_TRUE(isCoveredIn(file(), 0)) << "the other file is as it was";
}

TEST_F(EditsTest, offersWhatAKillLeftAndGoesOnWithIt)
{
    std::mt19937 random(3);
    for (int round = 0; round < 3; ++round) {
        SCOPED_TRACE(round);
        edit(file());
        cover(0);
        ASSERT_TRUE(waitFor([] { return !kept(u"Journals"_s, u".edit"_s).isEmpty(); }));
        cover(1);
        QThread::msleep(random() % 60);
        resident->kill();
        ASSERT_TRUE(waitFor([] { return shown().isEmpty(); }));
        EXPECT_FALSE(isCoveredIn(file(), 0)) << "nothing is written behind the user's back";

        start();
        std::ignore = settledPixels(); // The card has come to rest.
        // The prominent button is the last one of the card in the corner.
        desktop().clickAt({1280 - 16 - 16 - 40, 800 - 16 - 16 - 14});
        waitUntilShown();
        ASSERT_TRUE(isCovered(0));
        cover(2); // It goes on.
        ASSERT_TRUE(waitFor([this] { return isCovered(2); }));
        close();
        EXPECT_TRUE(isCoveredIn(file(), 0) && isCoveredIn(file(), 2));
        EXPECT_TRUE(waitFor([] { return kept(u"Journals"_s, u".edit"_s).isEmpty(); }));
        paintSky();
    }
}

TEST_F(EditsTest, opensWhatIsDroppedOnAnEditor)
{
    edit(file());
    const auto windows
        = [] { return desktop().property(desktop().screen().root, "_NET_CLIENT_LIST").size(); };
    const auto before = windows();
    capture(u"screen"_s);
    const QPoint card(1280 - 16 - 170, 800 - 16 - 180);
    std::ignore = settledPixels(QRect(card, QSize(100, 100))); // It has come to rest.
    desktop().drag(card, place.topLeft() + QPoint(20, 20), 40ms);
    EXPECT_TRUE(waitFor([&] { return windows() == before + 1; }));
}
