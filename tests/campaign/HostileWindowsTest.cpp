// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/Soak.h"
#include "tests/campaign/Mutator.h"
#include "tests/campaign/Outcome.h"
#include "tests/resident/ResidentDesktop.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

DesktopOptions smallDesktop()
{
    return {.size = {640, 480}, .compositor = Compositor::Picom};
}

/// What programs read of windows that are not theirs.
constexpr const char* properties[] = {"WM_NAME", "WM_CLASS", "WM_NORMAL_HINTS", "WM_HINTS",
    "WM_STATE", "_NET_WM_NAME", "_NET_WM_PID", "_NET_WM_STATE", "_NET_WM_WINDOW_TYPE",
    "_NET_WM_WINDOW_OPACITY", "_NET_WM_ICON", "_NET_FRAME_EXTENTS", "_GTK_FRAME_EXTENTS",
    "_NET_WM_USER_TIME", "_PIXMALLOW_OWN"};
constexpr const char* types[] = {"STRING", "UTF8_STRING", "CARDINAL", "ATOM", "WINDOW"};
constexpr quint8 formats[] = {8, 16, 32};

/// Windows that say of themselves whatever comes to somebody's mind.
class HostileWindowsTest : public ResidentDesktop<smallDesktop> {
protected:
    void change(xcb_window_t window, const char* property, Mutator& chance)
    {
        static const QList<QByteArray> samples {QByteArray("editor\0Editor\0", 14), "Größe",
            QByteArray(4, '\1'), QByteArray(64, '\xff'), QByteArray(40'000, 'x')};
        const quint8 format = formats[chance.below(3)];
        QByteArray value = chance.mutated(samples);
        value.truncate(value.size() / 4 * 4);
        xcb_change_property(desktop().connection(), XCB_PROP_MODE_REPLACE, window,
            desktop().atom(property), desktop().atom(types[chance.below(std::size(types))]), format,
            quint32(value.size() / (format / 8)), value.constData());
    }

    xcb_window_t make(Mutator& chance)
    {
        auto* const xcb = desktop().connection();
        const xcb_window_t window = xcb_generate_id(xcb);
        const quint32 values[] = {quint32(chance.below(0xffffff)), quint32(chance.below(2))};
        xcb_create_window(xcb, XCB_COPY_FROM_PARENT, window, desktop().screen().root,
            qint16(chance.below(2000) - 1000), qint16(chance.below(2000) - 1000),
            quint16(1 + chance.below(chance.below(5) ? 400 : 8000)), quint16(1 + chance.below(400)),
            quint16(chance.below(30)), XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
            XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
        for (const char* const property : properties)
            if (chance.below(3))
                change(window, property, chance);
        xcb_map_window(xcb, window);
        return window;
    }
};

} // namespace

TEST_F(HostileWindowsTest, bringNeitherProgramDown)
{
    Outcome outcome(u"Windows that say anything of themselves"_s);
    const auto resident = launchResident();
    ASSERT_TRUE(resident);
    for (int round = 0; round < soaked(4); ++round) {
        SCOPED_TRACE(testing::Message() << "seed " << round);
        Mutator chance {unsigned(round)};
        std::vector<xcb_window_t> windows;
        for (int i = 0; i < 5; ++i, ++outcome.done)
            windows.push_back(make(chance));
        change(desktop().screen().root, "_NET_WORKAREA", chance);
        change(desktop().screen().root, "_XROOTPMAP_ID", chance);
        xcb_flush(desktop().connection());

        const auto listed = pixmallow({u"list"_s, u"windows"_s, u"--json"_s});
        EXPECT_EQ(listed.exitCode, 0) << listed.errors.toStdString();
        EXPECT_TRUE(QJsonDocument::fromJson(listed.output).isArray());
        EXPECT_EQ(capture(u"screen"_s)[u"width"_s].toInt(), 640);
        // The window in front may have gone or be anywhere; either way there is an answer.
        EXPECT_LE(pixmallow({u"capture"_s, u"window"_s, u"--wait"_s}).exitCode, 3);
        for (const xcb_window_t window : windows)
            xcb_destroy_window(desktop().connection(), window);
        xcb_flush(desktop().connection());
        ASSERT_TRUE(resident->isRunning());
    }
}
