// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/DrawnShadow.h"
#include "platform/KeyCodes.h"
#include "platform/freedesktop/DesktopEntries.h"
#include "platform/x11/DisplayScale.h"
#include "tests/TestFiles.h"

#include <QPoint>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;

TEST(DisplayScaleTest, followsTheToolkitsVariablesThenTheFontResolution)
{
    const QByteArray resources = "*customization: -color\nXft.dpi:\t144\nXft.antialias:\t1\n";
    struct Case {
        ScaleSettings settings;
        double first, second;
    };
    const Case cases[] = {
        {{}, 1, 1},
        {{u"2"_s, {}, {}}, 2, 2},
        {{{}, u"1;2"_s, {}}, 1, 2},
        {{{}, u"R=2;L=1.5"_s, {}}, 1.5, 2},
        {{{}, u"L=2"_s, resources}, 2, 1.5},
        {{{}, {}, resources}, 1.5, 1.5},
        {{u"2"_s, u"1;2"_s, {}}, 2, 4},
        {{u"nonsense"_s, u"R=;L=-1"_s, "Xft.dpi: none"}, 1, 1},
    };
    for (const auto& [settings, first, second] : cases) {
        EXPECT_EQ(settings.scaleOf(u"L"_s, 0), first) << qPrintable(settings.screenFactors);
        EXPECT_EQ(settings.scaleOf(u"R"_s, 1), second) << qPrintable(settings.screenFactors);
    }
}

TEST(DesktopEntriesTest, findsTheNameByDeclaredClassThenByFileName)
{
    const QTemporaryDir root;
    const QString user = root.filePath(u"user"_s), system = root.filePath(u"system"_s);
    put(system + u"/org.example.Viewer.desktop"_s, "[Desktop Entry]\nName=Viewer\n");
    put(system + u"/kde/tool.desktop"_s, "[Desktop Entry]\nName = Tool\nStartupWMClass=ToolBox\n");
    put(system + u"/viewer.desktop"_s,
        "# Name=Wrong\n[Other]\nName=Wrong\n[Desktop "
        "Entry]\nName=Declared\nStartupWMClass=VIEWER\n");
    put(system + u"/broken.desktop"_s, "[Desktop Entry\n=\nName\n");
    put(user + u"/kde/tool.desktop"_s, "[Desktop Entry]\nName=My tool\nStartupWMClass=toolbox\n");

    DesktopEntries entries({user, system, root.filePath(u"missing"_s)});
    const auto name = [&](const QString& windowClass, const QString& instance = {}) {
        const auto entry = entries.find(windowClass, instance);
        return entry ? entry->id + u": "_s + entry->name : QString();
    };
    EXPECT_EQ(name(u"Viewer"_s), u"viewer: Declared"_s);
    EXPECT_EQ(name(u"org.example.viewer"_s), u"org.example.Viewer: Viewer"_s);
    EXPECT_EQ(name(u"Toolbox"_s), u"kde-tool: My tool"_s);
    EXPECT_EQ(name(u"unknown"_s, u"toolbox"_s), u"kde-tool: My tool"_s);
    EXPECT_EQ(name({}), QString());
    EXPECT_EQ(name(u"broken"_s), QString());
}

TEST(KeyCodesTest, noPlaceBelongsToTwoKeys)
{
    int places = 0;
    for (std::uint32_t code = 0; code < 256; ++code)
        for (const auto position : keyPositions(code)) {
            EXPECT_EQ(keyCodeAt(position), code);
            ++places;
        }
    for (std::uint32_t position = 0; position < 256; ++position)
        places -= keyCodeAt(position).has_value();
    EXPECT_EQ(places, 0);
    EXPECT_TRUE(keyPositions(4294967295).empty());
}

TEST(DrawnShadowTest, liesOutsideTheWindowAndFallsOffSmoothly)
{
    Bitmap window({200, 120}, PixelFormat::Rgb32);
    std::fill_n(window.row(0), 200 * 120, 0x00336699u); // The top byte holds anything.
    const ShadowStyle style {20, 6, 0.5};
    for (const int scale : {1, 2}) {
        const Bitmap drawn = withDrawnShadow(window, scale, style);
        const int reach = 20 * scale, fall = 6 * scale;
        ASSERT_EQ(drawn.size(), QSize(200 + 2 * reach, 120 + 2 * reach));
        for (const QPoint corner : {QPoint(0, 0), QPoint(199, 0), QPoint(0, 119), QPoint(199, 119)})
            EXPECT_EQ(drawn.row(reach - fall + corner.y())[reach + corner.x()], 0xff336699);

        // Downwards from the middle of the window's foot: black, never darker again, gone at the
        // end.
        const int foot = reach - fall + 120, middle = drawn.size().width() / 2;
        std::uint32_t last = 128;
        for (int y = foot; y < drawn.size().height(); ++y) {
            const std::uint32_t pixel = drawn.row(y)[middle];
            EXPECT_EQ(pixel & 0xffffff, 0u);
            EXPECT_LE(pixel >> 24, last) << y;
            last = pixel >> 24;
        }
        EXPECT_GT(drawn.row(foot)[middle] >> 24, 60u);
        EXPECT_LT(last, 6u) << "cut off at the edge";
        EXPECT_GT(drawn.row(foot)[middle] >> 24, drawn.row(reach - fall - 1)[middle] >> 24);
    }
}
