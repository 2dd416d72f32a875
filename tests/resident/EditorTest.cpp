// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/TestFiles.h"
#include "tests/resident/ResidentDesktop.h"

#include <csignal>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QRgb ground = 0xffffffff;

/// A white picture that its window shows in its own size, in the middle of the screen.
constexpr QSize size(600, 360);

class EditorTest : public ResidentDesktop<plainDesktop> {
protected:
    void SetUp() override
    {
        ResidentDesktop::SetUp();
        if (IsSkipped())
            return;
        setPreferences(R"({"afterCapture":"none","captureAnimation":"none","welcomed":true})");
        QImage white(size, QImage::Format_RGB32);
        white.fill(ground);
        EXPECT_TRUE(white.save(file()));
        m_bare = desktop().rootPixels();
    }

    static QString file() { return desktop().home() + u"/marked up.png"_s; }

    void edit(const QString& path = file())
    {
        const auto opened = pixmallow({u"edit"_s, path});
        ASSERT_EQ(opened.exitCode, 0) << opened.errors.toStdString();
        ASSERT_TRUE(waitFor([&] { return findPicture(); })) << "no picture to be seen";
    }

    /// Looks for the white picture below the toolbar.
    bool findPicture()
    {
        const QImage all = desktop().rootPixels();
        for (int y = 0; y + size.height() <= all.height(); ++y)
            for (int x = 0; x + size.width() <= all.width(); ++x) {
                const auto isWhite = [&](int atX, int atY) {
                    return (all.pixel(atX, atY) | 0xff000000) == ground;
                };
                if (!isWhite(x, y))
                    continue;
                int wide = x, tall = y;
                while (wide < all.width() && isWhite(wide, y))
                    ++wide;
                while (tall < all.height() && isWhite(x, tall))
                    ++tall;
                if (wide - x == size.width() && tall - y == size.height()) {
                    m_corner = {x, y};
                    return true;
                }
                x = wide;
            }
        return false;
    }

    QPoint at(QPoint pixel) const { return m_corner + pixel; }
    QImage shown() const { return desktop().rootPixels({m_corner, size}); }

    /// What a hand does with a tool changes the picture, within an area and nowhere else.
    template <typename Hand>
    void expectMark(const char* tool, const QByteArray& key, QRect within, Hand hand)
    {
        desktop().key(key);
        hand();
        EXPECT_TRUE(waitFor([&] { return changed(within) && isSelected(within); }))
            << tool << " drew nothing";
        desktop().key("Escape"); // Nothing is selected any more.
    }
    /// Around what is selected there are lines in blue, the accent. Clicks pass through the window
    /// manager and would be overtaken by keys that do not wait for what they did.
    bool isSelected(QRect area) const
    {
        constexpr int reach = 20;
        const QImage now
            = desktop().rootPixels(area.translated(at({})).adjusted(-reach, -reach, reach, reach));
        const QRect inside = now.rect().adjusted(reach + 2, reach + 2, -reach - 2, -reach - 2);
        for (int y = 0; y < now.height(); ++y)
            for (int x = 0; x < now.width(); ++x) {
                const QRgb pixel = now.pixel(x, y);
                const bool isBlue
                    = qBlue(pixel) - qRed(pixel) > 60 && qBlue(pixel) - qGreen(pixel) > 30;
                if (isBlue && !inside.contains(x, y))
                    return true;
            }
        return false;
    }
    bool changed(QRect area) const
    {
        const QImage now = shown();
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if ((now.pixel(x, y) | 0xff000000) != ground)
                    return true;
        return false;
    }
    void drag(QPoint from, QPoint to) { desktop().drag(at(from), at(to), 5ms); }

    void closeEditor()
    {
        desktop().key("ctrl+w");
        EXPECT_TRUE(waitUntilClosed());
    }
    /// Nothing is on the screen but what was there before.
    bool isClosed() const { return equal(desktop().rootPixels(), m_bare); }
    bool waitUntilClosed()
    {
        return waitFor([&] { return isClosed(); });
    }
    QImage saved() { return QImage(file()); }

private:
    QImage m_bare;
    QPoint m_corner;
};

} // namespace

TEST_F(EditorTest, everyToolMakesItsMark)
{
    edit();
    const auto dragged
        = [this](QRect box) { return [=, this] { drag(box.topLeft(), box.bottomRight()); }; };
    const QRect first(20, 20, 80, 60);
    const struct {
        const char* name;
        QByteArray key;
    } dragging[] {{"arrow", "a"}, {"rectangle", "r"}, {"ellipse", "e"}, {"line", "l"}, {"pen", "p"},
        {"highlighter", "h"}, {"sticker", "s"}, {"redact", "x"}};
    QRect box = first;
    for (const auto& [name, key] : dragging) {
        expectMark(name, key, box, dragged(box));
        box.translate(110, 0);
        if (box.right() > 560)
            box = first.translated(0, 100);
    }
    const QPoint step(40, 300), text(200, 250);
    expectMark("step", "n", {30, 290, 20, 20}, [&] { desktop().clickAt(at(step)); });
    expectMark("text", "t", {200, 250, 60, 40}, [&] {
        desktop().clickAt(at(text));
        EXPECT_TRUE(waitFor([&] { return changed({text, QSize(8, 8)}); })) << "no field";
        desktop().typeKeys("abc\n");
    });
    // Half of it over the arrow's shaft, so that something is to be blurred.
    const QImage sharp = shown().copy(first);
    expectMark("blur", "b", {40, 30, 40, 40}, dragged({40, 30, 40, 40}));
    EXPECT_FALSE(equal(shown().copy(first), sharp)) << "nothing is blurred";
    const QRect badge(25, 285, 30, 30);
    desktop().key("v");
    desktop().clickAt(at(step));
    EXPECT_TRUE(waitFor([&] { return isSelected(badge); }));
    desktop().key("Delete");
    EXPECT_TRUE(waitFor([&] { return !changed(badge); })) << "not deleted";
    desktop().key("ctrl+z");
    EXPECT_TRUE(waitFor([&] { return changed(badge); })) << "not undone";
    desktop().key("ctrl+shift+z");
    EXPECT_TRUE(waitFor([&] { return !changed(badge); })) << "not redone";
    desktop().key("c");
    drag({100, 100}, {400, 300});
    closeEditor();
    EXPECT_NEAR(saved().width(), 300, 2);
    EXPECT_NEAR(saved().height(), 200, 2);
}

TEST_F(EditorTest, closingWritesBackCopiesAndEntersTheHistoryOnce)
{
    const QByteArray before = contentOf(file());
    edit();
    desktop().key("Escape"); // Closes, as nothing is selected.
    EXPECT_TRUE(waitUntilClosed());
    EXPECT_EQ(contentOf(file()), before) << "an unchanged picture was written";
    EXPECT_TRUE(clipboard(u"image/png"_s).isEmpty());

    edit();
    desktop().key("r");
    drag({100, 100}, {300, 200});
    desktop().key("ctrl+c");
    ASSERT_TRUE(waitFor([&] { return !clipboard(u"image/png"_s).isEmpty(); }));
    const QByteArray copied = clipboard(u"image/png"_s);
    desktop().key("Escape");
    drag({400, 100}, {500, 200});
    closeEditor();
    EXPECT_EQ((saved().pixel(400, 150) | 0xff000000) != ground, true);
    const QByteArray newer = clipboard(u"image/png"_s);
    EXPECT_NE(newer, copied) << "the edit after the copy is not on the clipboard";
    EXPECT_TRUE(equal(QImage::fromData(newer), saved()));
}

TEST_F(EditorTest, captureIsEditedFromTheEditorThatOpensAfterIt)
{
    setPreferences(R"({"afterCapture":"editor","captureAnimation":"none","welcomed":true})");
    const auto report = capture(u"screen"_s);
    const QString path = report[u"path"_s].toString();
    const QImage before(path);
    ASSERT_TRUE(waitFor([&] { return !isClosed() && hasKeyboard(); }));
    const QRect middle(600, 400, 1, 1);
    const QImage there = settledPixels(middle);
    desktop().key("x");
    desktop().drag({500, 350}, {700, 450}, 5ms);
    ASSERT_TRUE(waitFor([&] { return desktop().rootPixels(middle) != there; }));
    pixmallow({u"quit"_s}); // Closes it by the rule.
    EXPECT_FALSE(equal(QImage(path), before)) << "the edit is lost";
    EXPECT_EQ(QImage(path).size(), before.size());
}

TEST_F(EditorTest, saysWhichFilesItCannotOpen)
{
    const QString damaged = desktop().home() + u"/damaged.png"_s;
    put(damaged, contentOf(file()).left(60));
    const QString huge = desktop().home() + u"/huge.ppm"_s;
    put(huge, "P6 30000 30000 255\n");
    const auto finished = pixmallow({u"edit"_s, u"missing.png"_s, damaged, huge});
    EXPECT_EQ(finished.exitCode, 2);
    EXPECT_TRUE(finished.errors.contains("missing.png") && finished.errors.contains("damaged.png"))
        << finished.errors.toStdString();
    EXPECT_TRUE(finished.errors.contains("too large")) << finished.errors.toStdString();
    EXPECT_TRUE(isClosed());
}

TEST_F(EditorTest, whatCannotBeWrittenKeepsTheWindowOpen)
{
    const QString folder = desktop().home() + u"/taken away"_s;
    QDir().mkpath(folder);
    const QString path = folder + u"/a.png"_s;
    EXPECT_TRUE(QFile::copy(file(), path));
    edit(path);
    desktop().key("r");
    drag({100, 100}, {300, 200});
    ASSERT_TRUE(waitFor([&] { return isSelected({100, 100, 200, 100}); }));
    EXPECT_TRUE(QDir().rename(folder, folder + u" for now"_s));
    desktop().key("ctrl+w");
    const QPoint corner = at({});
    EXPECT_TRUE(waitFor([&] { return !findPicture() || at({}) != corner; }))
        << "nothing is said above the picture";
    EXPECT_FALSE(isClosed());
    EXPECT_TRUE(QDir().rename(folder + u" for now"_s, folder));
    desktop().key("ctrl+w");
    EXPECT_TRUE(waitUntilClosed());
    EXPECT_FALSE(equal(QImage(path), saved())) << "the edit is lost";
}
